#include <charconv>
#include <filesystem>
#include <ostream>

#include "cli/command.h"
#include "cli/edid_files.h"
#include "cli/words.h"
#include "store/directory/directory_platform.h"
#include "store/display_row.h"
#include "store/load.h"

namespace fs = std::filesystem;

namespace VNT::Cli {

namespace {

constexpr const char* DefaultFolder = "displays";

std::unique_ptr<Platform> OpenStore(const Arguments& arguments, const Console& console) {
    const std::string* folder = arguments.Value("--store");
    if (folder == nullptr && console.openSystemStore) return console.openSystemStore();
    const std::string name = folder != nullptr ? *folder : DefaultFolder;
    const fs::path path(std::u8string(name.begin(), name.end()));
    std::error_code error;
    if (!fs::is_directory(path, error)) throw Failure(name, "is no folder of displays");
    return std::make_unique<DirectoryPlatform>(path);
}

DisplayList LoadList(Platform& platform, bool all) {
    DisplayList list;
    if (!LoadDisplays(platform, list, all)) throw Failure("the displays can't be loaded");
    return list;
}

// The display that a word means: the number of its line in `list`, or its instance ID, inactive displays included.
Display FindDisplay(Platform& platform, const std::string& word) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error == std::errc() && end == word.data() + word.size()) {
        const DisplayList listed = LoadList(platform, false);
        if (number < 1 || number > listed.size()) throw Failure(word, "no display of this number");
        return listed[number - 1];
    }
    const std::wstring id = UpperAscii(String(std::string_view(word)).ToWide());
    for (const Display& display : LoadList(platform, true)) {
        if (display.InstanceId == id) return display;
    }
    throw Failure(word, "no such display");
}

std::string NameOf(const Display& display) { return String(display.InstanceId).ToUtf8(); }

// Stores `bytes` as the override, none if they are empty. Bytes equal to those shown are stored all the same: it was
// asked for, and what the store holds may be another thing (no override, or one too broken to be read).
void Store(Platform& platform, Display& display, const Bytes& bytes) {
    const bool fits = display.SetData(bytes);
    display.Saved = false;
    if (!fits || !display.Save(platform)) throw Failure(NameOf(display), "the store refused");
}

int RunList(const Arguments& arguments, const Console& console) {
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    for (const Display& display : LoadList(*platform, arguments.Has("--all"))) {
        console.out << GetDisplayRow(display).ToUtf8() << '\t' << NameOf(display) << '\n';
    }
    return Success;
}

int RunRead(const Arguments& arguments, const Console& console) {
    const std::string& out = arguments.Words()[1];
    const FileFormat format = ChooseFormat(arguments, out);
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    const Display display = FindDisplay(*platform, arguments.Words()[0]);
    Edid edid;
    if (!edid.Read(display.CurrentData)) throw Failure(NameOf(display), "has no EDID");
    ExportFile(edid, format, out, console);
    return Success;
}

int RunWrite(const Arguments& arguments, const Console& console) {
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    Display display = FindDisplay(*platform, arguments.Words()[0]);
    const std::string& file = arguments.Words()[1];
    const Edid edid(static_cast<const EdidFields&>(ImportFile(file, console)));
    const Bytes bytes = edid.GetBytes();
    if (bytes.IsEmpty()) throw Failure(file, "the EDID can't be written");
    Store(*platform, display, bytes);
    console.out << "stored " << bytes.Size() << " bytes as the override of " << NameOf(display) << "\n";
    return Success;
}

int RunReset(const Arguments& arguments, const Console& console) {
    const bool all = arguments.Has("--all");
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    DisplayList displays;
    if (all) {
        displays = LoadList(*platform, true);
    } else {
        displays.push_back(FindDisplay(*platform, arguments.Words()[0]));
    }
    int status = Success;
    for (Display& display : displays) {
        if (all && display.OverrideData.IsEmpty()) continue;
        try {
            Store(*platform, display, Bytes());
            console.out << "removed the override of " << NameOf(display) << "\n";
        } catch (const Failure& failure) {
            console.err << "vantelle-cli: " << failure.what() << "\n";
            status = Refused;
        }
    }
    return status;
}

}  // namespace

extern const Command ListCommand, ReadCommand, WriteCommand, ResetCommand;
const Command ListCommand{
    "list",  {},      {StoreOption, {"--all", nullptr, "displays that are not there, too"}}, "lists the displays",
    "--all", &RunList};
const Command ReadCommand{"read",
                          {DisplayWord, OutWord},
                          {StoreOption, FormatOption},
                          "writes what a display shows to a file",
                          "1 monitor.bin",
                          &RunRead};
const Command WriteCommand{"write",         {DisplayWord, FileWord},
                           {StoreOption},   "stores an EDID as the override of a display",
                           "1 monitor.bin", &RunWrite};
const Command ResetCommand{"reset",
                           {DisplayWord},
                           {{"--all", nullptr, "of every display on record"}, StoreOption},
                           "takes the override off a display, also a broken one",
                           "--all",
                           &RunReset,
                           "--all"};

}  // namespace VNT::Cli

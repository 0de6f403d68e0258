#include <algorithm>
#include <charconv>
#include <filesystem>
#include <optional>
#include <ostream>

#include "cli/commands.h"
#include "cli/edid_files.h"
#include "cli/outline.h"
#include "cli/words.h"
#include "store/directory/directory_platform.h"
#include "store/display_row.h"
#include "store/load.h"
#include "store/match.h"
#include "store/reset.h"

namespace fs = std::filesystem;

namespace VNT::Cli {

namespace {

constexpr const char* DefaultFolder = "displays";

std::unique_ptr<Platform> OpenStore(const Arguments& arguments, const Console& console) {
    const std::string* folder = arguments.Value("--store");
    const StoreMode mode{arguments.Has("--now"), arguments.Has("--lasting"), arguments.Has("--dry-run")};
    std::unique_ptr<Platform> own;
    if (folder == nullptr && console.openSystemStore) own = console.openSystemStore(mode, console);
    if (own != nullptr) return own;
    if (!mode.IsUsual()) throw Failure("--now, --lasting and --dry-run are for the displays of a Linux machine");
    const std::string name = folder != nullptr ? *folder : DefaultFolder;
    const fs::path path(std::u8string(name.begin(), name.end()));
    std::error_code error;
    if (!fs::is_directory(path, error)) throw Failure(name, "is no folder of displays");
    return std::make_unique<DirectoryPlatform>(path);
}

DisplayList LoadList(Platform& platform) {
    DisplayList list;
    if (!LoadDisplays(platform, list, true)) throw Failure("the displays can't be loaded");
    return list;
}

// In the order of their numbers: first what `list` shows, then what it shows with --all besides.
DisplayList LoadNumbered(Platform& platform) {
    DisplayList list = LoadList(platform);
    std::stable_partition(list.begin(), list.end(), &IsUsual);
    return list;
}

std::string NameOf(const std::wstring& instanceId) { return OneLine(String(instanceId)); }
std::string NameOf(const Display& display) { return NameOf(display.InstanceId); }

// The place in `LoadNumbered` that a word means; nothing if it is no number.
std::optional<std::size_t> NumberOf(const std::string& word) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
    return number;
}

std::wstring InstanceIdOf(Platform& platform, const std::string& word) {
    return UpperAscii(platform.InstanceIdOf(String(std::string_view(word)).ToWide()));
}

// The display that a word means: its number, its instance ID, or the system's other name for it.
Display FindDisplay(Platform& platform, const std::string& word) {
    const DisplayList list = LoadNumbered(platform);
    if (const std::optional<std::size_t> number = NumberOf(word)) {
        if (*number < 1 || *number > list.size()) throw Failure(word, "no display of this number");
        return list[*number - 1];
    }
    const std::wstring id = InstanceIdOf(platform, word);
    for (const Display& display : list) {
        if (display.InstanceId == id) return display;
    }
    // One that no list has, such as a connector with nothing on it.
    Display display;
    if (!display.Load(platform, id)) throw Failure(word, "no such display");
    SettleData(display);
    return display;
}

int RunList(const Arguments& arguments, const Console& console) {
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    int number = 0;
    for (const Display& display : LoadNumbered(*platform)) {
        ++number;
        if (!IsUsual(display) && !arguments.Has("--all")) break;
        console.out << number << '\t' << OneLine(GetDisplayRow(display)) << '\t' << NameOf(display) << '\n';
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

// Bytes equal to those shown are stored all the same: it was asked for, and what the store holds may be another thing
// (no override, or one too broken to be read).
int RunWrite(const Arguments& arguments, const Console& console) {
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    Display display = FindDisplay(*platform, arguments.Words()[0]);
    const std::string& file = arguments.Words()[1];
    const ImportedFile imported = ReadImportedFile(file, console);
    if (imported.HasLost() && !arguments.Has("--force")) {
        throw Failure(file, LossTexts(imported).back() + "; --force stores the rest");
    }
    const Edid edid(static_cast<const EdidFields&>(imported.edid));
    const Bytes bytes = edid.GetBytes();
    if (bytes.IsEmpty()) throw Failure(file, "the EDID can't be written");
    if (!display.SetData(bytes) || !display.SaveOverride(*platform))
        throw Failure(NameOf(display), "the store refused");
    if (arguments.Has("--dry-run")) return Success;
    console.out << "stored " << bytes.Size() << " bytes as the override of " << NameOf(display) << "\n";
    return Success;
}

void ResetNamed(Platform& platform, const std::string& word, std::vector<ResetOutcome>& outcomes) {
    const std::wstring id = NumberOf(word) ? FindDisplay(platform, word).InstanceId : InstanceIdOf(platform, word);
    outcomes.push_back(ResetOverride(platform, id));
    outcomes.back().InstanceId = id;
}

int RunReset(const Arguments& arguments, const Console& console) {
    const bool all = arguments.Has("--all");
    const std::unique_ptr<Platform> platform = OpenStore(arguments, console);
    std::vector<ResetOutcome> outcomes;
    if (!all) {
        ResetNamed(*platform, arguments.Words()[0], outcomes);
    } else if (!ResetAllOverrides(*platform, outcomes)) {
        throw Failure("the displays can't be loaded");
    }
    int status = Success;
    for (const ResetOutcome& outcome : outcomes) {
        const std::string name = outcome.InstanceId.empty() ? "a display without a name" : NameOf(outcome.InstanceId);
        const bool isRemoved = outcome.Result == ResetResult::Removed && !arguments.Has("--dry-run");
        if (isRemoved) console.out << "removed the override of " << name << "\n";
        if (outcome.Result == ResetResult::NothingThere && !all) console.out << name << " has no override\n";
        if (outcome.Result != ResetResult::Failed) continue;
        console.err << ProgramName << ": " << name << ": " << outcome.Reason << "\n";
        status = Refused;
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
const Command WriteCommand{"write",
                           {DisplayWord, FileWord},
                           {StoreOption,
                            {"--force", nullptr, "a file that lost blocks on reading, too"},
                            {"--now", nullptr, "on Linux: in the running kernel alone"},
                            {"--lasting", nullptr, "on Linux: for every start alone"},
                            DryRunOption},
                           "stores an EDID as the override of a display",
                           "1 monitor.bin",
                           &RunWrite};
const Command ResetCommand{"reset",
                           {DisplayWord},
                           {{"--all", nullptr, "of every display on record"}, StoreOption, DryRunOption},
                           "takes the override off a display, also a broken one",
                           "--all",
                           &RunReset,
                           "--all"};

}  // namespace VNT::Cli

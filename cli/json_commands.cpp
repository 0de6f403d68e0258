#include <iostream>

#include "cli/edid_files.h"
#include "cli/words.h"
#include "json/difference.h"
#include "json/edid_json.h"
#include "json/schema.h"

namespace VNT::Cli {

namespace {

Bytes BytesOf(const std::string& text) { return Bytes(std::vector<std::uint8_t>(text.begin(), text.end())); }

Json::Node ReadNode(const std::string& file, const Console& console) {
    const auto node = Json::NodeOfEdid(ReadImportedFile(file, console).bytes);
    if (!node) throw Failure(file, "is no EDID");
    return *node;
}

int RunJson(const Arguments& arguments, const Console& console) {
    const auto& words = arguments.Words();
    WriteOut(BytesOf(Json::Print(ReadNode(words[0], console))), words.size() > 1 ? words[1] : "-", console);
    return Success;
}

int RunBuild(const Arguments& arguments, const Console& console) {
    const auto& words = arguments.Words();
    const Bytes text = ReadFileBytes(words[0], console).bytes;
    Json::Building building;
    const Bytes bytes = BuildJson(text, words[0], building);
    for (const std::string& warning : building.warnings)
        console.err << "vantelle-cli: " << words[0] << ": " << warning << "\n";
    if (arguments.Has("--strict") && !building.warnings.empty())
        throw Failure(words[0], "holds what no sound EDID does");
    const FileFormat format = ChooseFormat(arguments, words[1]);
    Edid edid;
    if (format == FileFormat::Bin) {
        WriteOut(bytes, words[1], console);
    } else if (edid.Read(bytes)) {
        ExportFile(edid, format, words[1], console);
    } else {
        throw Failure(words[0], "is no EDID");
    }
    return Success;
}

int RunDiff(const Arguments& arguments, const Console& console) {
    const auto& words = arguments.Words();
    const std::vector<Json::Change> changes = Json::Compare(ReadNode(words[0], console), ReadNode(words[1], console));
    if (arguments.Has("--json")) {
        console.out << Json::Print(Json::NodeOfChanges(changes));
    } else {
        for (const Json::Change& change : changes) console.out << Json::Describe(change) << "\n";
    }
    return changes.empty() ? Success : Negative;
}

int RunSchema(const Arguments&, const Console& console) {
    console.out << Json::Print(Json::SchemaOfEdid());
    return Success;
}

}  // namespace

extern const Command SchemaCommand;
const Command SchemaCommand{"schema",  {}, {}, "prints the JSON Schema of an EDID as JSON", "> edid.schema.json",
                            &RunSchema};
extern const Command JsonCommand, BuildCommand, DiffCommand;
const Command JsonCommand{"json",
                          {FileWord, {"[OUT]", "the file to write, in the place of standard output"}},
                          {},
                          "prints the whole of an EDID as JSON",
                          "monitor.bin monitor.json",
                          &RunJson};
const Command BuildCommand{"build",
                           {{"JSON", "an EDID as JSON; - is standard input"}, OutWord},
                           {FormatOption, {"--strict", nullptr, "refuse what no sound EDID holds"}},
                           "makes the EDID that JSON describes",
                           "monitor.json monitor.bin",
                           &RunBuild};
const Command DiffCommand{"diff",
                          {{"A", "an EDID"}, {"B", "another one"}},
                          {{"--json", nullptr, "print the differences as JSON"}},
                          "tells what differs between two EDIDs",
                          "before.bin after.bin",
                          &RunDiff};

}  // namespace VNT::Cli

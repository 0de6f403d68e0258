#include "store/linux/display_records.h"

#include <algorithm>

#include "store/source.h"

namespace VNT::Linux {

namespace {

std::string Exchanged(std::string text, char from, char to) {
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

std::string Folder() { return std::string(StateFolder) + "/displays"; }
std::string FolderOf(const std::string& identity) { return Folder() + "/" + Exchanged(identity, '/', '#'); }

bool IsFirmwareFile(const std::string& file) {
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
               c == '_';
    };
    return file.starts_with("edid/") && std::all_of(file.begin() + 5, file.end(), isPlain);
}

DisplayRecord Read(const Host& host, const std::string& identity) {
    const std::string folder = FolderOf(identity) + "/";
    const auto read = [&](const char* name) { return host.Read(folder + name, Source::MostEdidBytes); };
    DisplayRecord record;
    const std::size_t slash = identity.rfind('/');
    record.device = identity.substr(0, slash == std::string::npos ? 0 : slash);
    record.name = slash == std::string::npos ? identity : identity.substr(slash + 1);
    record.reported = read("edid");
    record.now = read("now");
    record.before = read("before");
    record.file = ReadLine(host, folder + "file");
    if (IsFirmwareFile(record.file)) record.lasting = read("lasting");
    return record;
}

}  // namespace

std::vector<DisplayRecord> ReadRecords(const Host& host) {
    std::vector<DisplayRecord> records;
    for (const std::string& name : host.Names(Folder())) {
        const DisplayRecord record = Read(host, Exchanged(name, '#', '/'));
        if (IsConnectorName(record.name) && !record.IsEmpty()) records.push_back(record);
    }
    return records;
}

DisplayRecord ReadRecord(const Host& host, const Connector& connector) { return Read(host, connector.Identity()); }

void PlanRecord(Changes& changes, const DisplayRecord& record, bool first) {
    const std::string folder = FolderOf(record.Identity());
    const auto put = [&](const char* name, const Content& content) {
        const std::string path = folder + "/" + name;
        first ? changes.Record(path, content) : changes.Finish(path, content);
    };
    const bool isEmpty = record.IsEmpty();
    put("edid", isEmpty ? std::nullopt : record.reported);
    put("now", record.now);
    put("before", record.now ? record.before : std::nullopt);
    put("lasting", record.lasting);
    put("file", record.lasting ? Content(ToBytes(record.file + "\n")) : std::nullopt);
}

}  // namespace VNT::Linux

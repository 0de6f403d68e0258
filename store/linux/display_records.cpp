#include "store/linux/display_records.h"

#include <algorithm>

#include "store/source.h"
#include "store/write_file.h"

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
    record.earlierNow = read("earlier-now");
    record.earlierLasting = read("earlier-lasting");
    record.earlierFiles = ReadLines(host, folder + "earlier-files");
    std::erase_if(record.earlierFiles, [](const std::string& file) { return !IsFirmwareFile(file); });
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

bool HasRecord(const Host& host, const Connector& connector) { return host.IsFolder(FolderOf(connector.Identity())); }

std::string FindUnreadable(const Host& host, const Connector& connector) {
    const std::string folder = FolderOf(connector.Identity());
    for (const std::string& name : host.Names(folder)) {
        const std::string path = folder + "/" + name;
        if (IsFreshName(name)) continue;  // what a write that was ended has left
        if (!host.Read(path, Source::MostEdidBytes)) return path;
        if (name != "file" && name != "earlier-files") continue;
        const std::vector<std::string> files = ReadLines(host, path);
        if (files.empty() || !std::all_of(files.begin(), files.end(), IsFirmwareFile)) return path;
    }
    return {};
}

std::vector<DisplayRecord> DisplayRecord::WithEarlier() const {
    std::vector<DisplayRecord> all{*this};
    for (const std::string& earlier : earlierFiles) {
        all.push_back(*this);
        all.back().file = earlier;
        if (!all.back().lasting) all.back().lasting.emplace();
    }
    return all;
}

// What was earlier is remembered first, so that at no moment something of ours is there that no record tells of.
void PlanRecord(Changes& changes, const DisplayRecord& record) {
    const std::string folder = FolderOf(record.Identity()) + "/";
    std::string files;
    for (const std::string& file : record.earlierFiles) files += file + "\n";
    changes.Record(folder + "earlier-now", record.earlierNow);
    changes.Record(folder + "earlier-lasting", record.earlierLasting);
    changes.Record(folder + "earlier-files", files.empty() ? Content() : ToBytes(files));
    changes.Record(folder + "edid", record.IsEmpty() ? std::nullopt : record.reported);
    changes.Record(folder + "now", record.now);
    changes.Record(folder + "before", record.now ? record.before : std::nullopt);
    changes.Record(folder + "lasting", record.lasting);
    changes.Record(folder + "file", record.lasting ? Content(ToBytes(record.file + "\n")) : std::nullopt);
}

void PlanSettled(Changes& changes, const DisplayRecord& record) {
    const std::string folder = FolderOf(record.Identity()) + "/";
    for (const char* name : {"earlier-now", "earlier-lasting", "earlier-files"}) {
        changes.Finish(folder + name, std::nullopt);
    }
}

void PlanNoRecord(Changes& changes, const DisplayRecord& record) {
    const std::string folder = FolderOf(record.Identity()) + "/";
    for (const char* name :
         {"edid", "before", "now", "lasting", "file", "earlier-now", "earlier-lasting", "earlier-files"}) {
        changes.Finish(folder + name, std::nullopt);
    }
}

}  // namespace VNT::Linux

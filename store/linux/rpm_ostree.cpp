#include <algorithm>

#include "store/linux/boot_loader.h"

// rpm-ostree(1): /usr can't be written, each change is a new image of the system. Files for the kernel stand below
// /etc, which its parameter firmware_class.path tells it, and are tracked into the early image from there.
namespace VNT::Linux {

namespace {

constexpr char OwnFolder[] = "etc/firmware";
constexpr char PathParameter[] = "firmware_class.path=";
// Made where we added the parameter for the folder.
constexpr char AddedFile[] = "var/lib/vantelle/firmware-path";

std::optional<std::string> ReadLineOfKernel(Host& host) {
    int status = 0;
    std::string output;
    if (host.Run({"rpm-ostree", "kargs"}, status, &output) || status != 0) return std::nullopt;
    return output;
}

class RpmOstree : public BootLoader {
public:
    explicit RpmOstree(Host& host) : host_(host) {}

    std::string Name() const override { return "rpm-ostree"; }

    std::string FirmwareFolder() const override {
        const std::optional<std::string> line = ReadLineOfKernel(host_);
        const std::string path = line ? PathIn(*line) : std::string();
        if (path.empty()) return line ? OwnFolder : std::string();
        return path.starts_with("/etc/") ? path.substr(1) : std::string();  // only what is in /etc is tracked
    }

    bool Plan(const EntryChange& entries, bool, const KeptFiles&, Changes& changes) override {
        const std::optional<std::string> line = ReadLineOfKernel(host_);
        ValuePlace place;
        const Found found = line ? FindParameter(*line, place) : Found::Unclear;
        if (found == Found::Unclear) return false;
        const std::string value = found == Found::Yes ? line->substr(place.begin, place.end - place.begin) : "";
        const std::string wanted = AddEntries(RemoveEntries(value, entries.before), entries.after);
        Command call{"rpm-ostree", "kargs"};
        Command undo{"rpm-ostree", "kargs"};
        Replace(EdidParameter + std::string("="), value, wanted, call, undo);
        const std::string own = std::string("/") + OwnFolder;
        if (!entries.after.empty() && PathIn(*line).empty()) {
            Replace(PathParameter, "", own, call, undo);
            changes.Record(AddedFile, ToBytes("\n"));
        } else if (entries.after.empty() && host_.IsFile(AddedFile)) {
            if (PathIn(*line) == own) Replace(PathParameter, own, "", call, undo);
            changes.Finish(AddedFile, std::nullopt);
        }
        if (call.size() == 2) return true;
        changes.Run(call, undo, [&host = host_, wanted] {
            const std::optional<std::string> now = ReadLineOfKernel(host);
            ValuePlace at;
            if (!now || FindParameter(*now, at) == Found::Unclear) return false;
            return now->substr(at.begin, at.end - at.begin) == wanted;
        });
        return true;
    }

    bool PlanImage(const std::vector<std::string>& before, const std::vector<std::string>& after, bool isDue,
                   Changes& changes) override {
        const auto has = [](const std::vector<std::string>& files, const std::string& file) {
            return std::find(files.begin(), files.end(), file) != files.end();
        };
        Command call{"rpm-ostree", "initramfs-etc"};
        Command undo = call;
        for (const std::string& file : before) Track(!has(after, file), "--untrack=/", "--track=/", file, call, undo);
        for (const std::string& file : after) Track(!has(before, file), "--track=/", "--untrack=/", file, call, undo);
        if (call.size() == 2 && !isDue) return true;
        if (isDue) {
            // What was tracked before may not have been, where a call was ended in the midst; to track it twice is as
            // once.
            for (const std::string& file : after) {
                if (has(before, file)) call.push_back("--track=/" + file);
            }
            call.push_back("--force-sync");
            undo.push_back("--force-sync");
        }
        changes.Run(call, undo);
        return true;
    }

private:
    static std::string PathIn(const std::string& line) {
        const std::size_t at = (" " + line).rfind(" " + std::string(PathParameter));
        if (at == std::string::npos) return {};
        const std::size_t begin = at + std::string(PathParameter).size();
        return line.substr(begin, line.find_first_of(" \n", begin) - begin);
    }

    static void Replace(const std::string& name, const std::string& from, const std::string& to, Command& call,
                        Command& undo) {
        if (from == to) return;
        if (from.empty()) {
            call.push_back("--append=" + name + to);
            undo.push_back("--delete=" + name + to);
        } else if (to.empty()) {
            call.push_back("--delete=" + name + from);
            undo.push_back("--append=" + name + from);
        } else {
            call.push_back("--replace=" + name + from + "=" + to);
            undo.push_back("--replace=" + name + to + "=" + from);
        }
    }

    static void Track(bool isDue, const char* option, const char* inverse, const std::string& file, Command& call,
                      Command& undo) {
        if (!isDue) return;
        call.push_back(option + file);
        undo.push_back(inverse + file);
    }

    Host& host_;
};

}  // namespace

std::unique_ptr<BootLoader> FindRpmOstree(Host& host) {
    if (!FindProgram(host, "rpm-ostree")) return nullptr;
    return std::make_unique<RpmOstree>(host);
}

}  // namespace VNT::Linux

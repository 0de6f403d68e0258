#include "store/linux/lasting.h"

#include <algorithm>

#include "store/linux/early_image.h"

namespace VNT::Linux {

namespace {

std::vector<FirmwareEntry> EntriesOf(const std::vector<DisplayRecord>& records) {
    std::vector<FirmwareEntry> entries;
    for (const DisplayRecord& record : records) {
        if (record.lasting) entries.push_back(record.Entry());
    }
    return entries;
}

std::vector<std::string> FilesOf(const std::vector<DisplayRecord>& records, const std::string& folder) {
    std::vector<std::string> files;
    for (const DisplayRecord& record : records) {
        if (record.lasting) files.push_back(folder + "/" + record.file);
    }
    return files;
}

// False if a file to be written was changed by something else since; one to be removed stays then.
bool PlanFirmware(const KeptFiles& kept, const std::string& folder, const std::vector<DisplayRecord>& before,
                  const std::vector<DisplayRecord>& after, Changes& changes, LastingPlan& plan) {
    const std::vector<std::string> wanted = FilesOf(after, folder);
    for (const std::string& file : FilesOf(before, folder)) {
        if (std::find(wanted.begin(), wanted.end(), file) != wanted.end()) continue;
        const KeptFiles::Base base = kept.FindBaseOfOwn(file);
        if (base.isUnclear) {
            kept.Abandon(changes, file);
            plan.leavesFile = true;
            plan.advice.push_back("/" + file + ": was changed by something else since: left alone");
            continue;
        }
        kept.Plan(changes, file, base.content, base.content);
    }
    for (const DisplayRecord& record : after) {
        if (!record.lasting) continue;
        const std::string file = folder + "/" + record.file;
        const KeptFiles::Base base = kept.FindBaseOfOwn(file);
        if (base.isUnclear) return false;
        kept.Plan(changes, file, base.content, record.lasting);
    }
    return true;
}

}  // namespace

LastingPlan PlanLasting(Host& host, const std::vector<DisplayRecord>& before, const std::vector<DisplayRecord>& after,
                        bool isDue, Changes& changes) {
    LastingPlan plan;
    const EntryChange entries{EntriesOf(before), EntriesOf(after)};
    const bool isChange = std::any_of(entries.before.begin(), entries.before.end(), [&](const FirmwareEntry& entry) {
        return std::find(entries.after.begin(), entries.after.end(), entry) == entries.after.end();
    });
    const KeptFiles kept(host);
    const std::unique_ptr<BootLoader> loader = FindBootLoader(host);
    const std::string folder = loader ? loader->FirmwareFolder() : UsualFirmwareFolder(host);
    const std::string parameter = std::string(EdidParameter) + "=" + AddEntries("", entries.after);
    if (folder.empty()) {
        plan.advice = {"this system has no folder for firmware files that this program knows; to be set by hand:",
                       parameter};
        plan.losesOwn = plan.isBlocked = isChange;
        return plan;
    }
    const int count = changes.Count();
    if (!PlanFirmware(kept, folder, before, after, changes, plan)) {
        plan.advice = {"a firmware file below /" + folder + "/edid was changed by something else since: left alone"};
        plan.isBlocked = true;
        return plan;
    }
    const std::vector<std::string> files = FilesOf(after, folder);
    if (loader && loader->PlanImage(FilesOf(before, folder), files, isDue || changes.Count() > count, changes)) {
        // Done by the loader.
    } else if (const ImageMaker maker = FindImageMaker(host); PlanImage(maker, host, kept, files, changes)) {
        isDue = isDue || changes.Count() > count;
        if (isDue && !(loader && loader->MakesImages())) changes.Run(MakeImages(maker), MakeImages(maker));
    } else if (!files.empty()) {
        for (const std::string& file : files) {
            plan.advice.push_back("to be put into the early image by hand, if the system has one: /" + file);
        }
    }
    plan.isComplete = loader && loader->Plan(entries, isDue, kept, changes);
    plan.isBlocked = loader && !plan.isComplete;
    plan.losesOwn = plan.isBlocked && isChange;
    if (!plan.isComplete) {
        plan.advice.push_back(entries.after.empty() ? "to be taken off the kernel's command line by hand: entries of " +
                                                          std::string(EdidParameter)
                                                    : "to be set on the kernel's command line by hand: " + parameter);
    }
    const std::optional<Bytes> live = host.Read(LiveParameter);
    plan.hasValue = live.has_value();
    const std::string line = live ? ToText(*live) : std::string();
    const std::string value = line.substr(0, line.find('\n'));
    plan.value = AddEntries(RemoveEntries(value == "(null)" ? "" : value, entries.before), entries.after);
    return plan;
}

}  // namespace VNT::Linux

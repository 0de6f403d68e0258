#include "store/linux/overrides.h"

#include <algorithm>
#include <cctype>

#include "model/core/text.h"
#include "model/edid/edid.h"

namespace VNT::Linux {

namespace {

constexpr char LockFile[] = "run/vantelle.lock";
// There while what makes images and the loader's settings may not have run.
constexpr char PendingFile[] = "var/lib/vantelle/pending";
constexpr char DebugFolder[] = "sys/kernel/debug";

std::string SizeText(const Bytes& bytes) { return std::to_string(bytes.Size()) + " bytes"; }

std::string FirmwareName(const Bytes& bytes, const std::string& connector) {
    Edid edid;
    edid.Read(bytes);
    const EdidIdentity identity = edid.GetIdentity();
    std::string name = identity.vendorId.ToUtf8() + NumberText(identity.productId, 16, 4, true).ToUtf8();
    for (char& c : name) {
        if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
    }
    return "edid/" + name + "-" + connector + ".bin";
}

// Where two EDIDs part, in words.
std::string DifferenceText(const Bytes& reported, const Bytes& written) {
    if (reported.IsEmpty()) return "the kernel reports no EDID";
    const int least = std::min(reported.Size(), written.Size());
    const auto [at, other] =
        std::mismatch(reported.View().begin(), reported.View().begin() + least, written.View().begin());
    return "the kernel reports " + SizeText(reported) + " that differ from byte " +
           std::to_string(at - reported.View().begin()) + " on";
}

Content NonEmpty(const std::optional<Bytes>& bytes) { return bytes && !bytes->IsEmpty() ? bytes : std::nullopt; }

Bytes BytesForOverride(const Content& content) { return content ? *content : ToBytes("reset"); }

}  // namespace

// What a change of a display's record comes to.
struct Overrides::Plan {
    LastingPlan lasting;
    bool changesLasting = false;
};

bool Overrides::Fail(const Connector& connector, const std::string& why) const {
    report_.wrong(connector.FullName() + ": " + why);
    return false;
}

Bytes Overrides::Get(const Connector& connector) const {
    const DisplayRecord record = ReadRecord(host_, connector);
    // An override in the running kernel is gone after a start, its record is not.
    const std::string file = OverrideFile(host_, connector);
    const Bytes inUse = file.empty() ? ReadEdid(host_, connector) : host_.Read(file).value_or(Bytes());
    if (record.now == inUse || record.earlierNow == inUse) return inUse;
    return record.lasting.value_or(Bytes());
}

bool Overrides::IsOnRecord(const Connector& connector) const {
    return HasRecord(host_, connector) || host_.IsFile(PendingFile);
}

Bytes Overrides::GetReported(const Connector& connector) const {
    const Bytes shown = ReadEdid(host_, connector);
    const DisplayRecord record = ReadRecord(host_, connector);
    return record.IsOurs(shown) && record.reported ? *record.reported : shown;
}

bool Overrides::MayBeChanged(const Connector& connector) const {
    const std::string unreadable = FindUnreadable(host_, connector);
    if (unreadable.empty()) return true;
    return Fail(connector, "/" + unreadable +
                               " can't be read, and it tells what of this program's is in place: nothing was changed");
}

bool Overrides::IsNameShared(const Connector& connector) const {
    const std::vector<Connector> all = FindConnectors(host_);
    return std::any_of(all.begin(), all.end(), [&](const Connector& other) {
        return other.name == connector.name && other.Identity() != connector.Identity();
    });
}

Overrides::Plan Overrides::MakePlan(const DisplayRecord& from, const DisplayRecord& to, Changes& changes) {
    Plan plan;
    std::vector<DisplayRecord> before;
    std::vector<DisplayRecord> after;
    std::vector<DisplayRecord> replaced;
    for (const DisplayRecord& record : ReadRecords(host_)) {
        if (record.Identity() == from.Identity()) continue;
        for (const DisplayRecord& each : record.WithEarlier()) before.push_back(each);
        // A card that stood elsewhere in the machine had a connector of this name: the parameter knows but one.
        const bool isReplaced = to.lasting && record.lasting && record.name == to.name;
        (isReplaced ? replaced : after).push_back(record);
    }
    for (const DisplayRecord& each : from.WithEarlier()) before.push_back(each);
    after.push_back(to);
    if (to.IsEmpty()) replaced.push_back(from);
    if (!to.IsEmpty()) PlanRecord(changes, to);
    const bool isPending = host_.IsFile(PendingFile);
    plan.changesLasting = isPending || from.lasting || to.lasting || !from.earlierFiles.empty();
    const bool isSame = from.lasting == to.lasting && from.file == to.file && from.earlierFiles.empty();
    if (isSame && !isPending && options_.duration == Duration::Now) plan.changesLasting = false;
    const int count = changes.Count();
    if (plan.changesLasting) plan.lasting = PlanLasting(host_, before, after, isPending, changes);
    // What tells of the rest is forgotten last.
    for (const DisplayRecord& record : replaced) PlanNoRecord(changes, record);
    if (!to.IsEmpty()) PlanSettled(changes, to);
    if (changes.Count() > count) {
        changes.Record(PendingFile, ToBytes("\n"));
        changes.Finish(PendingFile, std::nullopt);
    }
    return plan;
}

bool Overrides::MayCarryOut(const Changes& changes, const std::vector<std::string>& attributes,
                            const std::shared_ptr<void>& lock) const {
    std::vector<std::string> missing = changes.MissingRights();
    for (const std::string& path : attributes) {
        if (!path.empty() && !host_.MayWrite(path)) missing.push_back("to write /" + path);
    }
    for (const std::string& right : missing) report_.wrong("the right is missing " + right);
    if (!missing.empty()) {
        report_.wrong("nothing was changed; root has these rights");
        return false;
    }
    if (lock != nullptr) return true;
    report_.wrong(std::string("/") + LockFile + ": could not be locked; nothing was changed");
    return false;
}

bool Overrides::SetAttribute(const std::string& path, const Bytes& bytes, const std::string& what) const {
    const std::error_code error = host_.WriteAttribute(path, bytes);
    if (!error) {
        report_.did("wrote " + what + " to /" + path);
        return true;
    }
    report_.wrong("/" + path + ": the kernel did not take " + what + ": " + error.message());
    return false;
}

bool Overrides::SetLive(const std::string& value) const {
    if (!host_.MayWrite(LiveParameter) || ReadLine(host_, LiveParameter) == value) return true;
    return SetAttribute(LiveParameter, ToBytes(value + "\n"), value.empty() ? "nothing" : value);
}

void Overrides::PlanLive(const Plan& plan, Changes& changes) const {
    if (!plan.changesLasting || !plan.lasting.hasValue) return;
    const std::string before = ReadLine(host_, LiveParameter);
    changes.Act([this, value = plan.lasting.value] { SetLive(value); }, [this, before] { return SetLive(before); });
}

void Overrides::Probe(const Connector& connector) const {
    if (connector.folder.empty()) return;
    SetAttribute(connector.folder + "/status", ToBytes("detect"), "detect");
}

// The kernel compares but the beginning of a connector's name.
void Overrides::TellNamesakes(const Connector& connector, const Plan& plan, const DisplayRecord& record) const {
    if (!plan.changesLasting || !record.lasting) return;
    for (const Connector& other : FindConnectors(host_)) {
        if (other.name == connector.name || FileFor(plan.lasting.value, other.name) != record.file) continue;
        report_.wrong(other.FullName() + ": gets this override too, as its name begins with " + connector.name +
                      ", unless it has one of its own");
    }
}

bool Overrides::TellState(const Connector& connector, const Bytes& bytes, bool isLasting) const {
    const Bytes reported = ReadEdid(host_, connector);
    if (reported == bytes) {
        report_.did(connector.FullName() + ": in use" + (isLasting ? ", after the next start too" : ""));
        return true;
    }
    if (isLasting) {
        report_.did(connector.FullName() + ": in use after the next start");
        return true;
    }
    return Fail(connector, "not in use: " + DifferenceText(reported, bytes));
}

bool Overrides::Set(const Connector& connector, const Bytes& bytes) {
    const std::shared_ptr<void> lock = options_.dryRun ? nullptr : host_.Lock(LockFile);
    if (!MayBeChanged(connector)) return false;
    const DisplayRecord from = ReadRecord(host_, connector);
    DisplayRecord to = from;
    if (!to.reported) to.reported = GetReported(connector);

    const bool mayBeNow = options_.duration != Duration::Lasting;
    const std::string overrideFile = mayBeNow ? OverrideFile(host_, connector) : std::string();
    const bool isHidden = mayBeNow && overrideFile.empty() && !host_.MayWrite(DebugFolder);
    const Content inUse = overrideFile.empty() ? Content() : NonEmpty(host_.Read(overrideFile));
    if (!overrideFile.empty()) {
        const bool isOurs = inUse && (inUse == from.now || inUse == from.earlierNow);
        if (!isOurs) to.before = inUse;
        to.earlierNow = isOurs && inUse != bytes ? inUse : std::nullopt;
        to.now = bytes;
    } else if (options_.duration == Duration::Now && !isHidden) {
        return Fail(connector,
                    "the kernel offers no override for it: no edid_override below /sys/kernel/debug/dri (is "
                    "debugfs mounted there?)");
    }
    const bool isShared = options_.duration != Duration::Now && IsNameShared(connector);
    if (options_.duration != Duration::Now && !isShared) {
        to.lasting = bytes;
        to.file = FirmwareName(bytes, connector.name);
        if (from.lasting && from.lasting != bytes) to.earlierLasting = from.lasting;
        if (from.lasting) to.earlierFiles.push_back(from.file);
        std::erase(to.earlierFiles, to.file);
    }
    if (isShared) {
        Fail(connector, "another card has a connector of this name, and the kernel's parameter can't tell them apart");
        if (!to.now) return false;
    }

    Changes changes(host_, report_);
    const Plan plan = MakePlan(from, to, changes);
    if (plan.lasting.value.size() > MostParameterText)
        return Fail(connector, "the kernel's parameter would be too long");
    if (plan.lasting.losesOwn && !options_.dryRun) {
        for (const std::string& line : plan.lasting.advice) report_.wrong(line);
        return Fail(connector, "the override was not set: the one for every start can't be replaced");
    }
    std::vector<std::string> attributes{overrideFile, isHidden ? DebugFolder : ""};
    if (mayBeNow && !connector.folder.empty()) attributes.push_back(connector.folder + "/status");
    if (options_.dryRun) {
        changes.Tell();
        if (plan.changesLasting && plan.lasting.hasValue && ReadLine(host_, LiveParameter) != plan.lasting.value) {
            report_.did("would write " + plan.lasting.value + " to /" + LiveParameter);
        }
        if (!overrideFile.empty()) report_.did("would write " + SizeText(bytes) + " to /" + overrideFile);
        if (mayBeNow && !connector.folder.empty()) {
            report_.did("would write detect to /" + connector.folder + "/status");
        }
        for (const std::string& line : plan.lasting.advice) report_.did(line);
        return true;
    }
    if (!MayCarryOut(changes, attributes, lock)) return false;
    bool isTaken = overrideFile.empty() || inUse == bytes;
    const bool isWritten = !isTaken;
    const auto setOverride = [&] {
        isTaken = SetAttribute(overrideFile, bytes, SizeText(bytes));
        if (isTaken) return;
        DisplayRecord without = to;
        without.now = to.earlierNow ? to.earlierNow : from.now;
        without.before = from.before;
        without.earlierNow.reset();
        Changes corrections(host_, report_);
        PlanRecord(corrections, without);
        corrections.CarryOut();
    };
    const auto putBack = [&] {
        const Bytes back = BytesForOverride(inUse);
        return !isTaken || SetAttribute(overrideFile, back, inUse ? SizeText(back) : "reset");
    };
    PlanLive(plan, changes);
    if (!isTaken) changes.Act(setOverride, putBack);
    if (!changes.CarryOut()) return Fail(connector, "the override was not set");
    if (!isTaken && (!to.lasting || options_.duration == Duration::Now))
        return Fail(connector, "the override was not set");
    // Its EDID is another at once, its modes are those of the last probe.
    if (mayBeNow && (isWritten || ReadEdid(host_, connector) != bytes)) Probe(connector);
    for (const std::string& line : plan.lasting.advice) report_.wrong(line);
    TellNamesakes(connector, plan, to);
    return TellState(connector, bytes, plan.changesLasting && plan.lasting.isComplete && to.lasting == bytes);
}

bool Overrides::TakeOff(const Connector& connector) {
    const std::shared_ptr<void> lock = options_.dryRun ? nullptr : host_.Lock(LockFile);
    if (!MayBeChanged(connector)) return false;
    const DisplayRecord from = ReadRecord(host_, connector);
    const DisplayRecord to{from.device, from.name};
    Changes changes(host_, report_);
    if (from.IsEmpty() && !host_.IsFile(PendingFile)) {
        report_.did(connector.FullName() + ": nothing of this program's to take off");
        // But for a record that was never finished.
        PlanNoRecord(changes, to);
        return lock == nullptr || changes.CarryOut();
    }
    const Plan plan = MakePlan(from, to, changes);
    if (plan.lasting.isBlocked && !options_.dryRun) {
        for (const std::string& line : plan.lasting.advice) report_.wrong(line);
        return Fail(connector, "the override was not taken off");
    }

    const std::string overrideFile = OverrideFile(host_, connector);
    const Content inUse = overrideFile.empty() ? Content() : NonEmpty(host_.Read(overrideFile));
    const bool isInUse = inUse && (inUse == from.now || inUse == from.earlierNow);
    const bool isHidden = (from.now || from.earlierNow) && overrideFile.empty() && !host_.MayWrite(DebugFolder);
    const Bytes back = BytesForOverride(from.before);
    const std::string backText = from.before ? SizeText(back) : std::string("reset");
    std::vector<std::string> attributes{isInUse ? overrideFile : "", isHidden ? DebugFolder : ""};
    if (!connector.folder.empty()) attributes.push_back(connector.folder + "/status");
    if (options_.dryRun) {
        if (isInUse) report_.did("would write " + backText + " to /" + overrideFile);
        changes.Tell();
        if (!connector.folder.empty()) report_.did("would write detect to /" + connector.folder + "/status");
        for (const std::string& line : plan.lasting.advice) report_.did(line);
        return true;
    }
    if (!MayCarryOut(changes, attributes, lock)) return false;
    if (isInUse && !SetAttribute(overrideFile, back, backText))
        return Fail(connector, "the override was not taken off");
    PlanLive(plan, changes);
    bool isProbed = false;
    const auto probe = [&] {
        Probe(connector);
        isProbed = true;
    };
    changes.Act(probe, [] { return true; });
    if (!changes.CarryOut()) {
        if (isInUse && !SetAttribute(overrideFile, *inUse, SizeText(*inUse))) {
            Fail(connector, "left: the override for every start; that of the running kernel is off");
        }
        if (isProbed) Probe(connector);
        return Fail(connector, "the override was not taken off");
    }
    for (const std::string& line : plan.lasting.advice) report_.wrong(line);
    const Bytes shown = ReadEdid(host_, connector);
    const bool isShown = !shown.IsEmpty() && from.IsOurs(shown) && shown != from.reported;
    report_.did(connector.FullName() + (isShown ? ": taken off, but in use until the next start" : ": taken off"));
    return !plan.lasting.leavesFile;
}

}  // namespace VNT::Linux

#include "store/reset.h"

#include "store/display.h"
#include "store/registry_layout.h"
#include "store/save.h"
#include "store/source.h"
#include "store/texts.h"

namespace VNT {

namespace {

using SystemErrors::None;

// Each pass over child keys may leave every second one.
constexpr int MostPasses = 16;

ResetOutcome Failed(const char* reason) { return {{}, ResetResult::Failed, reason}; }

// FileNotFound if nothing of that name stands there.
SystemError FindOverride(RegistryKey& device) {
    std::shared_ptr<RegistryKey> key;
    return device.OpenKey(RegistryLayout::OverrideKey, KeyAccess::Read, key);
}

bool HasChildren(RegistryKey& device) {
    std::shared_ptr<RegistryKey> key;
    std::wstring child;
    return device.OpenKey(RegistryLayout::OverrideKey, KeyAccess::Read, key) == None && key->EnumKey(0, child) == None;
}

ResetOutcome ResetKey(RegistryKey& device) {
    if (FindOverride(device) == SystemErrors::FileNotFound) return {{}, ResetResult::NothingThere, {}};
    OverrideLeft left = DeleteOverride(device);
    for (int i = 0; i < MostPasses && left == OverrideLeft::None && HasChildren(device); ++i) {
        left = DeleteOverride(device);
    }
    switch (left) {
        case OverrideLeft::Values:
            return Failed("blocks of the override can't be deleted");
        case OverrideLeft::Locked:
            return Failed("the override can't be opened");
        case OverrideLeft::Link:
            return Failed("a link stands in the place of the override; it was not followed");
        case OverrideLeft::None:
            break;
    }
    if (HasChildren(device)) return Failed("keys below the override can't be deleted");
    if (device.Commit() != None) return Failed("the system did not take it");
    return {{}, ResetResult::Removed, {}};
}

// Of the set's current device.
ResetOutcome ResetDevice(DeviceSet& set) {
    if (const std::shared_ptr<RegistryKey> device = set.OpenHardwareKey(KeyAccess::Write)) return ResetKey(*device);
    if (set.LacksHardwareKey()) return {{}, ResetResult::NothingThere, {}};
    const std::shared_ptr<RegistryKey> device = set.OpenHardwareKey(KeyAccess::Read);
    const bool isThere = device == nullptr || FindOverride(*device) != SystemErrors::FileNotFound;
    return isThere ? Failed("its key can't be opened for writing") : ResetOutcome{{}, ResetResult::NothingThere, {}};
}

}  // namespace

ResetOutcome ResetOverride(Platform& platform, const std::wstring& instanceId) {
    StoreLock lock;
    const std::unique_ptr<DeviceSet> set = platform.Lock(lock) ? platform.OpenMonitorClass() : nullptr;
    if (set == nullptr) return Failed("the displays can't be loaded");
    for (int index = 0; index < Source::MostRecords && set->EnumDevice(index); ++index) {
        const std::optional<std::wstring> id = ReadInstanceId(*set);
        if (!id || UpperAscii(*id) != UpperAscii(instanceId)) continue;
        ResetOutcome outcome = ResetDevice(*set);
        outcome.InstanceId = UpperAscii(*id);
        return outcome;
    }
    return Failed("no such display");
}

bool ResetAllOverrides(Platform& platform, std::vector<ResetOutcome>& out) {
    out.clear();
    StoreLock lock;
    const std::unique_ptr<DeviceSet> set = platform.Lock(lock) ? platform.OpenMonitorClass() : nullptr;
    if (set == nullptr) return false;
    for (int index = 0; index < Source::MostRecords && set->EnumDevice(index); ++index) {
        out.push_back(ResetDevice(*set));
        out.back().InstanceId = UpperAscii(ReadInstanceId(*set).value_or(std::wstring()));
    }
    return true;
}

}  // namespace VNT

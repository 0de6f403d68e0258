#pragma once

#include <string>
#include <vector>

#include "store/platform.h"

namespace VNT {

enum class ResetResult { NothingThere, Removed, Failed };

// What became of the override of a device. Of one that is not there at all, or whose name can't be read, the identity
// is empty.
struct ResetOutcome {
    std::wstring InstanceId;
    ResetResult Result = ResetResult::Failed;
    std::string Reason;  // of a failure
};

// Takes off what stands as override of a device on record, whether it is listed or not, whether what stands there can
// be read as an EDID or not. Nothing else of the device is touched.
ResetOutcome ResetOverride(Platform& platform, const std::wstring& instanceId);
// The same of every device on record. False only if the monitor class can't be opened.
bool ResetAllOverrides(Platform& platform, std::vector<ResetOutcome>& out);

}  // namespace VNT

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/records.h"

namespace VNT {

// The steps that lead to the monitors, in their order.
enum class WmiStep {
    Initialize,
    InitializeSecurity,
    CreateLocator,
    ConnectServer,
    SetProxyBlanket,
    GetClass,
    GetMethod,
    SpawnInstance,
    ExecQuery,
};

enum class WmiNext { Object, End, Failed };

// A connection to WMI: each operation is one call of it, on what the calls before have left. What it got is released
// with it.
class WmiConnection {
public:
    virtual ~WmiConnection() = default;

    virtual bool Do(WmiStep step) = 0;
    virtual WmiNext Next() = 0;  // makes the next monitor the current one
    virtual bool GetPath() = 0;  // of the current monitor, for ExecMethod
    virtual bool GetInstanceName(std::wstring& out) = 0;
    virtual bool PutBlockId(std::uint8_t block) = 0;
    virtual bool ExecMethod() = 0;
    virtual bool GetBlockContent(Bytes& out) = 0;
};

// What each active monitor gives, block by block. False on a failure, which `showError` gets told.
bool ReadWmiMonitors(WmiConnection& wmi, const std::function<void(const wchar_t*)>& showError,
                     std::vector<WmiMonitorRecord>& out);

}  // namespace VNT

#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/platform.h"

namespace VNT {

// Entries by name, in the order in which they were added. Names are case-insensitive, as the registry's are.
template <class T>
class TNamedList {
public:
    T* Find(const std::wstring& name);  // null if there is none
    T& Put(const std::wstring& name, T entry);
    bool Erase(const std::wstring& name);
    const std::wstring* NameAt(int index) const;  // null past the end
    bool IsEmpty() const { return entries_.empty(); }
    bool operator==(const TNamedList&) const = default;

private:
    auto Position(const std::wstring& name);
    std::vector<std::pair<std::wstring, T>> entries_;
};

struct MemoryKey;
using MemoryKeyPointer = std::shared_ptr<MemoryKey>;

// A key of the registry in memory.
struct MemoryKey {
    TNamedList<Bytes> values;
    TNamedList<MemoryKeyPointer> keys;
};

struct MemoryDevice {
    std::wstring instanceId;
    bool present = false;
    std::optional<std::wstring> driverKey = std::nullopt;
    std::optional<std::wstring> description = std::nullopt;
    MemoryKeyPointer hardwareKey = std::make_shared<MemoryKey>();  // null: the device has none
};

// The door for tests: a machine in memory. Every call is counted and logged by its name, may be told to fail, and keeps
// what the system keeps: access rights, sizes, indices that shift when something is deleted.
class MemoryPlatform : public Platform {
public:
    std::deque<MemoryDevice> devices;
    // Without a list the source fails.
    std::optional<std::vector<WmiMonitorRecord>> wmiMonitors;
    std::optional<std::vector<DisplayDeviceRecord>> displayDevices = std::vector<DisplayDeviceRecord>();
    std::optional<std::vector<WindowsGpuDisplay>> gpuDisplays;
    bool endless = false;  // enumerations give their first entry again and again
    int endsAt = 0;        // from this call on all fail: the program was ended there

    // The count-th call from now on fails (1: the next); every call of that name fails. Each is off at first.
    void FailCall(int count, SystemError error = SystemErrors::AccessDenied);
    void FailEach(const std::string& name, SystemError error = SystemErrors::AccessDenied);
    void ClearFaults();

    const std::vector<std::string_view>& Log() const { return log_; }  // the names of all calls so far
    int Count(std::string_view name) const;
    int OpenHandles() const { return openHandles_; }  // device sets and keys that are alive

    std::unique_ptr<DeviceSet> OpenMonitorClass() override;
    std::unique_ptr<DeviceSet> OpenMonitor(const std::wstring& instanceId, bool presentOnly) override;
    bool ReadWmiMonitors(std::vector<WmiMonitorRecord>& out) override;
    bool ReadDisplayDevices(std::vector<DisplayDeviceRecord>& out) override;
    bool ReadGpuDisplays(std::vector<WindowsGpuDisplay>& out) override;

private:
    class Handle;
    class OpenSet;
    class OpenedKey;

    SystemError Enter(std::string_view name);  // logs the call; the error that it is told to fail with

    std::vector<std::string_view> log_;  // literals: an enumeration without an end makes millions of calls
    std::size_t failAt_ = 0;
    SystemError failAtError_ = SystemErrors::None;
    std::map<std::string, SystemError, std::less<>> failEach_;
    int openHandles_ = 0;
};

}  // namespace VNT

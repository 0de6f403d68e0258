#include "store/nvidia_display.h"

#include <algorithm>

#include "model/core/layout_made.h"
#include "model/core/text_string.h"
#include "store/source.h"

namespace VNT {

namespace {

constexpr std::uint32_t SpeedIsInKhz = 65535;  // i2cSpeed, of old; the other field holds
constexpr std::uint32_t SpeedKhz = 2;          // the driver's number for 10 kHz

template <class Function>
bool FindCall(Nvapi::QueryInterface* query, Nvapi::Id id, Function*& out) {
    out = reinterpret_cast<Function*>(query(id));
    return out != nullptr;
}

}  // namespace

bool NvidiaDriver::FindCalls(const DriverLibrary& library, Calls& calls) {
    Nvapi::QueryInterface* query = nullptr;
    return library.Find(Nvapi::QueryInterfaceName, query) && FindCall(query, Nvapi::InitializeId, calls.Initialize) &&
           FindCall(query, Nvapi::EnumPhysicalGpusId, calls.EnumPhysicalGpus) &&
           FindCall(query, Nvapi::EnumDisplayHandleId, calls.EnumDisplayHandle) &&
           FindCall(query, Nvapi::GetDisplayNameId, calls.GetDisplayName) &&
           FindCall(query, Nvapi::GetDisplayIdId, calls.GetDisplayId) &&
           FindCall(query, Nvapi::GetConnectedDisplayIdsId, calls.GetConnectedDisplayIds) &&
           FindCall(query, Nvapi::GetGpuAndOutputIdId, calls.GetGpuAndOutputId) &&
           FindCall(query, Nvapi::GetEdidId, calls.GetEdid) && FindCall(query, Nvapi::I2cReadId, calls.I2cRead) &&
           FindCall(query, Nvapi::I2cWriteId, calls.I2cWrite) && FindCall(query, Nvapi::UnloadId, calls.Unload);
}

bool NvidiaDriver::Start(const Calls& calls) { return calls.Initialize() == 0; }

NvidiaDriver::~NvidiaDriver() { Call().Unload(); }

std::map<std::uint32_t, std::wstring> NvidiaDriver::GetDisplayNames() const {
    std::map<std::uint32_t, std::wstring> names;
    Nvapi::DisplayHandle display = 0;
    for (std::uint32_t index = 0; index < Source::MostRecords && Call().EnumDisplayHandle(index, &display) == 0;
         ++index) {
        char name[Nvapi::DisplayNameSize + 1] = {};  // one more than the driver fills: it may leave out the end
        std::uint32_t id = 0;
        if (Call().GetDisplayName(display, name) != 0) continue;
        if (Call().GetDisplayId(name, &id) != 0) continue;
        names[id] = String(name).ToWide();
    }
    return names;
}

bool NvidiaDriver::GetGpus(std::vector<Nvapi::GpuHandle>& out) const {
    out.assign(Nvapi::MostGpus, 0);
    std::uint32_t count = 0;
    if (Call().EnumPhysicalGpus(out.data(), &count) != 0) return false;
    out.resize(std::min<std::size_t>(count, out.size()));
    return true;
}

std::vector<std::uint32_t> NvidiaDriver::GetConnectedDisplays(Nvapi::GpuHandle gpu) const {
    std::uint32_t count = 0;
    if (Call().GetConnectedDisplayIds(gpu, nullptr, &count, 0) != 0) return {};
    if (count == 0 || count > Source::MostRecords) return {};
    std::vector<Nvapi::DisplayIds> entries(count);
    entries[0].version = Nvapi::DisplayIdsVersion;
    if (Call().GetConnectedDisplayIds(gpu, entries.data(), &count, 0) != 0) return {};
    entries.resize(std::min<std::size_t>(count, entries.size()));
    std::vector<std::uint32_t> ids;
    ids.reserve(entries.size());
    for (const Nvapi::DisplayIds& entry : entries) ids.push_back(entry.displayId);
    return ids;
}

bool WindowsNvidiaGpuDisplay::ReadEdidPart(std::uint32_t offset, Nvapi::Edid& out) const {
    out = {};
    out.version = Nvapi::EdidVersion;
    out.offset = offset;
    return driver_->Call().GetEdid(record_.Handle1, record_.Handle2, &out) == 0;
}

bool WindowsNvidiaGpuDisplay::FindOutput() {
    Nvapi::GpuHandle gpu = 0;
    std::uint32_t output = 0;
    if (driver_->Call().GetGpuAndOutputId(record_.Handle2, &gpu, &output) != 0) return false;
    record_.Handle1 = static_cast<std::uint32_t>(gpu);
    record_.Handle2 = output;
    return true;
}

bool WindowsNvidiaGpuDisplay::ReadEdid() {
    Nvapi::Edid part;
    if (!ReadEdidPart(0, part) && !(FindOutput() && ReadEdidPart(0, part))) return false;
    const std::int64_t size = part.sizeofEDID;
    if (size < EdidBlockSize) return false;
    constexpr std::int64_t partSize = sizeof(part.EDID_Data);
    const ByteRange buffer(part.EDID_Data, sizeof(part.EDID_Data));
    record_.EdidData = Bytes();
    Source::AppendEdid(record_.EdidData, buffer, size);
    for (std::int64_t offset = partSize; offset < std::min<std::int64_t>(size, Source::MostEdidBytes);
         offset += partSize) {
        if (!ReadEdidPart(static_cast<std::uint32_t>(offset), part)) break;
        Source::AppendEdid(record_.EdidData, buffer, size - offset);
    }
    return true;
}

Nvapi::I2cInfo WindowsNvidiaGpuDisplay::MakeI2cInfo(std::uint8_t address, ByteRange data) const {
    Nvapi::I2cInfo info = {};
    info.version = Nvapi::I2cInfoVersion;
    info.displayMask = record_.Handle2;
    info.bIsDDCPort = 1;
    info.i2cDevAddress = address;
    info.pbData = data.data;
    info.cbSize = static_cast<std::uint32_t>(data.size);
    info.i2cSpeed = SpeedIsInKhz;
    info.i2cSpeedKhz = SpeedKhz;
    return info;
}

bool WindowsNvidiaGpuDisplay::ReadI2c(std::uint8_t address, ByteRange out) const {
    Nvapi::I2cInfo info = MakeI2cInfo(address, out);
    return driver_->Call().I2cRead(record_.Handle1, &info) == 0;
}

bool WindowsNvidiaGpuDisplay::WriteI2c(ByteRange data) const {
    if (data.size == 0) return false;
    const std::uint8_t address = data.ByteAt(0);
    data.Drop(1);
    Nvapi::I2cInfo info = MakeI2cInfo(address, data);
    return driver_->Call().I2cWrite(record_.Handle1, &info) == 0;
}

bool ReadNvidia(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out) {
    const std::shared_ptr<const NvidiaDriver> driver = NvidiaDriver::Acquire(load);
    if (driver == nullptr) return false;
    const std::map<std::uint32_t, std::wstring> names = driver->GetDisplayNames();
    std::vector<Nvapi::GpuHandle> gpus;
    if (!driver->GetGpus(gpus)) return false;
    for (const Nvapi::GpuHandle gpu : gpus) {
        for (const std::uint32_t id : driver->GetConnectedDisplays(gpu)) {
            GpuDisplayRecord record;
            record.Handle1 = static_cast<std::uint32_t>(gpu);
            record.Handle2 = id;
            const auto name = names.find(id);
            if (name != names.end()) record.DisplayName = name->second;
            auto display = std::make_unique<WindowsNvidiaGpuDisplay>(driver, std::move(record));
            if (display->ReadEdid()) out.emplace_back(std::move(display));
        }
    }
    return true;
}

}  // namespace VNT

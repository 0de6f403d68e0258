#include "store/amd_display.h"

#include <cstdlib>
#include <map>
#include <set>
#include <string>

#include "model/core/layout_made.h"
#include "model/core/text_string.h"
#include "store/source.h"

namespace VNT {

namespace {

// The buffers that the library has asked for, with their sizes: it is believed about one only as far as that reaches.
// It calls without a context, so there is one table of them.
std::map<void*, std::size_t>& Buffers() {
    static std::map<void*, std::size_t> buffers;
    return buffers;
}

void* VANTELLE_ADL_CALLBACK AllocateBuffer(int size) {
    if (size <= 0) return nullptr;
    void* buffer = std::calloc(static_cast<std::size_t>(size), 1);
    if (buffer != nullptr) Buffers()[buffer] = static_cast<std::size_t>(size);
    return buffer;
}

void FreeBuffer(void* buffer) {
    if (Buffers().erase(buffer) != 0) std::free(buffer);
}

std::size_t BufferSize(void* buffer) {
    const auto found = Buffers().find(buffer);
    return found != Buffers().end() ? found->second : 0;
}

using AdapterNames = std::map<int, std::wstring>;

GpuDisplayRecord MakeRecord(const AmdDriver& driver, int adapter, const Adl::DisplayInfo& display,
                            const AdapterNames& names) {
    GpuDisplayRecord record;
    record.Handle1 = static_cast<std::uint32_t>(adapter);
    record.Handle2 = static_cast<std::uint32_t>(display.iDisplayLogicalIndex);
    const int logical = display.iDisplayLogicalAdapterIndex;
    const auto name = names.find(logical < 0 ? adapter : logical);
    if (name != names.end() && (logical < 0 || driver.IsActive(logical))) record.DisplayName = name->second;
    return record;
}

}  // namespace

bool AmdDriver::FindCalls(const DriverLibrary& library, Calls& calls) {
    return library.Find("ADL_Main_Control_Create", calls.ADL_Main_Control_Create) &&
           library.Find("ADL_Adapter_NumberOfAdapters_Get", calls.ADL_Adapter_NumberOfAdapters_Get) &&
           library.Find("ADL_Adapter_AdapterInfo_Get", calls.ADL_Adapter_AdapterInfo_Get) &&
           library.Find("ADL_Display_NumberOfDisplays_Get", calls.ADL_Display_NumberOfDisplays_Get) &&
           library.Find("ADL_Display_DisplayInfo_Get", calls.ADL_Display_DisplayInfo_Get) &&
           library.Find("ADL_Adapter_Active_Get", calls.ADL_Adapter_Active_Get) &&
           library.Find("ADL_Display_EdidData_Get", calls.ADL_Display_EdidData_Get) &&
           library.Find("ADL_Display_DDCBlockAccess_Get", calls.ADL_Display_DDCBlockAccess_Get) &&
           library.Find("ADL_Main_Control_Destroy", calls.ADL_Main_Control_Destroy);
}

bool AmdDriver::Start(const Calls& calls) { return calls.ADL_Main_Control_Create(AllocateBuffer, 1) == 0; }

AmdDriver::~AmdDriver() {
    Call().ADL_Main_Control_Destroy();
    while (!Buffers().empty()) FreeBuffer(Buffers().begin()->first);
}

std::size_t AmdDriver::BuffersInUse() { return Buffers().size(); }

bool AmdDriver::GetAdapters(std::vector<Adl::AdapterInfo>& out) const {
    int count = 0;
    if (Call().ADL_Adapter_NumberOfAdapters_Get(&count) != 0) return false;
    if (count < 0 || count > Source::MostRecords) return false;
    out.assign(static_cast<std::size_t>(count), {});
    return Call().ADL_Adapter_AdapterInfo_Get(out.data(), static_cast<int>(out.size() * sizeof(Adl::AdapterInfo))) == 0;
}

std::vector<Adl::DisplayInfo> AmdDriver::GetDisplays(int adapter) const {
    int count = 0;
    if (Call().ADL_Display_NumberOfDisplays_Get(adapter, &count) != 0) return {};
    Adl::DisplayInfo* info = nullptr;
    const int result = Call().ADL_Display_DisplayInfo_Get(adapter, &count, &info, 0);
    std::vector<Adl::DisplayInfo> displays;
    if (result == 0 && count > 0) {
        const std::size_t held = BufferSize(info) / sizeof(Adl::DisplayInfo);
        displays.assign(info, info + std::min(held, static_cast<std::size_t>(count)));
    }
    FreeBuffer(info);
    return displays;
}

bool AmdDriver::IsActive(int adapter) const {
    int active = 0;
    return Call().ADL_Adapter_Active_Get(adapter, &active) == 0 && active != 0;
}

bool WindowsAmdGpuDisplay::ReadEdidBlocks(int index, Adl::DisplayEdidData& out) const {
    out = {};
    out.iSize = sizeof(out);
    out.iBlockIndex = index;
    return driver_->Call().ADL_Display_EdidData_Get(static_cast<int>(record_.Handle1),
                                                    static_cast<int>(record_.Handle2), &out) == 0;
}

bool WindowsAmdGpuDisplay::ReadEdid() {
    Adl::DisplayEdidData data;
    const ByteRange buffer(data.cEDIDData, sizeof(data.cEDIDData));
    if (!ReadEdidBlocks(0, data) || data.iEDIDSize < EdidBlockSize) return false;
    record_.EdidData = Bytes();
    const bool plain = data.cEDIDData[0] == 0 && data.cEDIDData[EdidExtensionCountOffset] == 0;
    Source::AppendEdid(record_.EdidData, buffer, plain ? EdidBlockSize : data.iEDIDSize);
    if (plain) return true;
    constexpr int mostBlocks = Source::MostEdidBytes / EdidBlockSize;
    for (int index = data.iEDIDSize / EdidBlockSize; index < mostBlocks && ReadEdidBlocks(index, data); ++index) {
        Source::AppendEdid(record_.EdidData, buffer, data.iEDIDSize);
    }
    return true;
}

bool WindowsAmdGpuDisplay::AccessDdc(ByteRange send, ByteRange receive) const {
    int received = receive.size;
    const int result = driver_->Call().ADL_Display_DDCBlockAccess_Get(
        static_cast<int>(record_.Handle1), static_cast<int>(record_.Handle2), 0, 0, send.size,
        reinterpret_cast<char*>(send.data), &received, reinterpret_cast<char*>(receive.data));
    return result == 0 && received == receive.size;
}

bool WindowsAmdGpuDisplay::ReadI2c(std::uint8_t address, ByteRange out) const { return AccessDdc({&address, 1}, out); }

bool WindowsAmdGpuDisplay::WriteI2c(ByteRange data) const { return data.size > 0 && AccessDdc(data, {}); }

bool ReadAmd(const LibraryLoader& load, std::vector<WindowsGpuDisplay>& out) {
    const std::shared_ptr<const AmdDriver> driver = AmdDriver::Acquire(load);
    std::vector<Adl::AdapterInfo> adapters;
    if (driver == nullptr || !driver->GetAdapters(adapters)) return false;
    AdapterNames names;
    for (const Adl::AdapterInfo& adapter : adapters) {
        names.emplace(adapter.iAdapterIndex, String(Source::FieldText(adapter.strDisplayName)).ToWide());
    }
    std::set<std::string> seen;  // the library lists a physical adapter once for each of its outputs
    for (const Adl::AdapterInfo& adapter : adapters) {
        if (!seen.insert(Source::FieldText(adapter.strDriverPathExt)).second) continue;
        for (const Adl::DisplayInfo& info : driver->GetDisplays(adapter.iAdapterIndex)) {
            auto display =
                std::make_unique<WindowsAmdGpuDisplay>(driver, MakeRecord(*driver, adapter.iAdapterIndex, info, names));
            if (display->ReadEdid()) out.emplace_back(std::move(display));
        }
    }
    return true;
}

}  // namespace VNT

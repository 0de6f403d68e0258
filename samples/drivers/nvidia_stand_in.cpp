#include "samples/drivers/nvidia_stand_in.h"

#include <algorithm>
#include <cstring>

namespace StandIn {

namespace {

namespace Nvapi = VNT::Nvapi;

constexpr int Refused = -1;

// The displays that the driver has a name for; a display handle is the number of its line.
std::vector<int> NamedDisplays() {
    std::vector<int> named;
    for (const int line : Nvidia().Below(-1, "display")) {
        if (!Nvidia().At(line).Text(1).empty()) named.push_back(line);
    }
    return named;
}

int FindGpu(Nvapi::GpuHandle gpu) {
    for (const int line : Nvidia().Below(-1, "gpu")) {
        if (Nvidia().At(line).Number(0) == static_cast<long long>(gpu)) return line;
    }
    return -1;
}

// The line of the display that has this EDID to give, or -1.
int FindOutput(Nvapi::GpuHandle gpu, std::uint32_t output) {
    for (const int line : Nvidia().Below(-1, "display")) {
        const std::vector<int> by = Nvidia().Below(line, "by");
        if (!by.empty()) {
            const Line& place = Nvidia().At(by[0]);
            if (place.Number(0) == static_cast<long long>(gpu) && place.Number(1) == output) return line;
        } else if (Nvidia().At(line).Number(0) == output && FindGpu(gpu) >= 0 && FindGpu(gpu) < line) {
            return line;
        }
    }
    return -1;
}

int Initialize() {
    const int result = Nvidia().Enter("Initialize");
    if (result == 0) Nvidia().Count("started", 1);
    return result;
}

int Unload() {
    Nvidia().Count("started", -1);
    return Nvidia().Enter("Unload");
}

int EnumPhysicalGpus(Nvapi::GpuHandle* out, std::uint32_t* count) {
    std::vector<int> lines = Nvidia().Below(-1, "gpu");
    lines.resize(std::min<std::size_t>(lines.size(), Nvapi::MostGpus));
    for (const int line : lines) *out++ = static_cast<Nvapi::GpuHandle>(Nvidia().At(line).Number(0));
    *count = static_cast<std::uint32_t>(Nvidia().Claim("EnumPhysicalGpus", static_cast<long long>(lines.size())));
    return Nvidia().Enter("EnumPhysicalGpus");
}

int EnumDisplayHandle(std::uint32_t index, Nvapi::DisplayHandle* out) {
    const int result = Nvidia().Enter("EnumDisplayHandle");
    if (result != 0) return result;
    const std::vector<int> named = NamedDisplays();
    if (named.empty()) return Refused;
    if (index >= named.size() && Nvidia().Below(-1, "endless").empty()) return Refused;
    *out = static_cast<Nvapi::DisplayHandle>(named[std::min<std::size_t>(index, named.size() - 1)]);
    return 0;
}

int GetDisplayName(Nvapi::DisplayHandle display, char* out) {
    const int result = Nvidia().Enter("GetDisplayName");
    if (result != 0) return result;
    // Without a terminator if the name is too long for it.
    const std::string name = Nvidia().At(static_cast<int>(display)).Text(1);
    std::memset(out, 0, Nvapi::DisplayNameSize);
    std::copy_n(name.begin(), std::min<std::size_t>(name.size(), Nvapi::DisplayNameSize), out);
    return 0;
}

int GetDisplayId(const char* displayName, std::uint32_t* out) {
    const int result = Nvidia().Enter("GetDisplayId");
    if (result != 0) return result;
    for (const int line : NamedDisplays()) {
        const Line& display = Nvidia().At(line);
        if (display.Text(1).substr(0, Nvapi::DisplayNameSize) != displayName) continue;
        *out = static_cast<std::uint32_t>(display.Number(0));
        return 0;
    }
    return Refused;
}

int GetConnectedDisplayIds(Nvapi::GpuHandle gpu, Nvapi::DisplayIds* out, std::uint32_t* count, std::uint32_t) {
    const int result = Nvidia().Enter("GetConnectedDisplayIds");
    const int gpuLine = FindGpu(gpu);
    if (result != 0 || gpuLine < 0) return result != 0 ? result : Refused;
    const std::vector<int> lines = Nvidia().Below(gpuLine, "display");
    if (out != nullptr) {
        if (out->version != Nvapi::DisplayIdsVersion) return Refused;
        for (std::size_t i = 0; i < std::min<std::size_t>(*count, lines.size()); ++i) {
            out[i].displayId = static_cast<std::uint32_t>(Nvidia().At(lines[i]).Number(0));
        }
    }
    // The first call tells the truth, so that the claim is of more than was asked for.
    const auto truth = static_cast<long long>(lines.size());
    *count = static_cast<std::uint32_t>(out != nullptr ? Nvidia().Claim("GetConnectedDisplayIds", truth)
                                                       : Nvidia().Claim("GetConnectedDisplayIdsCount", truth));
    return 0;
}

int GetGpuAndOutputId(std::uint32_t displayId, Nvapi::GpuHandle* gpu, std::uint32_t* outputId) {
    const int result = Nvidia().Enter("GetGpuAndOutputId");
    if (result != 0) return result;
    for (const int line : Nvidia().Below(-1, "display")) {
        const std::vector<int> by = Nvidia().Below(line, "by");
        if (Nvidia().At(line).Number(0) != displayId || by.empty()) continue;
        *gpu = static_cast<Nvapi::GpuHandle>(Nvidia().At(by[0]).Number(0));
        *outputId = static_cast<std::uint32_t>(Nvidia().At(by[0]).Number(1));
        return 0;
    }
    return Refused;
}

int GetEdid(Nvapi::GpuHandle gpu, std::uint32_t output, Nvapi::Edid* edid) {
    const int result = Nvidia().Enter("GetEdid");
    const int line = FindOutput(gpu, output);
    if (result != 0 || line < 0 || edid->version != Nvapi::EdidVersion) return result != 0 ? result : Refused;
    const std::vector<std::uint8_t> bytes = Nvidia().EdidBelow(line);
    const bool endless = !Nvidia().Below(-1, "endless").empty();
    if (edid->offset >= bytes.size() && !endless) return Refused;
    const std::size_t start = std::min<std::size_t>(edid->offset, bytes.size());
    std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(start),
                std::min(bytes.size() - start, sizeof(edid->EDID_Data)), edid->EDID_Data);
    edid->sizeofEDID = static_cast<std::uint32_t>(Nvidia().Claim("GetEdid", static_cast<long long>(bytes.size())));
    return 0;
}

bool IsGoodI2c(Nvapi::GpuHandle gpu, const Nvapi::I2cInfo& info) {
    return FindOutput(gpu, info.displayMask) >= 0 && info.version == Nvapi::I2cInfoVersion && info.bIsDDCPort == 1 &&
           info.pbI2cRegAddress == nullptr && info.regAddrSize == 0 && info.i2cSpeed == 65535 && info.i2cSpeedKhz == 2;
}

// Answers a read with the address and the numbers after it, and a write only if it is of "01 02" to 50.
int I2cRead(Nvapi::GpuHandle gpu, Nvapi::I2cInfo* info) {
    const int result = Nvidia().Enter("I2cRead");
    if (result != 0 || !IsGoodI2c(gpu, *info)) return result != 0 ? result : Refused;
    for (std::uint32_t i = 0; i < info->cbSize; ++i) {
        info->pbData[i] = static_cast<std::uint8_t>(info->i2cDevAddress + i);
    }
    return 0;
}

int I2cWrite(Nvapi::GpuHandle gpu, Nvapi::I2cInfo* info) {
    const int result = Nvidia().Enter("I2cWrite");
    if (result != 0 || !IsGoodI2c(gpu, *info)) return result != 0 ? result : Refused;
    const bool expected =
        info->i2cDevAddress == 0x50 && info->cbSize == 2 && std::memcmp(info->pbData, "\x01\x02", 2) == 0;
    return expected ? 0 : Refused;
}

template <class Function>
void* Export(const char* name, Function* function) {
    return Nvidia().Says("missing", name) ? nullptr : reinterpret_cast<void*>(function);
}

}  // namespace

Driving& Nvidia() {
    static Driving driving;
    return driving;
}

void* nvapi_QueryInterface(std::uint32_t id) {
    switch (id) {
        case Nvapi::InitializeId:
            return Export("Initialize", Initialize);
        case Nvapi::EnumPhysicalGpusId:
            return Export("EnumPhysicalGpus", EnumPhysicalGpus);
        case Nvapi::EnumDisplayHandleId:
            return Export("EnumDisplayHandle", EnumDisplayHandle);
        case Nvapi::GetDisplayNameId:
            return Export("GetDisplayName", GetDisplayName);
        case Nvapi::GetDisplayIdId:
            return Export("GetDisplayId", GetDisplayId);
        case Nvapi::GetConnectedDisplayIdsId:
            return Export("GetConnectedDisplayIds", GetConnectedDisplayIds);
        case Nvapi::GetGpuAndOutputIdId:
            return Export("GetGpuAndOutputId", GetGpuAndOutputId);
        case Nvapi::GetEdidId:
            return Export("GetEdid", GetEdid);
        case Nvapi::I2cReadId:
            return Export("I2cRead", I2cRead);
        case Nvapi::I2cWriteId:
            return Export("I2cWrite", I2cWrite);
        case Nvapi::UnloadId:
            return Export("Unload", Unload);
        default:
            return nullptr;
    }
}

}  // namespace StandIn

#pragma once

#include <cstdint>

// The part of NVIDIA's driver interface (NVAPI) that is used here: structures and calls as the library has them. Zero
// is success. A structure begins with its version: the number of its revision above its size.
namespace VNT::Nvapi {

constexpr std::uint32_t Version(std::uint32_t revision, std::size_t size) {
    return revision * 0x10000 + static_cast<std::uint32_t>(size);
}

struct DisplayIds {
    std::uint32_t version;
    std::uint32_t connectorType;
    std::uint32_t displayId;
    std::uint32_t flags;
};
inline constexpr std::uint32_t DisplayIdsVersion = Version(1, sizeof(DisplayIds));
static_assert(DisplayIdsVersion == 0x10010);

struct Edid {
    std::uint32_t version;
    std::uint8_t EDID_Data[256];
    std::uint32_t sizeofEDID;
    std::uint32_t edidId;
    std::uint32_t offset;
};
inline constexpr std::uint32_t EdidVersion = Version(3, sizeof(Edid));
static_assert(EdidVersion == 0x30110);

struct I2cInfo {
    std::uint32_t version;
    std::uint32_t displayMask;
    std::uint8_t bIsDDCPort;
    std::uint8_t i2cDevAddress;
    std::uint8_t* pbI2cRegAddress;
    std::uint32_t regAddrSize;
    std::uint8_t* pbData;
    std::uint32_t cbSize;
    std::uint32_t i2cSpeed;
    std::uint32_t i2cSpeedKhz;
};
inline constexpr std::uint32_t I2cInfoVersion = Version(2, sizeof(I2cInfo));
static_assert(I2cInfoVersion == (sizeof(void*) == 8 ? 0x20038 : 0x20024));

using GpuHandle = std::uintptr_t;  // small numbers in the guise of pointers
using DisplayHandle = std::uintptr_t;
inline constexpr int MostGpus = 64;         // entries that EnumPhysicalGpus may fill
inline constexpr int DisplayNameSize = 64;  // characters that GetDisplayName may fill

struct Calls {
    int (*Initialize)();
    int (*EnumPhysicalGpus)(GpuHandle* out, std::uint32_t* count);
    int (*EnumDisplayHandle)(std::uint32_t index, DisplayHandle* out);
    int (*GetDisplayName)(DisplayHandle display, char* out);
    int (*GetDisplayId)(const char* displayName, std::uint32_t* out);
    int (*GetConnectedDisplayIds)(GpuHandle gpu, DisplayIds* out, std::uint32_t* count, std::uint32_t flags);
    int (*GetGpuAndOutputId)(std::uint32_t displayId, GpuHandle* gpu, std::uint32_t* outputId);
    int (*GetEdid)(GpuHandle gpu, std::uint32_t output, Edid* edid);
    int (*I2cRead)(GpuHandle gpu, I2cInfo* info);
    int (*I2cWrite)(GpuHandle gpu, I2cInfo* info);
    int (*Unload)();
};

// The library exports one name, which gives a call for its ID, or null.
using QueryInterface = void*(std::uint32_t id);
inline constexpr char QueryInterfaceName[] = "nvapi_QueryInterface";

enum Id : std::uint32_t {
    InitializeId = 0x0150E828,
    EnumPhysicalGpusId = 0xE5AC921F,
    EnumDisplayHandleId = 0x9ABDD40D,
    GetDisplayNameId = 0x22A78B05,
    GetDisplayIdId = 0xAE457190,
    GetConnectedDisplayIdsId = 0x0078DBA2,
    GetGpuAndOutputIdId = 0x112BA1A5,
    GetEdidId = 0x37D32E69,
    I2cReadId = 0x2FDE12C5,
    I2cWriteId = 0xE812EB07,
    UnloadId = 0xD22BDD7E,
};

}  // namespace VNT::Nvapi

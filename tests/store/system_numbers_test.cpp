// The numbers that other systems' interfaces give their things: what stands in the headers is used by both sides of
// each test, so that a wrong one shows in none of them.
#include <cstddef>
#include <gtest/gtest.h>

#include "store/amd_api.h"
#include "store/display.h"
#include "store/nvidia_api.h"
#include "store/platform.h"
#include "store/registry_layout.h"

namespace VNT {
namespace {

TEST(SystemNumbers, ErrorsAreThoseOfWindows) {
    EXPECT_EQ(SystemErrors::None, 0u);                  // ERROR_SUCCESS
    EXPECT_EQ(SystemErrors::FileNotFound, 2u);          // ERROR_FILE_NOT_FOUND
    EXPECT_EQ(SystemErrors::AccessDenied, 5u);          // ERROR_ACCESS_DENIED
    EXPECT_EQ(SystemErrors::InsufficientBuffer, 122u);  // ERROR_INSUFFICIENT_BUFFER
    EXPECT_EQ(SystemErrors::MoreData, 234u);            // ERROR_MORE_DATA
    EXPECT_EQ(SystemErrors::NoMoreItems, 259u);         // ERROR_NO_MORE_ITEMS
    EXPECT_EQ(SystemErrors::IsLink, 4395u);             // ERROR_REPARSE_POINT_ENCOUNTERED
}

TEST(SystemNumbers, AccessesAndPropertiesAreThoseOfWindows) {
    EXPECT_EQ(static_cast<std::uint32_t>(KeyAccess::Read), 0x20019u);   // KEY_READ
    EXPECT_EQ(static_cast<std::uint32_t>(KeyAccess::Write), 0x20006u);  // KEY_WRITE
    EXPECT_EQ(static_cast<int>(DeviceProperty::Description), 2);        // DEVPKEY_Device_DeviceDesc
    EXPECT_EQ(static_cast<int>(DeviceProperty::DriverKey), 11);         // DEVPKEY_Device_Driver
}

TEST(SystemNumbers, TheRegistryHoldsOverridesAsWindowsReadsThem) {
    EXPECT_EQ(std::wstring(RegistryLayout::EdidValue), L"EDID");
    EXPECT_EQ(std::wstring(RegistryLayout::OverrideKey), L"EDID_OVERRIDE");
    EXPECT_EQ(RegistryLayout::BlockName(0), L"0");
    EXPECT_EQ(RegistryLayout::BlockName(255), L"255");
    EXPECT_EQ(RegistryLayout::MostSequentialBlocks, 512);
    EXPECT_EQ(RegistryLayout::LastSparseBlock, 255);
    EXPECT_EQ(EdidBlockSize, 128);              // E-EDID 1.4, 3
    EXPECT_EQ(EdidExtensionCountOffset, 0x7E);  // E-EDID 1.4, 3.11
}

TEST(SystemNumbers, CallsOfNvidiasDriverHaveItsIds) {
    EXPECT_EQ(Nvapi::InitializeId, 0x0150E828u);
    EXPECT_EQ(Nvapi::EnumPhysicalGpusId, 0xE5AC921Fu);
    EXPECT_EQ(Nvapi::EnumDisplayHandleId, 0x9ABDD40Du);
    EXPECT_EQ(Nvapi::GetDisplayNameId, 0x22A78B05u);
    EXPECT_EQ(Nvapi::GetDisplayIdId, 0xAE457190u);
    EXPECT_EQ(Nvapi::GetConnectedDisplayIdsId, 0x0078DBA2u);
    EXPECT_EQ(Nvapi::GetGpuAndOutputIdId, 0x112BA1A5u);
    EXPECT_EQ(Nvapi::GetEdidId, 0x37D32E69u);
    EXPECT_EQ(Nvapi::I2cReadId, 0x2FDE12C5u);
    EXPECT_EQ(Nvapi::I2cWriteId, 0xE812EB07u);
    EXPECT_EQ(Nvapi::UnloadId, 0xD22BDD7Eu);
    EXPECT_EQ(Nvapi::MostGpus, 64);
    EXPECT_EQ(Nvapi::DisplayNameSize, 64);
}

TEST(SystemNumbers, StructuresOfTheDriversHaveTheirLayouts) {
    EXPECT_EQ(Nvapi::DisplayIdsVersion, 0x10010u);
    EXPECT_EQ(offsetof(Nvapi::DisplayIds, displayId), 8u);
    EXPECT_EQ(offsetof(Nvapi::Edid, EDID_Data), 4u);
    EXPECT_EQ(offsetof(Nvapi::Edid, sizeofEDID), 260u);
    EXPECT_EQ(offsetof(Nvapi::Edid, offset), 268u);
    EXPECT_EQ(offsetof(Adl::AdapterInfo, strDisplayName), 536u);
    EXPECT_EQ(offsetof(Adl::AdapterInfo, strDriverPathExt), 1056u);
    EXPECT_EQ(offsetof(Adl::DisplayInfo, iDisplayLogicalAdapterIndex), 8u);
    EXPECT_EQ(offsetof(Adl::DisplayEdidData, iEDIDSize), 8u);
    EXPECT_EQ(offsetof(Adl::DisplayEdidData, cEDIDData), 16u);
}

}  // namespace
}  // namespace VNT

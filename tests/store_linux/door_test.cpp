// The door as the store uses it.

#include <gtest/gtest.h>

#include "model/core/text_string.h"
#include "store/linux/linux_platform.h"
#include "store/load.h"
#include "store/registry_layout.h"
#include "store/save.h"
#include "store/values.h"
#include "tests/store_linux/machine.h"

namespace VNT::Linux::Sample {

namespace {

class Door : public testing::Test {
protected:
    Door() {
        auto owned = std::make_unique<Machine>();
        machine = owned.get();
        machine->AddCards();
        machine->AddDebian();
        platform = std::make_unique<LinuxPlatform>(std::move(owned), told.AsReport());
    }
    DisplayList Load(bool all = true) {
        DisplayList list;
        EXPECT_TRUE(LoadDisplays(*platform, list, all));
        return list;
    }
    Display Find(const std::wstring& end) {
        for (const Display& display : Load()) {
            if (display.InstanceId.ends_with(end)) return display;
        }
        ADD_FAILURE();
        return {};
    }

    Told told;
    Machine* machine = nullptr;
    std::unique_ptr<LinuxPlatform> platform;
    const Bytes wanted = MakeEdid(0x2001, 2);
};

}  // namespace

TEST_F(Door, ListsTheConnectorsThatAreConnected) {
    const DisplayList list = Load(false);
    std::wstring names;
    for (const Display& display : list) names += display.DeviceDescription + L"\n";
    EXPECT_EQ(names,
              L"card0-eDP-1, 0x8086:0x9a49\ncard1-DP-1, Sample Graphics 6, amdgpu\ncard1-DP-10, Sample Graphics 6, "
              L"amdgpu\ncard1-DP-2, Sample Graphics 6, amdgpu\ncard1-HDMI-A-2, Sample Graphics 6, "
              L"amdgpu\ncard2-DVI-D-1\ncard2-HDMI-A-3\n");
    EXPECT_EQ(list[3].InstanceId, L"PCI0000:00/0000:00:01.0/0000:03:00.0/DP-2");
    EXPECT_EQ(list[3].DriverKey, L"amdgpu");
    EXPECT_EQ(list[3].EdidData, MakeEdid(0x1002, 2));
    EXPECT_EQ(list[2].EdidData.Size(), 256 * 128);
    EXPECT_TRUE(list[4].EdidData.IsEmpty());
    EXPECT_TRUE(list[3].Active);
    EXPECT_TRUE(LinuxPlatform::HasConnectors(*machine));
    machine->Delete("sys/class/drm");
    EXPECT_FALSE(LinuxPlatform::HasConnectors(*machine));
}

TEST_F(Door, SavesAnOverrideAsAWholeAndReadsItBack) {
    const auto before = machine->Snapshot();
    Display display = Find(L"/DP-2");
    ASSERT_TRUE(display.SetData(wanted));
    ASSERT_TRUE(display.Save(*platform)) << told.wrong;
    EXPECT_EQ(machine->Shown("card1-DP-2"), wanted);
    const Display loaded = Find(L"/DP-2");
    EXPECT_EQ(loaded.OverrideData, wanted);
    EXPECT_EQ(loaded.CurrentData, wanted);
    EXPECT_EQ(loaded.EdidData, MakeEdid(0x1002, 2));
    display = loaded;
    ASSERT_TRUE(display.SetData({}));
    ASSERT_TRUE(display.Save(*platform)) << told.wrong;
    EXPECT_EQ(Differences(before, machine->Snapshot()), "");
    EXPECT_TRUE(Find(L"/DP-2").OverrideData.IsEmpty());
}

TEST_F(Door, AnOverrideHasAValueForEachBlockAndNoOther) {
    Display display = Find(L"/DP-2");
    ASSERT_TRUE(display.SetData(wanted));
    ASSERT_TRUE(display.Save(*platform)) << told.wrong;
    const auto set = platform->OpenMonitor(display.InstanceId, false);
    ASSERT_TRUE(set->EnumDevice(0));
    const auto device = set->OpenHardwareKey(KeyAccess::Read);
    std::shared_ptr<RegistryKey> key;
    ASSERT_EQ(device->OpenKey(RegistryLayout::OverrideKey, KeyAccess::Read, key), SystemErrors::None);
    std::vector<std::wstring> names;
    EXPECT_EQ(ListValues(*key, names), SystemErrors::NoMoreItems);
    EXPECT_EQ(names, (std::vector<std::wstring>{L"0", L"1"}));
}

TEST_F(Door, TwoEqualMonitorsAreTwoDisplays) {
    Display display = Find(L"/DP-2");
    ASSERT_TRUE(display.SetData(wanted));
    ASSERT_TRUE(display.Save(*platform));
    EXPECT_TRUE(Find(L"/DP-1").OverrideData.IsEmpty());
    EXPECT_EQ(machine->Shown("card1-DP-1"), MakeEdid(0x1002, 2));
}

TEST_F(Door, SparseOverrideKeepsItsZeroBlocks) {
    Bytes sparse = MakeEdid(0x2001, 4);
    for (int i = 128; i < 256; ++i) sparse.At(i) = 0;
    Display display = Find(L"/DP-2");
    ASSERT_TRUE(display.SetData(sparse));
    ASSERT_TRUE(display.Save(*platform)) << told.wrong;
    EXPECT_EQ(machine->Shown("card1-DP-2"), sparse);
    EXPECT_EQ(Find(L"/DP-2").OverrideData, sparse);
}

TEST_F(Door, FailedSaveIsReportedAndLeavesTheDisplayUnsaved) {
    const auto before = machine->Snapshot();
    Display display = Find(L"/DP-2");
    ASSERT_TRUE(display.SetData(wanted));
    machine->FailProgram("update-grub");
    EXPECT_FALSE(display.Save(*platform));
    EXPECT_FALSE(display.Saved);
    machine->ClearFaults();
    EXPECT_TRUE(display.Save(*platform));
    EXPECT_EQ(machine->Shown("card1-DP-2"), wanted);
}

TEST_F(Door, DisplayWhoseCardIsGoneIsListedWithItsOverride) {
    Display display = Find(L"/DVI-D-1");
    ASSERT_TRUE(display.SetData(wanted));
    ASSERT_TRUE(display.Save(*platform));
    machine->Delete("sys/class/drm/card2-DVI-D-1");
    machine->Delete("sys/devices/platform");
    Display gone = Find(L"/DVI-D-1");
    EXPECT_FALSE(gone.Active);
    EXPECT_EQ(gone.OverrideData, wanted);
    ASSERT_TRUE(gone.SetData({}));
    ASSERT_TRUE(gone.Save(*platform)) << told.wrong;
    EXPECT_FALSE(machine->Has(StateFolder));
    EXPECT_FALSE(machine->Has("usr/lib/firmware/edid"));
}

TEST_F(Door, WhatADisplayReportsCannotBeWritten) {
    const auto set = platform->OpenMonitor(L"pci0000:00/0000:00:01.0/0000:03:00.0/dp-2", true);
    ASSERT_TRUE(set->EnumDevice(0));
    const std::shared_ptr<RegistryKey> key = set->OpenHardwareKey(KeyAccess::Write);
    EXPECT_NE(key->SetValue(L"EDID", wanted), SystemErrors::None);
    EXPECT_NE(key->DeleteValue(L"EDID"), SystemErrors::None);
    std::shared_ptr<RegistryKey> other;
    EXPECT_NE(key->CreateKey(L"OTHER", KeyAccess::Write, other), SystemErrors::None);
    ASSERT_EQ(key->CreateKey(L"EDID_OVERRIDE", KeyAccess::Write, other), SystemErrors::None);
    for (const wchar_t* name : {L"256", L"-1", L"01", L"x", L""}) {
        EXPECT_NE(other->SetValue(name, MakeEdid(1)), SystemErrors::None) << name;
    }
    EXPECT_NE(other->SetValue(L"0", Bytes(127, 0)), SystemErrors::None);
    EXPECT_EQ(machine->ChangeCount(), 0);
    EXPECT_FALSE(platform->OpenMonitor(L"pci0000:00/0000:00:02.0/HDMI-A-1", true)->EnumDevice(0));
    EXPECT_TRUE(platform->OpenMonitor(L"pci0000:00/0000:00:02.0/HDMI-A-1", false)->EnumDevice(0));
    EXPECT_FALSE(platform->OpenMonitor(L"pci0000:00/0000:00:02.0/HDMI-A-7", false)->EnumDevice(0));
}

}  // namespace VNT::Linux::Sample

#include "store/linux/overrides.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "tests/store_linux/machine.h"

namespace VNT::Linux::Sample {

namespace {

class MachineOverrides : public testing::Test {
protected:
    MachineOverrides() {
        machine.AddCards();
        machine.AddDebian();
        before = machine.Snapshot();
    }
    bool Set(const std::string& name, const Bytes& bytes, Duration duration = Duration::Both) {
        told = {};
        return Overrides(machine, report, {duration, false}).Set(machine.Find(name), bytes);
    }
    bool TakeOff(const std::string& name) {
        told = {};
        return Overrides(machine, report, {}).TakeOff(machine.Find(name));
    }
    std::string RecordFolder(const std::string& name) const {
        std::string identity = machine.Find(name).Identity();
        std::replace(identity.begin(), identity.end(), '/', '#');
        return identity;
    }
    void ExpectTold(const std::string& line) const {
        EXPECT_NE((told.did + told.wrong).find(line), std::string::npos) << told.did << told.wrong;
    }

    Machine machine;
    Told told;
    Report report = told.AsReport();
    std::map<std::string, std::string> before;
    const Bytes wanted = MakeEdid(0x2001, 2);
    const std::string overrideFile = "sys/kernel/debug/dri/1/DP-2/edid_override";
};

}  // namespace

TEST_F(MachineOverrides, NowLastsUntilTheNextStartAndTouchesNoFileOfTheSystem) {
    ASSERT_TRUE(Set("card1-DP-2", wanted, Duration::Now)) << told.wrong;
    ExpectTold("card1-DP-2: in use\n");
    EXPECT_EQ(machine.Shown("card1-DP-2"), wanted);
    EXPECT_TRUE(machine.Calls().empty());
    auto after = machine.Snapshot(false);
    for (const char* file : {"/edid", "/edid_override"}) {
        std::erase_if(after, [file](const auto& entry) { return entry.first.ends_with(file); });
        std::erase_if(before, [file](const auto& entry) { return entry.first.ends_with(file); });
    }
    EXPECT_EQ(Differences(before, after), "");
    machine.Restart();
    EXPECT_EQ(machine.Shown("card1-DP-2"), MakeEdid(0x1002, 2));
    EXPECT_TRUE(Overrides(machine, report, {}).Get(machine.Find("card1-DP-2")).IsEmpty());
}

TEST_F(MachineOverrides, EachKindOfDisplayTakesOne) {
    for (const char* name : {"card0-eDP-1", "card0-HDMI-A-1", "card1-HDMI-A-2", "card1-DP-10", "card2-HDMI-A-3"}) {
        ASSERT_TRUE(Set(name, wanted)) << name << told.wrong;
        EXPECT_EQ(machine.Shown(name), wanted);
    }
    const Bytes longest = MakeEdid(0x2002, 256);
    ASSERT_TRUE(Set("card1-DP-2", longest)) << told.wrong;
    EXPECT_EQ(machine.Shown("card1-DP-2"), longest);
    machine.Restart();
    EXPECT_EQ(machine.Shown("card1-DP-2"), longest);
}

TEST_F(MachineOverrides, ConnectorWhoseNameBeginsAlikeIsTold) {
    ASSERT_TRUE(Set("card1-DP-1", wanted)) << told.wrong;
    ExpectTold("card1-DP-10: gets this override too, as its name begins with DP-1, unless it has one of its own\n");
    ASSERT_TRUE(Set("card1-DP-10", MakeEdid(0x2002))) << told.wrong;
    ASSERT_TRUE(Set("card1-DP-1", wanted)) << told.wrong;
    EXPECT_EQ(told.wrong, "");
    machine.Restart();
    EXPECT_EQ(machine.Shown("card1-DP-1"), wanted);
    EXPECT_EQ(machine.Shown("card1-DP-10"), MakeEdid(0x2002));
}

TEST_F(MachineOverrides, WhatTheDisplayItselfReportsIsKept) {
    const Overrides overrides(machine, report, {});
    const Connector connector = machine.Find("card1-DP-2");
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    EXPECT_EQ(overrides.GetReported(connector), MakeEdid(0x1002, 2));
    EXPECT_EQ(overrides.Get(connector), wanted);
    ASSERT_TRUE(Set("card1-DP-2", MakeEdid(0x2002)));
    EXPECT_EQ(overrides.GetReported(connector), MakeEdid(0x1002, 2));
    machine.Restart();
    EXPECT_EQ(overrides.GetReported(connector), MakeEdid(0x1002, 2));
    EXPECT_EQ(overrides.Get(connector), MakeEdid(0x2002));
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    EXPECT_EQ(overrides.GetReported(connector), MakeEdid(0x1002, 2));
    EXPECT_TRUE(overrides.Get(connector).IsEmpty());
}

TEST_F(MachineOverrides, TakingOffIsSeenAtOnceAfterAStartToo) {
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    machine.Restart();
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    ExpectTold("card1-DP-2: taken off\n");
    EXPECT_EQ(machine.Shown("card1-DP-2"), MakeEdid(0x1002, 2));
    EXPECT_EQ(machine.Get("sys/module/drm/parameters/edid_firmware"), "\n");
}

TEST_F(MachineOverrides, OverrideOfSomethingElseIsPutBack) {
    machine.Put(overrideFile, MakeEdid(0x3001));
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    ASSERT_TRUE(Set("card1-DP-2", MakeEdid(0x2002)));
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    EXPECT_EQ(machine.Get(overrideFile), ToText(MakeEdid(0x3001)));
    EXPECT_EQ(machine.Shown("card1-DP-2"), MakeEdid(0x3001));
}

TEST_F(MachineOverrides, OverrideThatSomethingElsePutThereSinceStays) {
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    machine.Put(overrideFile, MakeEdid(0x3001));
    EXPECT_EQ(Overrides(machine, report, {}).Get(machine.Find("card1-DP-2")), wanted);  // the one that lasts
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    EXPECT_EQ(machine.Get(overrideFile), ToText(MakeEdid(0x3001)));
    ASSERT_TRUE(TakeOff("card1-DP-1"));
    ExpectTold("card1-DP-1: nothing of this program's to take off\n");
}

TEST_F(MachineOverrides, KernelThatRefusesIsTold) {
    machine.RefuseOverrides();
    EXPECT_FALSE(Set("card1-DP-2", wanted, Duration::Now));
    ExpectTold("/" + overrideFile + ": the kernel did not take 256 bytes: Operation not permitted\n");
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    EXPECT_TRUE(Set("card1-DP-2", wanted));  // the firmware file is taken at once where the parameter can be set
    ExpectTold("card1-DP-2: in use, after the next start too\n");
}

TEST_F(MachineOverrides, InvalidEdidIsNotTaken) {
    Bytes bad = wanted;
    bad.At(20) = 1;
    EXPECT_FALSE(Set("card1-DP-2", bad, Duration::Now));
    ExpectTold("the kernel did not take 256 bytes: Invalid argument\n");
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(MachineOverrides, DriverThatIgnoresItIsTold) {
    machine.IgnoreOverrides();
    EXPECT_FALSE(Set("card1-DP-2", wanted, Duration::Now));
    ExpectTold("card1-DP-2: not in use: the kernel reports 256 bytes that differ from byte 10 on\n");
}

TEST_F(MachineOverrides, WithoutDebugfsOnlyTheLastingOneIsPossible) {
    machine.Delete("sys/kernel/debug/dri");
    EXPECT_FALSE(Set("card1-DP-2", wanted, Duration::Now));
    ExpectTold("the kernel offers no override for it");
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    ExpectTold("in use, after the next start too");
    EXPECT_EQ(machine.Get("sys/module/drm/parameters/edid_firmware"), "DP-2:edid/VTA2001-DP-2.bin\n");
    machine.Delete("sys/module/drm");
    ASSERT_TRUE(Set("card1-DP-1", wanted)) << told.wrong;
    ExpectTold("card1-DP-1: in use after the next start\n");
}

TEST_F(MachineOverrides, EntriesOfOthersInTheRunningKernelStay) {
    machine.Put("sys/module/drm/parameters/edid_firmware", "DP-2:edid/other.bin,VGA-1:x.bin\n");
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    EXPECT_EQ(machine.Get("sys/module/drm/parameters/edid_firmware"),
              "DP-2:edid/VTA2001-DP-2.bin,DP-2:edid/other.bin,VGA-1:x.bin\n");
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    EXPECT_EQ(machine.Get("sys/module/drm/parameters/edid_firmware"), "DP-2:edid/other.bin,VGA-1:x.bin\n");
}

TEST_F(MachineOverrides, ConnectorsThatTheParameterCannotTellApartGetNoLastingOne) {
    machine.AddConnector("pci0000:00/0000:00:05.0", "card3", "DP-2", true, MakeEdid(0x1009));
    EXPECT_FALSE(Set("card1-DP-2", wanted, Duration::Lasting));
    ExpectTold("another card has a connector of this name");
    EXPECT_FALSE(machine.Has(StateFolder));
    EXPECT_TRUE(Set("card1-DP-2", wanted));
    ExpectTold("card1-DP-2: in use\n");
    EXPECT_TRUE(machine.Calls().empty());
}

TEST_F(MachineOverrides, CardThatMovedTakesItsOverrideAlong) {
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    machine.Delete("sys/class/drm/card1-DP-2");
    machine.Delete("sys/devices/pci0000:00/0000:00:01.0/0000:03:00.0/drm/card1/card1-DP-2");
    machine.AddConnector("pci0000:00/0000:00:05.0", "card3", "DP-2", true, MakeEdid(0x1009));
    ASSERT_TRUE(Set("card3-DP-2", MakeEdid(0x2002))) << told.wrong;
    EXPECT_EQ(ReadRecords(machine).size(), 1u);
    EXPECT_EQ(machine.Get("boot/grub/grub.cfg").find("VTA2001"), std::string::npos);
    ASSERT_TRUE(TakeOff("card3-DP-2")) << told.wrong;
    EXPECT_FALSE(machine.Has("usr/lib/firmware/edid"));
    EXPECT_EQ(machine.Get("boot/grub/grub.cfg"), before["boot/grub/grub.cfg"]);
}

TEST_F(MachineOverrides, ChangesOfOthersSinceAreKept) {
    machine.Delete("etc/default/grub.d");
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    machine.Put("etc/default/grub", machine.Get("etc/default/grub") + "GRUB_TIMEOUT=9\n");
    ASSERT_TRUE(Set("card1-DP-1", wanted)) << told.wrong;
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    ASSERT_TRUE(TakeOff("card1-DP-1")) << told.wrong;
    EXPECT_EQ(machine.Get("etc/default/grub"), before["etc/default/grub"] + "GRUB_TIMEOUT=9\n");
}

TEST_F(MachineOverrides, FirmwareFileThatSomethingElseChangedSinceIsLeftAlone) {
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    machine.Put("usr/lib/firmware/edid/VTA2001-DP-2.bin", MakeEdid(0x3001));
    EXPECT_FALSE(TakeOff("card1-DP-2"));
    ExpectTold("was changed by something else since: left alone\n");
    EXPECT_EQ(machine.Get("usr/lib/firmware/edid/VTA2001-DP-2.bin"), ToText(MakeEdid(0x3001)));
    EXPECT_EQ(machine.Get("boot/grub/grub.cfg"), before["boot/grub/grub.cfg"]);
    machine.Delete("usr/lib/firmware/edid");
    machine.Delete(StateFolder);
    machine.Restart();
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(MachineOverrides, FileOfSomethingElseInOurPlaceComesBack) {
    machine.Put("usr/lib/firmware/edid/VTA2001-DP-2.bin", MakeEdid(0x3001));
    machine.Put("etc/initramfs-tools/hooks/vantelle", "#!/bin/sh\n# of somebody else\n");
    before = machine.Snapshot();
    ASSERT_TRUE(Set("card1-DP-2", wanted, Duration::Lasting));
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    EXPECT_EQ(machine.Get("usr/lib/firmware/edid/VTA2001-DP-2.bin"), ToText(MakeEdid(0x3001)));
    EXPECT_EQ(machine.Get("etc/initramfs-tools/hooks/vantelle"), "#!/bin/sh\n# of somebody else\n");
}

TEST_F(MachineOverrides, ProgramThatFailsIsToldAndAllIsAsBefore) {
    for (const char* name : {"update-initramfs", "update-grub"}) {
        machine.FailProgram(name);
        EXPECT_FALSE(Set("card1-DP-2", wanted));
        ExpectTold(std::string(name));
        ExpectTold("ended with status 3: no space left\n");
        ExpectTold("left to be done, so that all is as before: " + std::string(name));
        EXPECT_FALSE(machine.Has("usr/lib/firmware/edid"));
        EXPECT_EQ(machine.Get("etc/default/grub"), before["etc/default/grub"]);
        EXPECT_EQ(machine.Shown("card1-DP-2"), MakeEdid(0x1002, 2));
        machine.ClearFaults();
        ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
        EXPECT_EQ(Differences(before, machine.Snapshot()), "") << name;
    }
}

TEST_F(MachineOverrides, LinesAreToldWhereNothingIsRecognised) {
    Machine bare;
    bare.AddCards();
    const Report bareReport = told.AsReport();
    told = {};
    EXPECT_FALSE(Overrides(bare, bareReport, {Duration::Lasting, false}).Set(bare.Find("card1-DP-2"), wanted));
    ExpectTold(
        "to be put into the early image by hand, if the system has one: /usr/lib/firmware/edid/VTA2001-DP-2.bin\n");
    ExpectTold("to be set on the kernel's command line by hand: drm.edid_firmware=DP-2:edid/VTA2001-DP-2.bin\n");
    EXPECT_EQ(bare.Get("usr/lib/firmware/edid/VTA2001-DP-2.bin"), ToText(wanted));
    told = {};
    EXPECT_TRUE(Overrides(bare, bareReport, {}).Set(bare.Find("card1-DP-2"), wanted));
    ExpectTold("card1-DP-2: in use\n");
}

TEST_F(MachineOverrides, SettingsThatAreNotUnderstoodAreLeftAlone) {
    machine.Delete("etc/default/grub.d");
    for (const char* text : {"GRUB_CMDLINE_LINUX_DEFAULT=\"$(cat /etc/line)\"\n",
                             "GRUB_CMDLINE_LINUX_DEFAULT=\"drm.edid_firmware=$FILES\"\n"}) {
        machine.Put("etc/default/grub", text);
        EXPECT_FALSE(Set("card1-DP-2", wanted, Duration::Lasting));
        EXPECT_EQ(machine.Get("etc/default/grub"), text);
        ExpectTold("to be set on the kernel's command line by hand");
        machine.Delete(StateFolder);
        machine.Delete("usr/lib/firmware/edid");
    }
}

TEST_F(MachineOverrides, SettingsThatBecameUnclearBlockTakingOffUntilTheyAreClear) {
    machine.Delete("etc/default/grub.d");
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    const std::string written = machine.Get("etc/default/grub");
    machine.Put("etc/default/grub", written + "GRUB_CMDLINE_LINUX_DEFAULT=\"$(x)\"\n");
    EXPECT_FALSE(TakeOff("card1-DP-2"));
    ExpectTold("card1-DP-2: the override was not taken off\n");
    EXPECT_EQ(machine.Shown("card1-DP-2"), wanted);
    machine.Put("etc/default/grub", written);
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    EXPECT_EQ(machine.Get("etc/default/grub"), before["etc/default/grub"]);
}

TEST_F(MachineOverrides, AHookThatSomeoneElseChangedIsLeftAloneAndTold) {
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    const std::string hook = "etc/initramfs-tools/hooks/vantelle";
    ASSERT_TRUE(machine.Has(hook));
    const std::string changed = machine.Get(hook) + "# mine\n";
    machine.Put(hook, changed);
    ASSERT_TRUE(Set("card1-DP-10", wanted));
    ExpectTold("to be put into the early image by hand");
    EXPECT_EQ(machine.Get(hook), changed);
}

TEST_F(MachineOverrides, TwoMakersOfImagesAreNotGuessedAt) {
    machine.Delete("usr/share/initramfs-tools");
    machine.Put("usr/bin/dracut", "");
    machine.Put("usr/bin/mkinitcpio", "");
    machine.Put("etc/mkinitcpio.conf", "FILES=()\n");
    ASSERT_TRUE(Set("card1-DP-2", wanted, Duration::Lasting)) << told.wrong;
    ExpectTold("to be put into the early image by hand");
    EXPECT_EQ(machine.Get("etc/mkinitcpio.conf"), "FILES=()\n");
}

TEST_F(MachineOverrides, FirmwareFilesNameIsPlainWhateverTheEdidSays) {
    Bytes odd = MakeEdid(1);
    odd.At(8) = 0;
    odd.At(9) = 0;
    odd.At(127) = 0;
    int sum = 0;
    for (int i = 0; i < 127; ++i) sum += odd.At(i);
    odd.At(127) = static_cast<std::uint8_t>((256 - sum % 256) % 256);
    ASSERT_TRUE(Set("card1-DP-2", odd)) << told.wrong;
    machine.Restart();
    EXPECT_EQ(machine.Shown("card1-DP-2"), odd) << machine.CommandLine();
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
}

TEST_F(MachineOverrides, PlantedLinksAndRecordsChangeNothingElsewhere) {
    machine.Put("etc/passwd", "root");
    machine.Put(std::string(StateFolder) + "/displays/x#DP-2/lasting", wanted);
    machine.Put(std::string(StateFolder) + "/displays/x#DP-2/file", "edid/../../../etc/passwd\n");
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    EXPECT_EQ(machine.Get("etc/passwd"), "root");
}

TEST_F(MachineOverrides, RecordThatCannotBeReadIsToldAndNothingIsChanged) {
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    const std::string folder = std::string(StateFolder) + "/displays/" + RecordFolder("card1-DP-2") + "/";
    for (const char* name : {"edid", "now", "lasting", "file", "earlier-files"}) {
        const std::string path = folder + name;
        const bool isThere = machine.Has(path);
        const std::string content = isThere ? machine.Get(path) : std::string();
        if (isThere) machine.Delete(path);
        machine.Put(path + "/in-its-place", "");
        const auto damaged = machine.Snapshot();
        EXPECT_FALSE(TakeOff("card1-DP-2")) << name;
        ExpectTold("/" + path + " can't be read");
        EXPECT_FALSE(Set("card1-DP-2", MakeEdid(0x2002))) << name;
        EXPECT_EQ(Differences(damaged, machine.Snapshot()), "") << name;
        machine.Delete(path);
        if (isThere) machine.Put(path, content);
    }
    machine.Put(folder + "file", "edid/../../../etc/passwd\n");
    EXPECT_FALSE(TakeOff("card1-DP-2"));
    ExpectTold("/" + folder + "file can't be read");
    machine.Put(folder + "file", "edid/VTA2001-DP-2.bin\n");
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    machine.Restart();
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(MachineOverrides, SettingsBehindALinkAreChangedThere) {
    machine.Delete("etc/default/grub.d");
    machine.Delete("etc/default/grub");
    machine.Put("etc/grub-settings", "GRUB_CMDLINE_LINUX_DEFAULT=\"a\"\n");
    machine.Link("etc/default/grub", "../grub-settings");
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    EXPECT_NE(machine.Get("etc/grub-settings").find("drm.edid_firmware"), std::string::npos);
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    EXPECT_EQ(machine.Get("etc/grub-settings"), "GRUB_CMDLINE_LINUX_DEFAULT=\"a\"\n");
    EXPECT_EQ(std::filesystem::read_symlink(machine.Root() / "etc/default/grub"), "../grub-settings");
}

}  // namespace VNT::Linux::Sample

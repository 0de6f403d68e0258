#include "store/linux/boot_loader.h"

#include <gtest/gtest.h>

#include "store/linux/overrides.h"
#include "tests/store_linux/machine.h"

namespace VNT::Linux::Sample {

TEST(BootLoader, SystemdsIsTheOneThatStartedTheKernelThoughGrubIsInstalled) {
    Machine machine;
    machine.AddCards();
    machine.AddSystemdBoot();
    machine.AddGrub("GRUB_CMDLINE_LINUX=\"quiet\"\n");
    EXPECT_EQ(FindBootLoader(machine)->Name(), "kernel-install");
    machine.Delete(Machine::EfiPath("LoaderInfo"));
    EXPECT_EQ(FindBootLoader(machine)->Name(), "GRUB");
    // A unified image that the firmware starts by itself, and one that another loader starts.
    machine.PutEfiText("StubInfo", "systemd-stub 255");
    EXPECT_EQ(FindBootLoader(machine)->Name(), "kernel-install");
    machine.PutEfiText("LoaderInfo", "GRUB 2.06");
    EXPECT_EQ(FindBootLoader(machine)->Name(), "GRUB");
}

// Kernels with one value take one call, kernels with two take two: what they are to have is looked at in the end.
TEST(BootLoader, GrubbyThatEndsWellAndDoesNothingIsNoticed) {
    for (const bool alike : {true, false}) {
        Machine machine;
        machine.AddCards();
        machine.AddFedora();
        if (!alike) {
            machine.Make({"grubby", "--update-kernel=/boot/vmlinuz-6.9.5-200.fc40.x86_64", "--remove-args=x",
                          "--args=drm.edid_firmware=HDMI-A-3:edid/other.bin"});
        }
        machine.IdleProgram("grubby");
        Told told;
        const Report report = told.AsReport();
        const auto before = machine.Snapshot(false);
        EXPECT_FALSE(Overrides(machine, report, {Duration::Lasting, false})
                         .Set(machine.Find("card1-DP-2"), MakeEdid(0x2001, 2)));
        EXPECT_NE(told.wrong.find("grubby"), std::string::npos) << told.wrong;
        EXPECT_EQ(Differences(before, machine.Snapshot(false)), "");
    }
}

}  // namespace VNT::Linux::Sample

// Overrides for every start, on each system: written, used after a start, written twice, taken off, and with a fault at
// each change.

#include <algorithm>
#include <gtest/gtest.h>

#include "tests/store_linux/machine.h"

namespace VNT::Linux::Sample {
namespace {

struct System {
    const char* name;
    void (*add)(Machine&);
    bool hasImage;
    bool isOneOfItsKind = false;  // tried in every way
};

const System Systems[] = {
    {"Debian", [](Machine& machine) { machine.AddDebian(); }, true, true},
    {"DebianOtherDropIn",
     [](Machine& machine) {
         machine.AddDebian();
         machine.Put("etc/default/grub.d/50-cloudimg-settings.cfg",
                     "# Cloud Image specific\nGRUB_CMDLINE_LINUX_DEFAULT=\"console=tty1 console=ttyS0\"\n");
         machine.Make({"update-grub"});
     },
     true},
    {"DebianOtherEntry",
     [](Machine& machine) {
         machine.AddDebian();
         machine.Put("etc/default/grub",
                     "GRUB_CMDLINE_LINUX_DEFAULT=\"quiet drm.edid_firmware=HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin "
                     "splash\"\nGRUB_CMDLINE_LINUX=\"\"\n");
         machine.Make({"update-grub"});
     },
     true},
    {"GrubDoubleQuotes",
     [](Machine& machine) { machine.AddGrub("GRUB_CMDLINE_LINUX_DEFAULT=\"loglevel=3 quiet\"\nGRUB_TIMEOUT=1\n"); },
     false},
    {"GrubSingleQuotes",
     [](Machine& machine) { machine.AddGrub("GRUB_TIMEOUT=1\nGRUB_CMDLINE_LINUX_DEFAULT='loglevel=3 quiet'"); }, false},
    {"GrubNoQuotes",
     [](Machine& machine) { machine.AddGrub("export GRUB_CMDLINE_LINUX_DEFAULT=quiet  # a comment\n"); }, false, true},
    {"GrubEmpty", [](Machine& machine) { machine.AddGrub("GRUB_CMDLINE_LINUX_DEFAULT=\nGRUB_CMDLINE_LINUX=\n"); },
     false},
    {"GrubWithoutVariable", [](Machine& machine) { machine.AddGrub("GRUB_TIMEOUT=1\n\n# the end, unfinished"); },
     false},
    {"GrubTwoAssignments",
     [](Machine& machine) {
         machine.AddGrub(
             "GRUB_CMDLINE_LINUX_DEFAULT=\"old\"\nGRUB_CMDLINE_LINUX_DEFAULT=\"new\"\n"
             "GRUB_CMDLINE_LINUX_DEFAULT=\"${GRUB_CMDLINE_LINUX_DEFAULT} more\"\n");
     },
     false},
    {"GrubContinuedLine",
     [](Machine& machine) { machine.AddGrub("GRUB_CMDLINE_LINUX_DEFAULT=\"quiet \\\n  splash\"\nGRUB_TIMEOUT=1\n"); },
     false},
    {"GrubOtherEntryQuoted",
     [](Machine& machine) {
         machine.AddGrub(
             "GRUB_CMDLINE_LINUX=\"a drm.edid_firmware=\\\"HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin\\\" "
             "b\"\n");
     },
     false},
    {"GrubOtherEntrySingleQuotes",
     [](Machine& machine) {
         machine.AddGrub("GRUB_CMDLINE_LINUX_DEFAULT='drm.edid_firmware=HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin'\n");
     },
     false},
    {"Fedora", [](Machine& machine) { machine.AddFedora(); }, true, true},
    {"FedoraOtherEntry",
     [](Machine& machine) {
         machine.AddFedora();
         machine.Make({"grubby", "--update-kernel=ALL", "--remove-args=x",
                       "--args=drm.edid_firmware=HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin"});
     },
     true},
    {"SystemdBoot", [](Machine& machine) { machine.AddSystemdBoot(); }, true},
    {"SystemdBootVendorLine",
     [](Machine& machine) {
         machine.AddSystemdBoot();
         machine.Delete("etc/kernel");
         machine.Put("usr/lib/kernel/cmdline", "root=UUID=1234 rw quiet");
     },
     true},
    {"SystemdBootOtherEntry",
     [](Machine& machine) {
         machine.AddSystemdBoot();
         machine.Put("etc/kernel/cmdline",
                     "root=UUID=1234 rw\ndrm.edid_firmware=HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin\n\n");
         machine.Make({"kernel-install", "add", "6.1.0-13-amd64", "/lib/modules/6.1.0-13-amd64/vmlinuz"});
     },
     true, true},
    {"ArchUnifiedDropIns", [](Machine& machine) { machine.AddArch(true); }, true},
    {"ArchUnified", [](Machine& machine) { machine.AddArch(false); }, true},
    {"Silverblue", [](Machine& machine) { machine.AddSilverblue(); }, true, true},
    {"SilverblueOtherEntry",
     [](Machine& machine) {
         machine.AddSilverblue();
         machine.Put("ostree/kargs",
                     "rw drm.edid_firmware=HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin quiet "
                     "firmware_class.path=/etc/own\n");
     },
     true},
};

std::vector<System> OneOfEachKind() {
    std::vector<System> systems;
    for (const System& system : Systems) {
        if (system.isOneOfItsKind) systems.push_back(system);
    }
    return systems;
}

std::string NameOf(const testing::TestParamInfo<System>& info) { return info.param.name; }

class EachSystem : public testing::TestWithParam<System> {
protected:
    EachSystem() {
        machine.AddCards();
        GetParam().add(machine);
        machine.Put("usr/lib/firmware/edid/other.bin", MakeEdid(0x77));
        machine.Restart();
        machine.ClearFaults();
    }

    bool Set(const std::string& name, const Bytes& bytes, Options options = {}) {
        told = {};
        return Overrides(machine, report, options).Set(machine.Find(name), bytes);
    }
    bool TakeOff(const std::string& name) {
        told = {};
        return Overrides(machine, report, {}).TakeOff(machine.Find(name));
    }
    // Something went wrong, beyond the advice that some systems get anyway.
    bool IsFault() const {
        return told.wrong.find("could not be") != std::string::npos ||
               told.wrong.find("did not") != std::string::npos || told.wrong.find("ended with") != std::string::npos ||
               told.wrong.find(": left") != std::string::npos;
    }
    // How often the next start's image has the file of a connector.
    int InImage(const std::string& name) const {
        int count = 0;
        const std::string image = machine.EarlyImage();
        for (std::size_t at = image.find(name); at != std::string::npos; at = image.find(name, at + 1)) ++count;
        return count;
    }

    Machine machine;
    Told told;
    Report report = told.AsReport();
    const Bytes wanted = MakeEdid(0x2001, 2);
    const Bytes other = MakeEdid(0x2002, 3);
};

class EachKind : public EachSystem {};

TEST_P(EachSystem, IsUsedAtOnceAndAfterEachStart) {
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    EXPECT_EQ(told.wrong.empty(), GetParam().hasImage) << told.wrong;
    EXPECT_NE(told.did.find("card1-DP-2: in use, after the next start too\n"), std::string::npos) << told.did;
    EXPECT_EQ(machine.Shown("card1-DP-2"), wanted);
    machine.Restart();
    EXPECT_EQ(machine.Shown("card1-DP-2"), wanted) << machine.CommandLine();
    EXPECT_EQ(machine.Shown("card1-DP-1"), MakeEdid(0x1002, 2));
    EXPECT_EQ(InImage("edid/VTA2001-DP-2.bin"), GetParam().hasImage ? 1 : 0) << machine.EarlyImage();
    const bool hasOther = std::string(GetParam().name).find("OtherEntry") != std::string::npos;
    EXPECT_EQ(machine.CommandLine().find("HDMI-A-3:edid/other.bin,VGA-1:edid/vga.bin") != std::string::npos, hasOther);
}

TEST_P(EachKind, LastingOneWaitsForTheNextStart) {
    ASSERT_TRUE(Set("card1-DP-2", wanted, {Duration::Lasting, false})) << told.wrong;
    EXPECT_NE(told.did.find("card1-DP-2: in use after the next start\n"), std::string::npos) << told.did;
    EXPECT_EQ(machine.Shown("card1-DP-2"), MakeEdid(0x1002, 2));
    machine.Restart();
    EXPECT_EQ(machine.Shown("card1-DP-2"), wanted);
}

TEST_P(EachKind, TwiceIsAsOnce) {
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    const auto once = machine.Snapshot();
    const std::size_t calls = machine.Calls().size();
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    EXPECT_EQ(Differences(once, machine.Snapshot()), "");
    EXPECT_EQ(machine.Calls().size(), calls) << machine.Calls().back();
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    const auto off = machine.Snapshot();
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    EXPECT_EQ(Differences(off, machine.Snapshot()), "");
}

TEST_P(EachSystem, TakingOffRestoresEveryByte) {
    const auto before = machine.Snapshot();
    ASSERT_TRUE(Set("card1-DP-2", wanted)) << told.wrong;
    EXPECT_NE(Differences(before, machine.Snapshot()), "");
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    ASSERT_TRUE(Set("card1-DP-2", wanted, {Duration::Lasting, false})) << told.wrong;
    machine.Restart();
    ASSERT_TRUE(TakeOff("card1-DP-2")) << told.wrong;
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    machine.Restart();
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_P(EachSystem, SeveralDisplaysComeAndGoInAnyOrder) {
    const auto before = machine.Snapshot();
    const std::vector<std::string> names{"card1-DP-2", "card1-DP-10", "card1-HDMI-A-2", "card2-HDMI-A-3"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        ASSERT_TRUE(Set(names[i], MakeEdid(0x3000 + static_cast<int>(i)))) << told.wrong;
    }
    machine.Restart();
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(machine.Shown(names[i]), MakeEdid(0x3000 + static_cast<int>(i))) << machine.CommandLine();
    }
    ASSERT_TRUE(Set(names[1], other)) << told.wrong;  // another EDID for one that has an override
    machine.Restart();
    EXPECT_EQ(machine.Shown(names[1]), other);
    for (const int i : {2, 0, 3, 1}) ASSERT_TRUE(TakeOff(names[static_cast<std::size_t>(i)])) << told.wrong;
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_P(EachKind, DryRunChangesNothingAndTellsWhatTheRealOneDoes) {
    const auto before = machine.Snapshot();
    const int changes = machine.ChangeCount();
    ASSERT_TRUE(Set("card1-DP-2", wanted, {Duration::Both, true}));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    EXPECT_EQ(machine.ChangeCount(), changes);
    std::string expected = told.did;
    for (std::size_t at = 0; (at = expected.find("would ", at)) != std::string::npos;) expected.erase(at, 6);
    const auto count = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
    const auto lines = count(expected);
    ASSERT_TRUE(Set("card1-DP-2", wanted));
    EXPECT_EQ(count(told.did + told.wrong), lines + 1) << expected << "\n" << told.did;  // and what is in use
    Told dry;
    const Report report = dry.AsReport();
    const auto written = machine.Snapshot();
    EXPECT_TRUE(Overrides(machine, report, {Duration::Both, true}).TakeOff(machine.Find("card1-DP-2")));
    EXPECT_EQ(Differences(written, machine.Snapshot()), "");
    EXPECT_NE(dry.did.find("would write reset to /sys/kernel/debug/dri/1/DP-2/edid_override\n"), std::string::npos);
}

TEST_P(EachKind, WithoutRightsNothingIsChanged) {
    const auto before = machine.Snapshot();
    machine.TakeRights();
    for (const Duration duration : {Duration::Both, Duration::Now, Duration::Lasting}) {
        EXPECT_FALSE(Set("card1-DP-2", wanted, {duration, false}));
        EXPECT_NE(told.wrong.find("the right is missing to write /"), std::string::npos) << told.wrong;
        EXPECT_NE(told.wrong.find("nothing was changed; root has these rights\n"), std::string::npos);
        EXPECT_EQ(told.did, "");
        EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    }
}

// After a fault at any change either all is as it was, or what is left is told; and a reset puts all back.
TEST_P(EachKind, FaultAtEachChangeLeavesTheOldStateOrTellsWhatIsLeft) {
    const auto before = machine.Snapshot();
    ASSERT_TRUE(Set("card1-DP-1", other));
    const auto one = machine.Snapshot();
    bool finished = false;
    int faults = 0;
    for (int k = 1; !finished; ++k) {
        machine.FailChange(k);
        const bool set = Set("card1-DP-2", wanted);
        machine.ClearFaults();
        finished = set && !IsFault();
        if (finished) break;
        ++faults;
        EXPECT_NE(told.wrong, "") << k;
        const bool isTold = told.wrong.find("left") != std::string::npos;
        if (!set && !isTold) {
            EXPECT_EQ(Differences(one, machine.Snapshot()), "") << "change " << k << ": " << told.wrong;
        }
        ASSERT_TRUE(TakeOff("card1-DP-2")) << k << ": " << told.wrong;
        EXPECT_EQ(Differences(one, machine.Snapshot()), "") << k;
    }
    EXPECT_GT(faults, 5);
    ASSERT_TRUE(TakeOff("card1-DP-2"));
    ASSERT_TRUE(TakeOff("card1-DP-1"));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_P(EachKind, FaultAtEachChangeOfTakingOffCanBeMended) {
    const auto before = machine.Snapshot();
    bool finished = false;
    int faults = 0;
    for (int k = 1; !finished; ++k) {
        ASSERT_TRUE(Set("card1-DP-2", wanted)) << k << told.wrong;
        const auto set = machine.Snapshot();
        machine.FailChange(k);
        const bool off = TakeOff("card1-DP-2");
        machine.ClearFaults();
        finished = off && !IsFault();
        if (finished) break;
        ++faults;
        EXPECT_NE(told.wrong, "") << k;
        const bool isTold = told.wrong.find("left") != std::string::npos;
        if (!off && !isTold) {
            EXPECT_EQ(Differences(set, machine.Snapshot()), "") << "change " << k << ": " << told.wrong;
        }
        ASSERT_TRUE(TakeOff("card1-DP-2")) << k << told.wrong;
        machine.Restart();
        EXPECT_EQ(Differences(before, machine.Snapshot()), "") << k;
    }
    EXPECT_GT(faults, 5);
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

INSTANTIATE_TEST_SUITE_P(All, EachSystem, testing::ValuesIn(Systems), &NameOf);
INSTANTIATE_TEST_SUITE_P(Some, EachKind, testing::ValuesIn(OneOfEachKind()), &NameOf);

}  // namespace
}  // namespace VNT::Linux::Sample

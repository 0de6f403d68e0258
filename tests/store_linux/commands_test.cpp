// The command line on a Linux machine.

#include <gtest/gtest.h>
#include <sstream>

#include "cli/command.h"
#include "cli/linux_store.h"
#include "tests/store_linux/machine_host.h"

namespace VNT::Linux::Sample {

namespace {

// A machine that more than one call of the program works on.
class LinuxCommands : public testing::Test {
protected:
    LinuxCommands() {
        machine.AddCards();
        machine.AddDebian();
        machine.Put("new.bin", wanted);
        before = machine.Snapshot();
    }
    std::string Path(const std::string& name) const { return (machine.Root() / name).string(); }
    // The exit status and all that is printed, standard error behind standard output.
    std::string Call(const std::vector<std::string>& words) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        const auto open = [this](const Cli::StoreMode& mode, const Cli::Console& console) {
            return Cli::OpenLinuxStore(std::make_unique<MachineHost>(machine), mode, console);
        };
        const int status = Cli::Run(words, {in, out, err, open});
        return std::to_string(status) + "\n" + out.str() + err.str();
    }
    static bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

    Machine machine;
    const Bytes wanted = MakeEdid(0x2001, 2);
    const std::string second = "pci0000:00/0000:00:01.0/0000:03:00.0/DP-2";
    std::map<std::string, std::string> before;
};

}  // namespace

TEST_F(LinuxCommands, ListReadWriteAndResetWorkOnTheConnectors) {
    EXPECT_TRUE(Has(Call({"list"}),
                    "4\tVTA1002 - card1-DP-2, Sample Graphics 6, amdgpu (active)\tPCI0000:00/0000:00:01.0/"
                    "0000:03:00.0/DP-2\n"))
        << Call({"list"});
    const std::string written = Call({"write", second, Path("new.bin")});
    EXPECT_TRUE(written.starts_with("0\nwrote /usr/lib/firmware/edid/VTA2001-DP-2.bin (256 bytes)\n")) << written;
    EXPECT_TRUE(Has(written, "ran: update-initramfs -u -k all\nran: update-grub\n")) << written;
    EXPECT_TRUE(Has(written, "card1-DP-2: in use, after the next start too\nstored 256 bytes as the override of "));
    EXPECT_TRUE(Has(Call({"list"}), "4\tVTA2001 - card1-DP-2, Sample Graphics 6, amdgpu (active)*\t"));
    EXPECT_EQ(Call({"read", "4", Path("shown.bin")}), "0\n");
    EXPECT_EQ(machine.Get("shown.bin"), ToText(wanted));
    machine.Delete("shown.bin");
    EXPECT_TRUE(Has(Call({"reset", second}), "card1-DP-2: taken off\nremoved the override of "));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(LinuxCommands, TheKernelsNameOfAConnectorIsADisplayToo) {
    const std::string written = Call({"write", "card1-DP-2", Path("new.bin"), "--now"});
    EXPECT_TRUE(Has(written, "stored 256 bytes as the override of PCI0000:00/0000:00:01.0/0000:03:00.0/DP-2\n"))
        << written;
    EXPECT_EQ(Call({"read", "CARD1-dp-2", Path("shown.bin")}), "0\n");
    EXPECT_EQ(machine.Get("shown.bin"), ToText(wanted));
    machine.Delete("shown.bin");
    EXPECT_TRUE(
        Has(Call({"reset", "card1-DP-2"}), "removed the override of PCI0000:00/0000:00:01.0/0000:03:00.0/DP-2\n"));
    EXPECT_TRUE(Call({"write", "card0-HDMI-A-1", Path("new.bin"), "--now"}).starts_with("0\n"));  // nothing on it
    EXPECT_TRUE(Call({"reset", "card0-HDMI-A-1"}).starts_with("0\n"));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    for (const char* none : {"card1-DP-3", "DP-2", "card1", "card0-DP-2"}) {
        EXPECT_TRUE(Has(Call({"write", none, Path("new.bin")}), "no such display")) << none;
    }
}

TEST_F(LinuxCommands, NowAndLastingChooseOne) {
    EXPECT_TRUE(Has(Call({"write", second, Path("new.bin"), "--now"}), "card1-DP-2: in use\n"));
    EXPECT_TRUE(machine.Calls().empty());
    EXPECT_TRUE(Has(Call({"reset", "--all"}), "removed the override of "));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    EXPECT_TRUE(
        Has(Call({"write", second, Path("new.bin"), "--lasting"}), "card1-DP-2: in use after the next start\n"));
    EXPECT_EQ(machine.Get("sys/kernel/debug/dri/1/DP-2/edid_override"), "");
    EXPECT_TRUE(Has(Call({"reset", "--all"}), "removed the override of "));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(LinuxCommands, DryRunsChangeNothing) {
    const std::string told = Call({"write", second, Path("new.bin"), "--dry-run"});
    EXPECT_TRUE(Has(told, "would run: update-grub\n")) << told;
    EXPECT_FALSE(Has(told, "stored")) << told;
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
    Call({"write", second, Path("new.bin")});
    const auto written = machine.Snapshot();
    EXPECT_FALSE(Has(Call({"reset", "--all", "--dry-run"}), "removed the override"));
    EXPECT_EQ(Differences(written, machine.Snapshot()), "");
}

TEST_F(LinuxCommands, ResetOfAllTakesOffWhatIsOursAndNothingElse) {
    machine.Put("sys/kernel/debug/dri/2/DVI-D-1/edid_override", MakeEdid(0x3001));
    before = machine.Snapshot();
    EXPECT_TRUE(Call({"write", second, Path("new.bin")}).starts_with("0\n"));
    EXPECT_TRUE(
        Call({"write", "pci0000:00/0000:00:02.0/HDMI-A-1", Path("new.bin")}).starts_with("0\n"));  // nothing on it
    machine.Delete("sys/class/drm/card1-DP-2");
    machine.Restart();
    machine.Put("sys/kernel/debug/dri/2/DVI-D-1/edid_override", MakeEdid(0x3001));
    const std::string told = Call({"reset", "--all"});
    EXPECT_TRUE(told.starts_with("0\n")) << told;
    machine.Link("sys/class/drm/card1-DP-2", "../../devices/pci0000:00/0000:00:01.0/0000:03:00.0/drm/card1/card1-DP-2");
    machine.Restart();
    machine.Put("sys/kernel/debug/dri/2/DVI-D-1/edid_override", MakeEdid(0x3001));
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(LinuxCommands, WithoutRightsItSaysWhichAreMissing) {
    machine.TakeRights();
    const std::string told = Call({"write", second, Path("new.bin")});
    EXPECT_TRUE(told.starts_with("2\n")) << told;
    EXPECT_TRUE(Has(told, "the right is missing to write /usr/lib/firmware/edid/VTA2001-DP-2.bin\n")) << told;
    EXPECT_TRUE(Has(told, "the right is missing to run update-grub\n")) << told;
    EXPECT_EQ(Differences(before, machine.Snapshot()), "");
}

TEST_F(LinuxCommands, TheWaysOfLinuxAreRefusedForAFolder) {
    std::filesystem::create_directories(machine.Root() / "displays");
    EXPECT_TRUE(Has(Call({"write", "1", Path("new.bin"), "--now", "--store", Path("displays")}),
                    "--now, --lasting and --dry-run are for the displays of a Linux machine\n"));
}

}  // namespace VNT::Linux::Sample

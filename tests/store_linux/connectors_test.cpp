#include "store/linux/connectors.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/store_linux/machine.h"

namespace fs = std::filesystem;

namespace VNT::Linux::Sample {

namespace {

std::string NamesOf(const Machine& machine) {
    std::string names;
    for (const Connector& connector : FindConnectors(machine)) names += connector.FullName() + " ";
    return names;
}

constexpr char Card[] = "pci0000:00/0000:00:02.0";

}  // namespace

TEST(Connectors, AreThoseOfAllCards) {
    Machine machine;
    machine.AddCards();
    EXPECT_EQ(NamesOf(machine),
              "card0-HDMI-A-1 card0-eDP-1 card1-DP-1 card1-DP-10 card1-DP-2 card1-HDMI-A-2 card2-DVI-D-1 "
              "card2-HDMI-A-3 ");
    EXPECT_EQ(machine.Find("card1-DP-2").Identity(), "pci0000:00/0000:00:01.0/0000:03:00.0/DP-2");
    EXPECT_EQ(machine.Find("card2-DVI-D-1").Identity(), "platform/soc@0/fd4a0000.gpu/DVI-D-1");
    EXPECT_EQ(DriverOf(machine, machine.Find("card1-DP-2")), "amdgpu");
    EXPECT_EQ(DriverOf(machine, machine.Find("card0-eDP-1")), "");
    EXPECT_EQ(CardNameOf(machine, machine.Find("card1-DP-2")), "Sample Graphics 6");
    EXPECT_EQ(CardNameOf(machine, machine.Find("card0-eDP-1")), "0x8086:0x9a49");
    EXPECT_TRUE(IsConnected(machine, machine.Find("card1-HDMI-A-2")));
    EXPECT_FALSE(IsConnected(machine, machine.Find("card0-HDMI-A-1")));
    EXPECT_EQ(ReadEdid(machine, machine.Find("card1-DP-10")).Size(), 256 * 128);
}

TEST(Connectors, IdentityOutlivesARenumberingOfTheCards) {
    Machine machine;
    machine.AddConnector(Card, "card0", "DP-1", true, MakeEdid(1));
    const std::string identity = machine.Find("card0-DP-1").Identity();
    machine.Delete("sys");
    machine.AddConnector(Card, "card3", "DP-1", true, MakeEdid(1));
    EXPECT_EQ(machine.Find("card3-DP-1").Identity(), identity);
}

TEST(Connectors, LinksThatLeadElsewhereAreLeftOut) {
    Machine machine;
    machine.AddConnector(Card, "card0", "DP-1", true, MakeEdid(1));
    const fs::path outside = machine.Root().parent_path() / (machine.Root().filename().string() + "_outside");
    fs::create_directories(outside / "drm/card0/card0-DP-9");
    machine.Link("sys/class/drm/card0-DP-2", "../../../../" + outside.filename().string() + "/drm/card0/card0-DP-9");
    machine.Link("sys/class/drm/card0-DP-9", outside.string() + "/drm/card0/card0-DP-9");
    machine.Link("sys/class/drm/card0-DP-3", "/etc");
    machine.Link("sys/class/drm/card0-DP-4", "card0-DP-4");
    machine.Link("sys/class/drm/card0-DP-5", "../../devices/" + std::string(Card) + "/drm/card0/card0-DP-1");
    machine.Link("sys/class/drm/card0-DP-6", "nowhere");
    machine.Put("etc/passwd", "root");
    EXPECT_EQ(NamesOf(machine), "card0-DP-1 ");
    fs::remove_all(outside);
}

TEST(Connectors, FilesOfAConnectorThatAreLinksAreNotRead) {
    Machine machine;
    machine.AddConnector(Card, "card0", "DP-1", true, MakeEdid(1));
    const std::string folder = machine.Find("card0-DP-1").folder;
    machine.Put("etc/shadow", MakeEdid(2));
    machine.Delete(folder + "/edid");
    machine.Link(folder + "/edid", "/etc/shadow");
    EXPECT_TRUE(machine.Shown("card0-DP-1").IsEmpty());
    machine.Delete(folder + "/edid");
    machine.Link(folder + "/edid", "/dev/zero");
    EXPECT_TRUE(machine.Shown("card0-DP-1").IsEmpty());
    machine.Delete("sys/kernel/debug/dri/0");
    machine.Link("sys/kernel/debug/dri/0", "/etc");
    machine.Put("etc/DP-1/edid_override", "");
    EXPECT_EQ(OverrideFile(machine, machine.Find("card0-DP-1")), "");
}

TEST(Connectors, NamesWithOddCharactersAreLeftOut) {
    Machine machine;
    for (const char* name : {"DP-1", "DP 2", "DP-3,x", "DP-4:y", "DP-5;reboot", "DP-6\n", "DP-\xC3\xA9", "$(x)"}) {
        machine.AddConnector(Card, "card0", name, true, MakeEdid(1));
    }
    machine.AddConnector(Card, "cardX", "DP-7", true, MakeEdid(1));
    machine.AddConnector("pci0000:00/odd name", "card1", "DP-8", true, MakeEdid(1));
    machine.AddConnector("pci0000:00/odd#name", "card2", "DP-9", true, MakeEdid(1));
    machine.AddConnector(Card, "card0", std::string(65, 'D'), true, MakeEdid(1));
    EXPECT_EQ(NamesOf(machine), "card0-DP-1 ");
}

TEST(Connectors, FilesThatNeverEndOrBlockAreNotRead) {
    Machine machine;
    machine.AddConnector(Card, "card0", "DP-1", true, MakeEdid(1));
    const std::string edid = machine.Find("card0-DP-1").folder + "/edid";
    fs::resize_file(machine.Root() / edid, 256 * 128);
    EXPECT_EQ(machine.Shown("card0-DP-1").Size(), 256 * 128);
    fs::resize_file(machine.Root() / edid, 1ull * 1024 * 1024 * 1024 * 1024);
    EXPECT_TRUE(machine.Shown("card0-DP-1").IsEmpty());
    machine.Delete(edid);
    ASSERT_EQ(mkfifo((machine.Root() / edid).c_str(), 0600), 0);
    EXPECT_TRUE(machine.Shown("card0-DP-1").IsEmpty());
    machine.Delete(edid);
    fs::create_directories(machine.Root() / edid);
    EXPECT_TRUE(machine.Shown("card0-DP-1").IsEmpty());
}

TEST(Connectors, OverrideFileIsThatOfTheConnectorsCard) {
    Machine machine;
    machine.AddConnector(Card, "card0", "DP-1", true, MakeEdid(1));
    EXPECT_EQ(OverrideFile(machine, machine.Find("card0-DP-1")), "sys/kernel/debug/dri/0/DP-1/edid_override");
    machine.Put("sys/kernel/debug/dri/0/name", "amdgpu dev=0000:09:00.0 unique=0000:09:00.0\n");
    EXPECT_EQ(OverrideFile(machine, machine.Find("card0-DP-1")), "");
    machine.Delete("sys/kernel/debug/dri/0");
    machine.Put("sys/kernel/debug/dri/0000:00:02.0/DP-1/edid_override", "");
    machine.Put("sys/kernel/debug/dri/0000:00:02.0/name", "amdgpu dev=0000:00:02.0 unique=0000:00:02.0\n");
    machine.Link("sys/kernel/debug/dri/0", "0000:00:02.0");
    EXPECT_EQ(OverrideFile(machine, machine.Find("card0-DP-1")),
              "sys/kernel/debug/dri/0000:00:02.0/DP-1/edid_override");
}

}  // namespace VNT::Linux::Sample

#include "store/linux/edid_parameter.h"

#include <gtest/gtest.h>

namespace VNT::Linux {

namespace {

using Entries = std::vector<FirmwareEntry>;

const Entries Two{{"DP-2", "edid/a.bin"}};

std::string ValueIn(const std::string& text) {
    ValuePlace place;
    switch (FindParameter(text, place)) {
        case Found::No:
            return "no";
        case Found::Unclear:
            return "unclear";
        case Found::Yes:
            break;
    }
    return text.substr(place.begin, place.end - place.begin);
}

}  // namespace

TEST(EdidParameter, EntriesOfOthersStay) {
    EXPECT_EQ(AddEntries("", Two), "DP-2:edid/a.bin");
    EXPECT_EQ(AddEntries("VGA-1:x.bin", Two), "VGA-1:x.bin,DP-2:edid/a.bin");
    EXPECT_EQ(AddEntries("x.bin", Two), "x.bin,DP-2:edid/a.bin");
    EXPECT_EQ(RemoveEntries("VGA-1:x.bin,DP-2:edid/a.bin,y.bin", Two), "VGA-1:x.bin,y.bin");
    EXPECT_EQ(RemoveEntries("DP-2:edid/b.bin", Two), "DP-2:edid/b.bin");
    EXPECT_EQ(RemoveEntries("DP-2:edid/a.bin", Two), "");
    EXPECT_EQ(RemoveEntries("", Two), "");
}

// The kernel compares as many characters as the entry has: DP-1 serves DP-10 too, unless that comes first.
TEST(EdidParameter, EachConnectorGetsItsOwnFileWhateverTheOrder) {
    const FirmwareEntry one{"DP-1", "one"};
    const FirmwareEntry ten{"DP-10", "ten"};
    for (const Entries& ours : {Entries{one, ten}, Entries{ten, one}}) {
        for (const char* others : {"", "VGA-1:v", "DP-1:o", "DP-10:o", "DP-1:o,DP-10:p", "D:o", "f", ",,"}) {
            const std::string value = AddEntries(others, ours);
            EXPECT_EQ(FileFor(value, "DP-1"), "one") << value;
            EXPECT_EQ(FileFor(value, "DP-10"), "ten") << value;
            EXPECT_EQ(FileFor(value, "VGA-1"), FileFor(others, "VGA-1")) << value;
            EXPECT_EQ(RemoveEntries(value, ours), others);
        }
    }
}

TEST(EdidParameter, TheKernelsLookUp) {
    EXPECT_EQ(FileFor("a,DP-1:b,c", "DP-1"), "b");
    EXPECT_EQ(FileFor("a,DP-1:b,c", "DP-2"), "c");
    EXPECT_EQ(FileFor("DP-1:b", "DP-2"), "");
    EXPECT_EQ(FileFor("", "DP-2"), "");
}

TEST(EdidParameter, IsFoundInEachFormThatTheKernelTakes) {
    EXPECT_EQ(ValueIn("quiet drm.edid_firmware=DP-1:a.bin splash"), "DP-1:a.bin");
    EXPECT_EQ(ValueIn("drm.edid_firmware=DP-1:a.bin"), "DP-1:a.bin");
    EXPECT_EQ(ValueIn("drm.edid-firmware=a.bin\n"), "a.bin");
    EXPECT_EQ(ValueIn("\"drm.edid_firmware=a.bin\""), "a.bin");
    EXPECT_EQ(ValueIn("x drm.edid_firmware=\"a.bin\" y"), "a.bin");
    EXPECT_EQ(ValueIn("x drm.edid_firmware=\\\"a.bin\\\" y"), "a.bin");
    EXPECT_EQ(ValueIn("drm.edid_firmware=a drm.edid_firmware=b"), "b");
    EXPECT_EQ(ValueIn("drm.edid_firmware="), "");
    EXPECT_EQ(ValueIn("xdrm.edid_firmware=a"), "no");
    EXPECT_EQ(ValueIn("drm.edid_firmwares=a"), "no");
    EXPECT_EQ(ValueIn("drm.edid_firmware"), "no");
    EXPECT_EQ(ValueIn(""), "no");
    EXPECT_EQ(ValueIn("drm.edid_firmware=$FILES"), "unclear");
    EXPECT_EQ(ValueIn("drm.edid_firmware=a b=`c` drm.edid_firmware=`d`"), "unclear");
}

TEST(EdidParameter, CommandLineFileGetsItBehindItsLastWord) {
    EXPECT_EQ(AddToCommandLine("ro quiet\n", Two), "ro quiet drm.edid_firmware=DP-2:edid/a.bin\n");
    EXPECT_EQ(AddToCommandLine("ro quiet", Two), "ro quiet drm.edid_firmware=DP-2:edid/a.bin");
    EXPECT_EQ(AddToCommandLine("ro\nquiet \n# the end\n\n", Two),
              "ro\nquiet drm.edid_firmware=DP-2:edid/a.bin \n# the end\n\n");
    EXPECT_EQ(AddToCommandLine("ro drm.edid_firmware=VGA-1:x\n", Two),
              "ro drm.edid_firmware=VGA-1:x,DP-2:edid/a.bin\n");
    EXPECT_EQ(AddToCommandLine("ro drm.edid_firmware=$x\n", Two), std::nullopt);
    EXPECT_EQ(AddToCommandLine("ro\n", {}), "ro\n");
}

TEST(EdidParameter, TakenOutTheTextIsAsItWas) {
    for (const char* text : {"ro quiet\n", "ro quiet", "ro  \nquiet\n\n", "drm.edid_firmware=VGA-1:x",
                             "a drm.edid_firmware=\"VGA-1:x,y\" b\n", "# nothing\nro\n"}) {
        const std::optional<std::string> added = AddToCommandLine(text, Two);
        ASSERT_TRUE(added) << text;
        EXPECT_NE(*added, text);
        EXPECT_EQ(RemoveFromText(*added, Two), text);
        EXPECT_EQ(RemoveFromText(text, Two), text);
    }
    EXPECT_EQ(RemoveFromText("drm.edid_firmware=`x`", Two), std::nullopt);
}

}  // namespace VNT::Linux

#include "store/linux/grub_defaults.h"

#include <gtest/gtest.h>

namespace VNT::Linux {

namespace {

const std::vector<FirmwareEntry> Ours{{"DP-2", "edid/a.bin"}};
const std::string Name = GrubDefaultLine;

std::string Added(const std::string& text) {
    return AddToGrub(text, FindGrubPlace({text}), Ours).value_or("not understood");
}

}  // namespace

TEST(GrubDefaults, ParameterGoesIntoTheQuotesThatAreThere) {
    const std::string ours = "drm.edid_firmware=DP-2:edid/a.bin";
    EXPECT_EQ(Added(Name + "=\"quiet splash\"\n"), Name + "=\"quiet splash " + ours + "\"\n");
    EXPECT_EQ(Added(Name + "='quiet'\n"), Name + "='quiet " + ours + "'\n");
    EXPECT_EQ(Added(Name + "=quiet # why\n"), Name + "=quiet\" " + ours + "\" # why\n");
    EXPECT_EQ(Added(Name + "=\"\"\n"), Name + "=\"" + ours + "\"\n");
    EXPECT_EQ(Added(Name + "=\n"), Name + "=\"" + ours + "\"\n");
    EXPECT_EQ(Added(Name + "=\"a=\\\"b c\\\"\"\n"), Name + "=\"a=\\\"b c\\\" " + ours + "\"\n");
    EXPECT_EQ(Added("X=1"), "X=1\n" + Name + "=\"" + ours + "\"\n");
    EXPECT_EQ(Added(""), Name + "=\"" + ours + "\"\n");
}

TEST(GrubDefaults, TheLastAssignmentInEffectCounts) {
    EXPECT_EQ(Added("#" + Name + "=\"x\"\n" + Name + "=\"a\"\n" + Name + "=\"b\"\n"),
              "#" + Name + "=\"x\"\n" + Name + "=\"a\"\n" + Name + "=\"b drm.edid_firmware=DP-2:edid/a.bin\"\n");
    const std::string dead = Name + "=\"drm.edid_firmware=VGA-1:x\"\n" + Name + "=\"b\"\n";
    EXPECT_EQ(Added(dead),
              Name + "=\"drm.edid_firmware=VGA-1:x\"\n" + Name + "=\"b drm.edid_firmware=DP-2:edid/a.bin\"\n");
    const std::string alive = Name + "=\"drm.edid_firmware=VGA-1:x\"\n" + Name + "=\"$" + Name + " b\"\n";
    EXPECT_EQ(Added(alive),
              Name + "=\"drm.edid_firmware=VGA-1:x,DP-2:edid/a.bin\"\n" + Name + "=\"$" + Name + " b\"\n");
    EXPECT_EQ(Added(Name + "=\"drm.edid_firmware=VGA-1:x\"\n" + Name + "+=\" b\"\n"),
              Name + "=\"drm.edid_firmware=VGA-1:x,DP-2:edid/a.bin\"\n" + Name + "+=\" b\"\n");
    EXPECT_EQ(Added("GRUB_CMDLINE_LINUX=\"drm.edid_firmware=VGA-1:x\"\n" + Name + "=\"b\"\n"),
              "GRUB_CMDLINE_LINUX=\"drm.edid_firmware=VGA-1:x,DP-2:edid/a.bin\"\n" + Name + "=\"b\"\n");
}

TEST(GrubDefaults, WhatIsNoPlainAssignmentIsLeftAlone) {
    for (const std::string text :
         {"=\"$(cat /proc/cmdline)\"\n", "=\"`x`\"\n", "=\"open\n", "='open\n", "=\"drm.edid_firmware=$FILES\"\n"}) {
        EXPECT_EQ(Added(Name + text), "not understood") << text;
    }
    EXPECT_EQ(Added("if true; then\n  " + Name + "=\"a\"\nfi\n"), "not understood");
    // A value of another variable that looks like an assignment.
    const std::string text = "OTHER=\"x\n" + Name + "=\\\"no\\\"\n\"\n" + Name + "=\"yes\"\n";
    const auto assignments = FindAssignments(text, Name);
    ASSERT_TRUE(assignments);
    ASSERT_EQ(assignments->size(), 1u);
    EXPECT_EQ(text.substr((*assignments)[0].begin, (*assignments)[0].end - (*assignments)[0].begin), "\"yes\"");
}

TEST(GrubDefaults, SimilarNamesAreOthers) {
    EXPECT_EQ(
        FindAssignments("GRUB_CMDLINE_LINUX_DEFAULT=x\nGRUB_CMDLINE_LINUX_RECOVERY=y\n", "GRUB_CMDLINE_LINUX")->size(),
        0u);
    const auto extended = FindAssignments(Name + "=\"$" + Name + "X\"\n", Name);
    EXPECT_FALSE(extended->at(0).extends);
    EXPECT_TRUE(FindAssignments(Name + "=\"${" + Name + "} x\"\n", Name)->at(0).extends);
}

TEST(GrubDefaults, TakenOutTheTextIsAsItWas) {
    for (const std::string text :
         {"=\"quiet\"\n", "='quiet'\n", "=quiet\n", "=quiet;X=1\n", "=\"\"\n", "=\"drm.edid_firmware=VGA-1:x\"\nY=2",
          "=\"a drm.edid_firmware=\\\"VGA-1:x\\\" b\"\n", "=a\"b\"'c'\n", "=\"a\\\n b\"\n"}) {
        const std::string added = Added(Name + text);
        EXPECT_NE(added, "not understood") << text;
        EXPECT_EQ(RemoveFromGrub(added, Ours), Name + text);
        EXPECT_EQ(RemoveFromGrub(Name + text, Ours), Name + text);
    }
}

}  // namespace VNT::Linux

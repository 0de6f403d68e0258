#include <gtest/gtest.h>
#include <sstream>

#include "cli/check.h"
#include "cli/field_faults.h"
#include "cli/show.h"
#include "samples/sample_bytes.h"

namespace VNT::Cli {
namespace {

Bytes BaseBlock(std::vector<Samples::Block> slots, std::vector<int> standard = {}) {
    Samples::Base base{.vendor = "QOR"};
    base.slots = std::move(slots);
    base.standard = std::move(standard);
    return Bytes(Samples::BaseBlock(base));
}

Edid EdidOf(const Bytes& bytes) {
    Edid edid;
    EXPECT_TRUE(edid.Read(bytes));
    return edid;
}

// What `show` prints below the line that starts with `section`, up to the next section.
std::string Section(const Bytes& bytes, const std::string& section) {
    std::ostringstream out;
    ShowEdid(EdidOf(bytes), out);
    std::istringstream lines(out.str());
    std::string found;
    bool isInside = false;
    for (std::string line; std::getline(lines, line);) {
        if (line[0] != ' ') isInside = line.starts_with(section);
        if (isInside) found += line + "\n";
    }
    return found;
}

std::vector<std::string> Check(const Bytes& bytes) { return CheckEdid(ImportBytes(EdidOf(bytes), bytes)); }

const Samples::Block StandardList{0, 0, 0, 0xFA, 0, 0xD1, 0xC0, 1, 1, 0x81, 0x80, 1, 1, 1, 1, 1, 1, 0x0A};
const Samples::Block CvtList{0, 0, 0, 0xF8, 0, 1, 0x1B, 0x24, 0x4E, 1, 0, 0, 0, 0, 0, 0, 0, 0};
const Samples::Block Established3{0, 0, 0, 0xF7, 0, 10, 0x80, 0, 0, 0, 0, 0x10, 0, 0, 0, 0, 0, 0};
const Samples::Block Cvt{0, 0, 0, 0xFD, 2, 50, 45, 30, 160, 60, 4, 0x11, 4, 240, 0xF8, 0x18, 0, 60};
const Samples::Block WhitePoint{0, 0, 0, 0xFB, 0, 1, 5, 0x50, 0x54, 120, 0, 0, 0, 0, 0, 0x0A, 0x20, 0x20};
const Samples::Block Empty{0, 0, 0, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

TEST(ShowItems, PrintsTheItemsOfAListOneLevelDeeper) {
    EXPECT_EQ(Section(BaseBlock({StandardList, CvtList, Established3, Cvt}), "Detailed resolutions"),
              "Detailed resolutions and descriptors (no space left)\n"
              "  Standard resolutions: 3 resolutions\n"
              "    1920x1080 (16:9) @ 60 Hz\n"
              "    Empty\n"
              "    1280x1024 (5:4) @ 60 Hz\n"
              "  CVT resolutions: 2 resolutions\n"
              "    1920x1080 (16:9) @ 60/75/85 Hz\n"
              "    0x4 (4:3)\n"
              "  Established III resolutions: 2 resolutions\n"
              "  Range limits: 50-300 Hz, 30-160 kHz, 599.75 MHz\n");
}

TEST(ShowItems, PrintsSlotsThatNoClassReads) {
    EXPECT_EQ(Section(BaseBlock({WhitePoint, Empty, Samples::Text(0xFE, "")}), "Detailed resolutions"),
              "Detailed resolutions and descriptors (1 slot left)\n"
              "  Other (251)\n"
              "  Empty\n"
              "  Text is empty\n");
}

TEST(ShowItems, PrintsStandardResolutionsAndEmptyRows) {
    EXPECT_EQ(Section(BaseBlock({}, {1, 1, 0xD1, 0xC0, 0, 0}), "Standard resolutions"),
              "Standard resolutions (5 slots left)\n"
              "  Empty\n"
              "  1920x1080 (16:9) @ 60 Hz\n"
              "  248x155 (16:10) @ 60 Hz\n");
    EXPECT_EQ(Section(BaseBlock({}), "Standard resolutions"),
              "Standard resolutions (8 slots left)\n  No standard resolutions\n");
    EXPECT_EQ(Section(BaseBlock({}), "Detailed resolutions"),
              "Detailed resolutions and descriptors (4 slots left)\n  No detailed resolutions or descriptors\n");
}

TEST(ShowItems, PrintsTheRecordsOfADataBlock) {
    const Samples::Block types{0x02, 0x03, 0x00, 0x03, 0x01, 0x00, 0x01};
    const auto cta = Samples::Cta(0,
                                  {Samples::ExtendedDataBlock(6, {5, 1}), Samples::ExtendedDataBlock(7, types),
                                   Samples::DataBlock(3, {0x1A, 0, 0, 2, 1, 48, 144, 0})},
                                  {});
    Samples::Base base{.vendor = "QOR"};
    base.extensions = 1;
    EXPECT_EQ(Section(Bytes(Samples::operator+(Samples::BaseBlock(base), cta)), "Extension blocks"),
              "Extension blocks (254 slots left)\n"
              "  CTA-861: 3 data blocks, 0 detailed resolutions, 0 descriptors\n"
              "    Data blocks (101 bytes left)\n"
              "      HDR static metadata\n"
              "      HDR dynamic metadata: 2 types\n"
              "        Type 3\n"
              "        Type 1\n"
              "      FreeSync: 48-144 Hz\n"
              "    Detailed resolutions and descriptors (5 slots left)\n"
              "      No detailed resolutions or descriptors\n");
}

TEST(ShowItems, PrintsTheFormatsOfAnAudioBlock) {
    const auto cta = Samples::Cta(
        0,
        {Samples::DataBlock(1, {0x09, 0x07, 0x07, 0x78, 0x04, 0x58, 0x00, 0x00, 0x00}),
         Samples::DataBlock(4, {0x01, 0, 0}), Samples::ExtendedDataBlock(0x21, {0x56, 0x34, 0x12, 0, 0x51, 0x07})},
        {});
    Samples::Base base{.vendor = "QOR"};
    base.extensions = 1;
    EXPECT_EQ(Section(Bytes(Samples::operator+(Samples::BaseBlock(base), cta)), "Extension blocks"),
              "Extension blocks (254 slots left)\n"
              "  CTA-861: 3 data blocks, 0 detailed resolutions, 0 descriptors\n"
              "    Data blocks (101 bytes left)\n"
              "      Audio formats: 3 formats\n"
              "        LPCM: 2 channels, 32/44.1/48 kHz, 16/20/24-bit\n"
              "        MPEG-H 3D: 48 kHz\n"
              "        Other\n"
              "      Speaker allocation\n"
              "      Product information: 123456 - Q\\x07\n"
              "    Detailed resolutions and descriptors (5 slots left)\n"
              "      No detailed resolutions or descriptors\n");
}

TEST(ShowItems, PrintsTheBlocksOfADisplayIdSection) {
    const auto section = Samples::DisplayId(
        {Samples::DisplayIdBlock(0x20, 0, {0, 0x1A, 0x2B, 0x34, 0x12, 0, 0, 0, 0, 0, 24, 1, 0x51}),
         Samples::DisplayIdBlock(0x26, 0, {0, 0, 0, 0, 0, 0, 0, 0, 2, 0x98, 0x13}),
         Samples::DisplayIdBlock(0x81, 0, {0xE3, 5, 1, 0}), Samples::DisplayIdBlock(0x0B, 0, {0x41, 0x0A})});
    Samples::Base base{.vendor = "QOR"};
    base.extensions = 1;
    EXPECT_EQ(Section(Bytes(Samples::operator+(Samples::BaseBlock(base), section)), "Extension blocks"),
              "Extension blocks (254 slots left)\n"
              "  DisplayID v1: 4 data blocks\n"
              "    Data blocks (79 bytes left)\n"
              "      Product identification: 001A2B1234 - Q\n"
              "      Display interface\n"
              "        Other (9) + ST 2084 EOTF\n"
              "        sRGB + BT.1886 EOTF\n"
              "      CTA-861 data blocks: 1 data block\n"
              "        Colorimetry\n"
              "      Text: A\\x0A\n");
}

TEST(CheckItems, NamesExactlyTheItemsThatAreOutOfLimits) {
    Samples::Block name = Samples::Text(0xFC, "NAME");
    name[17] = 0;
    EXPECT_EQ(Check(BaseBlock({Cvt, name, Empty, StandardList}, {0xD1, 0xC0, 0, 0})),
              (std::vector<std::string>{"descriptors/1/padding is 20 20 20 20 20 20 20 00, out of limits",
                                        "descriptors/3/resolutions/1/resolution out of limits",
                                        "standard/1/width is 248, 256 to 2288 in steps of 8 expected",
                                        "standard/1/height out of limits"}));
    EXPECT_EQ(Check(BaseBlock({Established3, Cvt, WhitePoint}, {0xD1, 0xC0})), std::vector<std::string>{});
}

TEST(CheckItems, NamesAHolderBeforeItsItems) {
    Samples::Block list = CvtList;
    list[5] = 0;
    EXPECT_EQ(Check(BaseBlock({list})),
              (std::vector<std::string>{"descriptors/0/version is 0, 1 to 255 expected",
                                        "descriptors/0/resolutions/1/height is 4, 6 to 8192 in steps of 2 expected",
                                        "descriptors/0/resolutions/1/width out of limits"}));
}

TEST(CheckItems, NamesTheFieldOfAPart) {
    Samples::Block limits = Cvt;
    limits[17] = 0;
    EXPECT_EQ(Check(BaseBlock({limits})),
              std::vector<std::string>{"descriptors/0/timing/preferredRefreshRate is 0, 1 to 255 expected"});
}

TEST(CheckItems, NamesTheValueThatARuleRefuses) {
    Samples::Base base{.vendor = "QOR"};
    base.week = 60;
    base.slots = {Samples::Text(0xFC, "\x01")};
    EXPECT_EQ(Check(Bytes(Samples::BaseBlock(base))),
              (std::vector<std::string>{"properties/week is 60, out of limits",
                                        "descriptors/0/text is \"\u263A\", out of limits"}));
}

TEST(CheckItems, NamesTheFieldOfAnItemInTheListOfADataBlock) {
    const auto cta = Samples::Cta(0, {Samples::DataBlock(1, {0x09, 0x80, 0x07})}, {});
    Samples::Base base{.vendor = "QOR"};
    base.extensions = 1;
    EXPECT_EQ(Check(Bytes(Samples::operator+(Samples::BaseBlock(base), cta))),
              std::vector<std::string>{"extensions/0/dataBlocks/0/Formats/0/SampleRates is 0, 1 to 127 expected"});
}

TEST(CheckItems, NamesTheFieldOfADataBlockWithItsValueAndRange) {
    const auto cta = Samples::Cta(0, {Samples::DataBlock(3, {0x1A, 0, 0, 0, 1, 48, 144, 0})}, {});
    Samples::Base base{.vendor = "QOR"};
    base.extensions = 1;
    const std::vector<std::string> reasons = Check(Bytes(Samples::operator+(Samples::BaseBlock(base), cta)));
    ASSERT_EQ(reasons.size(), 1u);
    EXPECT_EQ(reasons[0], "extensions/0/dataBlocks/0/Version is 0, 1 to 255 expected");
}

TEST(CheckItems, ABlockThatNoListTakesIsAFinding) {
    Samples::Block vtb(128, 0);
    vtb[0] = 0x10;
    vtb[1] = 1;
    vtb[2] = 9;  // detailed resolutions, of which six fit
    Samples::PutChecksum(vtb);
    Samples::Base base{.vendor = "QOR"};
    base.extensions = 1;
    EXPECT_EQ(Check(Bytes(Samples::operator+(Samples::BaseBlock(base), vtb))),
              std::vector<std::string>{"extensions/0 out of limits"});
}

TEST(CheckItems, ATimingThatItsListRefusedIsAFinding) {
    const auto check = [](int byte) {
        Samples::Base base{.vendor = "QOR"};
        base.extensions = 1;
        const auto section = Samples::DisplayId({Samples::DisplayIdBlock(3, 0, Samples::Block(20, byte))});
        return Check(Bytes(Samples::operator+(Samples::BaseBlock(base), section)));
    };
    EXPECT_EQ(check(0xFF), std::vector<std::string>{"extensions/0/dataBlocks/0/refused out of limits"});
    EXPECT_EQ(check(0), std::vector<std::string>{});
}

TEST(CheckItems, BytesOfEveryKindHaveAText) {
    Bytes data{1, 2, 3, 4, 5, 6, 7, 8, 9};
    FaultSink sink;
    sink.Rest("data", data, {CountLimits{1, 0}, CountLimits{9, 9}});
    sink.Data("data", 9, data, {CountLimits{2, 2}, CountLimits{9, 9}});
    data = Bytes();
    sink.Rest("data", data, CountLimits{1, 1});
    String text = U"a\nb";
    sink.Rest("text", text, CountLimits{0, 2});
    sink.Check("rule", false, true);
    sink.Check("rule", true, true);
    EXPECT_EQ(sink.faults,
              (std::vector<std::string>{"data is 01 02 03 04 05 06 07 08 ..., zeros expected",
                                        "data is 01 02 03 04 05 06 07 08 ..., 2 bytes expected",
                                        "data is empty, 1 byte expected",
                                        "text is \"a\\x0Ab\", 0 to 2 characters expected", "rule out of limits"}));
}

}  // namespace
}  // namespace VNT::Cli

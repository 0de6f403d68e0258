#include "model/timing/displayid_detailed_resolution.h"

#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

// 1920x1080 at 60 Hz, 148.5 MHz in hundredths, preferred, of automatic aspect ratio, both polarities positive.
const Bytes FullHd1{0x01, 0x3A, 0x00, 0x88, 0x7F, 0x07, 0x17, 0x01, 0x57, 0x80,
                    0x2B, 0x00, 0x37, 0x04, 0x2C, 0x00, 0x03, 0x80, 0x04, 0x00};
// The same in thousandths.
const Bytes FullHd2{0x13, 0x44, 0x02, 0x88, 0x7F, 0x07, 0x17, 0x01, 0x57, 0x80,
                    0x2B, 0x00, 0x37, 0x04, 0x2C, 0x00, 0x03, 0x80, 0x04, 0x00};

Bytes With(Bytes bytes, int offset, int value) {
    bytes.At(offset) = static_cast<std::uint8_t>(value);
    return bytes;
}

Bytes Longer(Bytes bytes, std::initializer_list<int> more) {
    bytes.Append(Bytes(more));
    return bytes;
}

DisplayId1DetailedResolution Read1(const Bytes& bytes) {
    DisplayId1DetailedResolution item;
    EXPECT_TRUE(item.Read(bytes));
    return item;
}

template <class X = DisplayId2DetailedResolution>
X Read2(const Bytes& bytes) {
    X item;
    EXPECT_TRUE(item.Read(bytes, bytes.Size()));
    return item;
}

TEST(DisplayId1DetailedResolution, ReadsTheFieldsOfAFullHdTiming) {
    const DisplayId1DetailedResolution item = Read1(FullHd1);
    EXPECT_EQ(item.actualpixelclock, Rate("148.5"));
    EXPECT_EQ(item.hactive, 1920);
    EXPECT_EQ(item.vactive, 1080);
    EXPECT_EQ(Counts(item), "88 44 148 4 5 36 2200x1125");
    EXPECT_TRUE(item.hpolarity);
    EXPECT_TRUE(item.vpolarity);
    EXPECT_TRUE(item.preferred);
    EXPECT_EQ(item.aspectRatio, DisplayIdDetailedResolutionAspectRatioEnum::Automatic);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "1920x1080 @ 60.000 Hz (148.50 MHz) [+/+]*");
    EXPECT_EQ(TextOf(item, "{type}"), "DisplayID v1 detailed");
    EXPECT_EQ(BytesOf(item, 20), FullHd1);
}

TEST(DisplayId2DetailedResolution, ReadsTheFieldsOfAFullHdTiming) {
    const DisplayId2DetailedResolution item = Read2(FullHd2);
    EXPECT_EQ(item.actualpixelclock, Rate("148.5"));
    EXPECT_EQ(Counts(item), "88 44 148 4 5 36 2200x1125");
    EXPECT_EQ(TextOf(item), "1920x1080 @ 60.000 Hz (148.500 MHz) [+/+]*");
    EXPECT_EQ(TextOf(item, "{type}"), "DisplayID v2 detailed");
    EXPECT_EQ(BytesOf(item, 20), FullHd2);
}

TEST(DisplayId2DetailedResolutionR2, TakesThePreferredBitForYcc420) {
    const auto item = Read2<DisplayId2DetailedResolutionR2>(FullHd2);
    EXPECT_TRUE(item.preferred);
    EXPECT_EQ(TextOf(item), "1920x1080 @ 60.000 Hz (148.500 MHz) [+/+]*");
    EXPECT_EQ(TextOf(item, "{type}{ycc420text}"), "DisplayID v2 detailed r2*");
    const auto plain = Read2<DisplayId2DetailedResolutionR2>(With(FullHd2, 3, 0x08));
    EXPECT_EQ(TextOf(plain), "1920x1080 @ 60.000 Hz (148.500 MHz) [+/+]");
}

TEST(DisplayIdDetailedResolution, StartsWithAnAutomaticAspectRatio) {
    const DisplayId2DetailedResolution item;
    EXPECT_EQ(item.aspectRatio, 8);
    EXPECT_EQ(item.stereo, 0);
    EXPECT_FALSE(item.preferred);
    EXPECT_TRUE(item.extraBytes.IsEmpty());
}

TEST(DisplayIdDetailedResolution, AWidthOfAllOnesIs65536AndInLimits) {
    const Bytes bytes = With(With(FullHd2, 4, 0xFF), 5, 0xFF);
    const DisplayId2DetailedResolution item = Read2(bytes);
    EXPECT_EQ(item.hactive, 65536);
    EXPECT_TRUE(item.GetStatus().IsProper("hactive"));
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item, 20), bytes);
}

TEST(DisplayIdDetailedResolution, HoldsTheLeastAndTheGreatestClock) {
    const Bytes least = With(With(With(FullHd1, 0, 0), 1, 0), 2, 0);
    const Bytes most = With(With(With(FullHd1, 0, 0xFF), 1, 0xFF), 2, 0xFF);
    EXPECT_EQ(Read1(least).actualpixelclock, Rate("0.01"));
    EXPECT_EQ(Read1(most).actualpixelclock, Rate("167772.16"));
    EXPECT_TRUE(Read1(most).IsValid());
    EXPECT_EQ(Read2(least).actualpixelclock, Rate("0.001"));
    EXPECT_EQ(Read2(most).actualpixelclock, Rate("16777.216"));
    EXPECT_EQ(BytesOf(Read1(most), 20), most);
    EXPECT_EQ(BytesOf(Read2(least), 20), least);
}

TEST(DisplayIdDetailedResolution, KeepsPolaritiesBesideThePorches) {
    const DisplayId1DetailedResolution item = Read1(With(With(With(FullHd1, 9, 0x7F), 8, 0xFF), 17, 0x00));
    EXPECT_EQ(item.hfront, 32768);
    EXPECT_FALSE(item.hpolarity);
    EXPECT_FALSE(item.vpolarity);
}

TEST(DisplayIdDetailedResolution, TakesTheLinesOfAnInterlacedFrameAsTheyStand) {
    const DisplayId1DetailedResolution item = Read1(With(FullHd1, 3, 0x18));
    EXPECT_TRUE(item.interlaced);
    EXPECT_EQ(item.vactive, 1080);
    EXPECT_EQ(item.vtotal, 1125);
    EXPECT_EQ(item.actualvrate, Decimal(120));
    EXPECT_EQ(TextOf(item), "1920x1080i @ 120.000 Hz (148.50 MHz) [+/+]");
}

TEST(DisplayIdDetailedResolution, ShowsAspectRatiosButNotAutomaticOrReservedOnes) {
    const char* texts[16] = {"1:1", "5:4", "4:3", "15:9", "16:9", "16:10", "64:27", "256:135"};
    for (int value = 0; value < 16; ++value) {
        const DisplayId1DetailedResolution item = Read1(With(FullHd1, 3, value));
        EXPECT_EQ(item.aspectRatio, value);
        EXPECT_TRUE(item.IsValid());
        const std::string ratio = texts[value] != nullptr ? texts[value] : "";
        EXPECT_EQ(TextOf(item, "{aspectratio}"), ratio);
        EXPECT_EQ(TextOf(item),
                  "1920x1080" + (ratio.empty() ? "" : " (" + ratio + ")") + " @ 60.000 Hz (148.50 MHz) [+/+]");
    }
}

TEST(DisplayIdDetailedResolution, HoldsFourStereoValues) {
    for (int value = 0; value < 4; ++value) {
        const DisplayId1DetailedResolution item = Read1(With(FullHd1, 3, 0x08 + value * 32));
        EXPECT_EQ(item.stereo, value);
        EXPECT_TRUE(item.IsValid());
    }
    DisplayId1DetailedResolution item;
    item.stereo = static_cast<DisplayIdDetailedResolutionStereoEnum::Enum>(4);
    EXPECT_FALSE(item.IsValidAll());
    item.stereo = DisplayIdDetailedResolutionStereoEnum::Mono;
    item.aspectRatio = static_cast<DisplayIdDetailedResolutionAspectRatioEnum::Enum>(16);
    EXPECT_FALSE(item.IsValidAll());
}

TEST(DisplayIdDetailedResolution, RefusesABlankingThatItsPorchesDoNotFitInto) {
    const DisplayId1DetailedResolution item = Read1(With(With(FullHd1, 6, 50), 7, 0));
    EXPECT_EQ(item.hblank, 51);
    EXPECT_EQ(item.hback, 51 - 88 - 44);
    EXPECT_FALSE(item.GetStatus().IsProper("hblank"));
    EXPECT_FALSE(item.GetStatus().IsProper("hback"));
    EXPECT_FALSE(item.IsValidAll());
    EXPECT_EQ(BytesOf(item, 20), Bytes());
}

TEST(DisplayId1DetailedResolution, NeedsTwentyBytes) {
    DisplayId1DetailedResolution item;
    EXPECT_FALSE(item.Read(Bytes(FullHd1.Slice(0, 19))));
    EXPECT_TRUE(item == DisplayId1DetailedResolution());
    Bytes shorter(19, 0xAA);
    EXPECT_FALSE(item.Write(shorter));
    EXPECT_EQ(shorter, Bytes(19, 0xAA));
    Bytes longer(21, 0xAA);
    EXPECT_TRUE(item.Write(longer));
    EXPECT_EQ(longer.At(20), 0xAA);
}

TEST(DisplayId2DetailedResolution, Takes20To27Bytes) {
    const Bytes longest = Longer(FullHd2, {1, 2, 3, 4, 5, 6, 7, 8});
    DisplayId2DetailedResolution item;
    EXPECT_FALSE(item.Read(longest, 19));
    EXPECT_FALSE(item.Read(longest, 28));
    EXPECT_FALSE(item.Read(Bytes(longest.Slice(0, 23)), 24));
    EXPECT_TRUE(item == DisplayId2DetailedResolution());
    EXPECT_TRUE(item.Read(longest, 20));
    EXPECT_EQ(item.GetSize(), 20);
    EXPECT_TRUE(item.Read(longest, 27));
    EXPECT_EQ(item.extraBytes, (Bytes{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(item.GetSize(), 27);
}

TEST(DisplayId2DetailedResolution, CutsTheZerosBehindItsExtraBytes) {
    const Bytes bytes = Longer(FullHd2, {0x11, 0x22, 0x00, 0x00});
    const DisplayId2DetailedResolution item = Read2(bytes);
    EXPECT_EQ(item.extraBytes, (Bytes{0x11, 0x22}));
    EXPECT_EQ(item.GetSize(), 22);
    EXPECT_EQ(BytesOf(item, 22), Bytes(bytes.Slice(0, 22)));
    EXPECT_EQ(BytesOf(item, 21), Bytes());
}

TEST(DisplayId2DetailedResolution, FillsTheRestOfItsRangeWithZeros) {
    const Bytes bytes = Longer(FullHd2, {0x11, 0x22, 0x00, 0x00});
    Bytes written(24, 0xAA);
    EXPECT_TRUE(Read2(bytes).Write(written));
    EXPECT_EQ(written, bytes);
    Bytes untouched(21, 0xAA);
    EXPECT_FALSE(Read2(bytes).Write(untouched));
    EXPECT_EQ(untouched, Bytes(21, 0xAA));
}

TEST(DisplayId2DetailedResolution, MayHoldTheExtraBytesThatItsBlockGivesIt) {
    DisplayId2DetailedResolution item;
    item.extraBytes = Bytes{1, 2, 3};
    EXPECT_TRUE(item.IsValid());
    EXPECT_TRUE(item.IsValid(23));
    EXPECT_FALSE(item.IsValid(22));
    EXPECT_FALSE(item.IsValidAll(22));
    EXPECT_FALSE(item.GetStatus(22).IsProper("extraBytes"));
    EXPECT_FALSE(item.IsValid(-1));
    item.extraBytes = Bytes(8, 1);
    EXPECT_FALSE(item.IsValidAll());
    EXPECT_FALSE(item.IsValid(1000));
}

TEST(DisplayId2DetailedResolution, ComparesItsOwnFieldsToo) {
    const DisplayId2DetailedResolution item;
    const auto differs = [&item](auto change) {
        DisplayId2DetailedResolution changed;
        change(changed);
        return !(changed == item);
    };
    EXPECT_TRUE(differs([](auto& x) { x.extraBytes = Bytes{0}; }));
    EXPECT_TRUE(differs([](auto& x) { x.preferred = true; }));
    EXPECT_TRUE(differs([](auto& x) { x.stereo = DisplayIdDetailedResolutionStereoEnum::Stereo; }));
    EXPECT_TRUE(differs([](auto& x) { x.aspectRatio = DisplayIdDetailedResolutionAspectRatioEnum::Ratio16x9; }));
}

TEST(DisplayIdDetailedResolution, AnyBytesThatAreValidSurvive) {
    Random random(4);
    int sound = 0;
    for (int i = 0; i < 20000; ++i) {
        Bytes bytes = random.ManyBytes(27);
        bytes.At(7) = static_cast<std::uint8_t>(bytes.At(7) % 128 + 128);
        bytes.At(26) = static_cast<std::uint8_t>(bytes.At(26) % 255 + 1);
        const DisplayId2DetailedResolution second = Read2(bytes);
        if (!second.IsValidAll()) continue;
        ++sound;
        EXPECT_EQ(BytesOf(second, 27), bytes);
        EXPECT_TRUE(Read2(BytesOf(second, 27)) == second);
        const Bytes first = bytes.Slice(0, 20);
        EXPECT_EQ(BytesOf(Read1(first), 20), first);
    }
    EXPECT_GT(sound, 1000);
}

}  // namespace
}  // namespace VNT

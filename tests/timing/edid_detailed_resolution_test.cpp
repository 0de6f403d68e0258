#include "model/timing/edid_detailed_resolution.h"

#include <gtest/gtest.h>

#include "tests/timing/support.h"

namespace VNT {
namespace {

using namespace Testing;

constexpr int FrameSize = AnyEdidDescriptor::FrameSize;

// 1920x1080 at 60 Hz as most monitors hold it: 148.5 MHz, 597 x 336 mm, digital separate sync, both positive.
const Bytes FullHd{0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58,
                   0x2C, 0x45, 0x00, 0x55, 0x50, 0x21, 0x00, 0x00, 0x1E};
// 1920x1080i at 60 Hz: 74.25 MHz, lines counted by field.
const Bytes Interlaced{0x01, 0x1D, 0x80, 0x18, 0x71, 0x1C, 0x16, 0x20, 0x58,
                       0x2C, 0x25, 0x00, 0xC4, 0x8E, 0x21, 0x00, 0x00, 0x9E};

EdidDetailedResolution ReadFrom(const Bytes& bytes) {
    EdidDetailedResolution item;
    EXPECT_TRUE(item.Read(bytes));
    return item;
}

Bytes With(Bytes bytes, int offset, int value) {
    bytes.At(offset) = static_cast<std::uint8_t>(value);
    return bytes;
}

TEST(EdidDetailedResolution, ReadsTheFieldsOfAFullHdTiming) {
    const EdidDetailedResolution item = ReadFrom(FullHd);
    EXPECT_EQ(item.hactive, 1920);
    EXPECT_EQ(item.vactive, 1080);
    EXPECT_EQ(Counts(item), "88 44 148 4 5 36 2200x1125");
    EXPECT_EQ(item.hblank, 280);
    EXPECT_EQ(item.vblank, 45);
    EXPECT_EQ(item.imageWidth, 597);
    EXPECT_EQ(item.imageHeight, 336);
    EXPECT_EQ(item.hborder, 0);
    EXPECT_EQ(item.vborder, 0);
    EXPECT_TRUE(item.hpolarity);
    EXPECT_TRUE(item.vpolarity);
    EXPECT_FALSE(item.interlaced);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "1920x1080 @ 60.000 Hz (148.50 MHz) [+/+]");
    EXPECT_EQ(BytesOf(item, FrameSize), FullHd);
}

TEST(EdidDetailedResolution, ReadsAsAManualTimingOfItsClock) {
    EdidDetailedResolution item = Calculated<EdidDetailedResolution>(Timing::Qft, 640, 480, 30);
    ASSERT_TRUE(item.Read(FullHd));
    EXPECT_EQ(item.timing, Timing::Manual);
    EXPECT_EQ(item.parameterType, ParameterType::BackPorch);
    EXPECT_EQ(item.frequencyType, FrequencyType::RefreshRate);
    EXPECT_EQ(item.qftSource, QftSource::PixelClock);
    EXPECT_EQ(item.pixelclock, Rate("148.5"));
    EXPECT_EQ(item.actualpixelclock, Rate("148.5"));
    EXPECT_EQ(item.vrate, Decimal(60));
    EXPECT_EQ(item.actualvrate, Decimal(60));
    EXPECT_EQ(item.hrate, Rate("67.5"));
    EXPECT_EQ(item.actualhrate, Rate("67.5"));
}

TEST(EdidDetailedResolution, AnEditThatChangesNothingKeepsTheBytes) {
    EXPECT_EQ(BytesOf(EdidDetailedResolution(ReadFrom(FullHd)), FrameSize), FullHd);
    EXPECT_EQ(BytesOf(EdidDetailedResolution(ReadFrom(Interlaced)), FrameSize), Interlaced);
}

TEST(EdidDetailedResolution, IsADescriptorAndAResolution) {
    const EdidDetailedResolution item = ReadFrom(FullHd);
    const AnyEdidDescriptor& descriptor = item;
    const AnyResolution& resolution = item;
    EXPECT_EQ(descriptor.GetType(), EdidDescriptorTypeId::DetailedResolution);
    EXPECT_EQ(resolution.GetType(), ResolutionTypeEnum::EdidDetailed);
    EXPECT_TRUE(*descriptor.Clone() == descriptor);
    EXPECT_TRUE(*resolution.Clone() == resolution);
    EXPECT_TRUE(item == ReadFrom(FullHd));
    EXPECT_FALSE(item == EdidDetailedResolution());
    EdidDetailedResolution other;
    EXPECT_TRUE(other.Assign(descriptor));
    EXPECT_TRUE(other == item);
    EXPECT_TRUE(other.Assign(static_cast<const AnyResolution&>(EdidDetailedResolution())));
    EXPECT_FALSE(other == item);
}

TEST(EdidDetailedResolution, ComparesItsOwnFieldsToo) {
    const EdidDetailedResolution item;
    const auto differs = [&item](auto change) {
        EdidDetailedResolution changed;
        change(changed);
        return !(changed == item);
    };
    EXPECT_TRUE(differs([](auto& x) { x.imageWidth = 1; }));
    EXPECT_TRUE(differs([](auto& x) { x.imageHeight = 1; }));
    EXPECT_TRUE(differs([](auto& x) { x.hborder = 1; }));
    EXPECT_TRUE(differs([](auto& x) { x.vborder = 1; }));
    EXPECT_TRUE(differs([](auto& x) { x.stereo = EdidDetailedResolutionStereoEnum::SideBySide; }));
    EXPECT_TRUE(differs([](auto& x) { x.syncType = SyncType::DigitalComposite; }));
    EXPECT_TRUE(differs([](auto& x) { x.syncOn = EdidDetailedResolutionSyncOnEnum::Rgb; }));
    EXPECT_TRUE(differs([](auto& x) { x.serrations = true; }));
}

TEST(EdidDetailedResolution, StartsWithSeparateSyncAndNoImageSize) {
    const EdidDetailedResolution item;
    EXPECT_EQ(item.syncType, SyncType::DigitalSeparate);
    EXPECT_EQ(item.imageWidth, Undefined);
    EXPECT_EQ(item.imageHeight, Undefined);
    EXPECT_EQ(item.stereo, 0);
    EXPECT_EQ(item.syncOn, 0);
    EXPECT_FALSE(item.serrations);
}

TEST(EdidDetailedResolution, DoesNotReadTextDescriptorsOrShortRanges) {
    EdidDetailedResolution item;
    EXPECT_FALSE(item.Read(Bytes(FullHd.Slice(0, 17))));
    EXPECT_FALSE(item.Read(With(With(FullHd, 0, 0), 1, 0)));
    EXPECT_TRUE(item == EdidDetailedResolution());
    EXPECT_TRUE(item.Read(With(FullHd, 0, 0)));
    EXPECT_TRUE(item.Read(With(FullHd, 1, 0)));
}

TEST(EdidDetailedResolution, DoesNotWriteIntoAShortRange) {
    Bytes bytes(17, 0xAA);
    EXPECT_FALSE(ReadFrom(FullHd).Write(bytes));
    EXPECT_EQ(bytes, Bytes(17, 0xAA));
}

TEST(EdidDetailedResolution, DoesNotWriteWhatTheBytesCannotHold) {
    Bytes bytes(18, 0xAA);
    EXPECT_FALSE(Calculated<EdidDetailedResolution>(Timing::CvtRb, 5120, 2880, 60).Write(bytes));
    EXPECT_EQ(bytes, Bytes(18, 0xAA));
}

TEST(EdidDetailedResolution, KeepsTheBytesOfAZeroWidthThatIsNotValid) {
    const Bytes bytes = With(With(FullHd, 2, 0), 4, 0x01);
    const EdidDetailedResolution item = ReadFrom(bytes);
    EXPECT_EQ(item.hactive, 0);
    EXPECT_FALSE(item.IsValid());
    EXPECT_FALSE(item.GetStatus().IsProper("hactive"));
    EXPECT_TRUE(item.IsValidAll());
    EXPECT_EQ(BytesOf(item, FrameSize), bytes);
}

TEST(EdidDetailedResolution, KeepsAZeroFrontPorchButShowsItAsOutOfLimits) {
    const Bytes bytes = With(FullHd, 8, 0);
    const EdidDetailedResolution item = ReadFrom(bytes);
    EXPECT_EQ(item.hfront, 0);
    EXPECT_FALSE(item.GetStatus().IsProper("hfront"));
    EXPECT_TRUE(item.GetStatus().IsAll("hfront"));
    EXPECT_FALSE(item.IsValid());
    EXPECT_EQ(BytesOf(item, FrameSize), bytes);
}

TEST(EdidDetailedResolution, TakesItsClockAsEnteredWhereItHasNoRate) {
    Bytes bytes(FrameSize, 0);
    bytes.At(0) = 1;
    const EdidDetailedResolution item = ReadFrom(bytes);
    EXPECT_EQ(item.htotal, 0);
    EXPECT_EQ(item.frequencyType, FrequencyType::PixelClock);
    EXPECT_TRUE(item.vrate.IsUndefined());
    EXPECT_TRUE(item.actualvrate.IsUndefined());
    EXPECT_EQ(item.pixelclock, Rate("0.01"));
    EXPECT_EQ(BytesOf(EdidDetailedResolution(item), FrameSize), bytes);
}

TEST(EdidDetailedResolution, CountsAnInterlacedFrameWhereTheBytesCountFields) {
    const EdidDetailedResolution item = ReadFrom(Interlaced);
    EXPECT_TRUE(item.interlaced);
    EXPECT_EQ(item.vactive, 1080);
    EXPECT_EQ(item.vblank, 45);
    EXPECT_EQ(Counts(item), "88 44 148 4 10 31 2200x1125");
    EXPECT_EQ(item.actualvrate, Decimal(60));
    EXPECT_EQ(item.actualhrate, Rate("33.75"));
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "1920x1080i @ 60.000 Hz (74.25 MHz) [+/+]");
}

TEST(EdidDetailedResolution, AnInterlacedBlankOf22FieldLinesIs45AndWrites22) {
    const EdidDetailedResolution item = ReadFrom(Interlaced);
    EXPECT_EQ(Interlaced.At(6), 22);
    EXPECT_EQ(item.vblank, 45);
    EXPECT_EQ(BytesOf(item, FrameSize), Interlaced);
}

TEST(EdidDetailedResolution, DoublesTheBorderLinesOfAnInterlacedFrame) {
    const Bytes bytes = With(Interlaced, 16, 9);
    EXPECT_EQ(ReadFrom(bytes).vborder, 18);
    EXPECT_EQ(BytesOf(ReadFrom(bytes), FrameSize), bytes);
    EXPECT_EQ(ReadFrom(With(FullHd, 16, 9)).vborder, 9);
}

TEST(EdidDetailedResolution, AnEvenInterlacedTotalIsOutOfLimits) {
    EdidDetailedResolutionFields fields = ReadFrom(Interlaced);
    fields.vback = 32;
    const EdidDetailedResolution item(fields);
    EXPECT_EQ(item.vtotal, 1126);
    EXPECT_FALSE(item.GetStatus().IsProper("vback"));
    EXPECT_FALSE(item.GetStatus().IsProper("vblank"));
    EXPECT_FALSE(item.GetStatus().IsProper("vtotal"));
    EXPECT_FALSE(item.IsValidAll());
}

TEST(EdidDetailedResolution, AnImageSizeOfZeroIsUndefined) {
    const Bytes bytes = With(With(With(FullHd, 12, 0), 13, 0), 14, 0);
    const EdidDetailedResolution item = ReadFrom(bytes);
    EXPECT_EQ(item.imageWidth, Undefined);
    EXPECT_EQ(item.imageHeight, Undefined);
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item, FrameSize), bytes);
}

TEST(EdidDetailedResolution, FlagsOf1EAreSeparateSyncWithBothPositive) {
    const EdidDetailedResolution item = ReadFrom(With(FullHd, 17, 0x1E));
    EXPECT_EQ(item.syncType, SyncType::DigitalSeparate);
    EXPECT_TRUE(item.hpolarity);
    EXPECT_TRUE(item.vpolarity);
    EXPECT_EQ(item.stereo, EdidDetailedResolutionStereoEnum::None);
    EXPECT_EQ(BytesOf(item, FrameSize).At(17), 0x1E);
}

TEST(EdidDetailedResolution, TheSyncTypeSaysWhatTheSyncBitsMean) {
    for (const int type : {0x00, 0x08}) {
        const EdidDetailedResolution analog = ReadFrom(With(FullHd, 17, type | 0x06));
        EXPECT_EQ(analog.syncType, type / 8);
        EXPECT_EQ(analog.syncOn, EdidDetailedResolutionSyncOnEnum::Rgb);
        EXPECT_TRUE(analog.serrations);
        EXPECT_FALSE(analog.hpolarity || analog.vpolarity);
        EXPECT_EQ(BytesOf(analog, FrameSize).At(17), type | 0x06);
    }
    const EdidDetailedResolution composite = ReadFrom(With(FullHd, 17, 0x16));
    EXPECT_EQ(composite.syncType, SyncType::DigitalComposite);
    EXPECT_TRUE(composite.hpolarity);
    EXPECT_TRUE(composite.serrations);
    EXPECT_FALSE(composite.vpolarity);
    EXPECT_EQ(composite.syncOn, EdidDetailedResolutionSyncOnEnum::Green);
    const EdidDetailedResolution separate = ReadFrom(With(FullHd, 17, 0x1A));
    EXPECT_TRUE(separate.hpolarity);
    EXPECT_FALSE(separate.vpolarity);
    EXPECT_FALSE(separate.serrations);
}

TEST(EdidDetailedResolution, WritesOnlyWhatTheSyncTypeUses) {
    EdidDetailedResolution item = ReadFrom(With(FullHd, 17, 0x18));
    item.syncOn = EdidDetailedResolutionSyncOnEnum::Rgb;
    item.serrations = true;
    EXPECT_EQ(BytesOf(item, FrameSize).At(17), 0x18);
    item.syncType = SyncType::DigitalComposite;
    item.vpolarity = true;
    EXPECT_EQ(BytesOf(item, FrameSize).At(17), 0x14);
}

TEST(EdidDetailedResolution, StereoStandsInThreeScatteredBits) {
    for (const auto& row : EdidDetailedResolutionStereoEnum::Texts) {
        EdidDetailedResolution item = ReadFrom(FullHd);
        item.stereo = row.value;
        const int flags = BytesOf(item, FrameSize).At(17);
        EXPECT_EQ(flags % 2 + flags / 32 % 4 * 2, row.value) << row.text;
        EXPECT_EQ(ReadFrom(BytesOf(item, FrameSize)).stereo, row.value) << row.text;
    }
}

TEST(EdidDetailedResolution, AModeForcesSeparateSync) {
    EdidDetailedResolutionFields fields = ReadFrom(With(FullHd, 17, 0x02));
    EXPECT_EQ(EdidDetailedResolution(fields).syncType, SyncType::AnalogComposite);
    fields.timing = Timing::Cvt;
    const EdidDetailedResolution item(fields);
    EXPECT_EQ(item.syncType, SyncType::DigitalSeparate);
    EXPECT_EQ(BytesOf(item, FrameSize).At(17) / 8 % 4, 3);
}

TEST(EdidDetailedResolution, AnyBytesOfATimingSurvive) {
    Random random(1);
    for (int i = 0; i < 20000; ++i) {
        Bytes bytes = random.ManyBytes(FrameSize);
        if (bytes.At(0) == 0) bytes.At(0) = 1;
        const EdidDetailedResolution item = ReadFrom(bytes);
        EXPECT_EQ(BytesOf(item, FrameSize), bytes);
    }
}

TEST(EdidDetailedResolution, WhatIsWrittenReadsBackEqual) {
    Random random(2);
    for (int i = 0; i < 5000; ++i) {
        Bytes bytes = random.ManyBytes(FrameSize);
        if (bytes.At(0) == 0) bytes.At(0) = 1;
        const EdidDetailedResolution item = ReadFrom(bytes);
        EXPECT_TRUE(ReadFrom(BytesOf(item, FrameSize)) == item) << HexText(bytes).ToUtf8();
    }
}

TEST(EdidDetailedResolution, AnEditThatChangesNothingKeepsAnySoundBytes) {
    Random random(3);
    int sound = 0;
    for (int i = 0; i < 20000; ++i) {
        Bytes bytes = random.ManyBytes(FrameSize);
        if (bytes.At(0) == 0) bytes.At(0) = 1;
        const EdidDetailedResolution item = ReadFrom(bytes);
        if (!item.IsValid()) continue;
        ++sound;
        EXPECT_EQ(BytesOf(EdidDetailedResolution(item), FrameSize), bytes);
    }
    EXPECT_GT(sound, 1000);
}

TEST(EdidDetailedResolution, ShowsThePictureWithinItsBorders) {
    EdidDetailedResolution item = ReadFrom(FullHd);
    item.hborder = 10;
    EXPECT_EQ(TextOf(item), "[1900x1080] @ 60.000 Hz (148.50 MHz) [+/+]");
    item.vborder = 5;
    EXPECT_EQ(TextOf(item), "[1900x1070] @ 60.000 Hz (148.50 MHz) [+/+]");
    item.hborder = 0;
    EXPECT_EQ(TextOf(item), "[1920x1070] @ 60.000 Hz (148.50 MHz) [+/+]");
    EXPECT_EQ(TextOf(item, "{hactive}x{vactive}"), "1920x1080");
}

TEST(EdidDetailedResolution, ShowsItsSync) {
    const auto shown = [](int flags) {
        const EdidDetailedResolution item = ReadFrom(With(FullHd, 17, flags));
        return TextOf(item, "{synctext} {modelineflags}");
    };
    EXPECT_EQ(shown(0x00), "analog Composite");
    EXPECT_EQ(shown(0x08), "bipolar Composite");
    EXPECT_EQ(shown(0x10), "- Composite -CSync");
    EXPECT_EQ(shown(0x12), "+ Composite +CSync");
    EXPECT_EQ(shown(0x18), "-/- -HSync -VSync");
    EXPECT_EQ(shown(0x1C), "-/+ -HSync +VSync");
}

TEST(EdidDetailedResolution, ShowsItsTypeAndNoAspectRatio) {
    EXPECT_EQ(TextOf(ReadFrom(FullHd), "{type}|{aspectratio}|{aspectratiotext}|{pixelclock}"),
              "EDID detailed|||148.50");
}

TEST(EdidDetailedResolution, HasNoTextForWhatCannotBeWritten) {
    EXPECT_EQ(TextOf(Calculated<EdidDetailedResolution>(Timing::CvtRb, 5120, 2880, 60)), "");
    EXPECT_EQ(TextOf(Calculated<EdidDetailedResolution>(Timing::CvtRb, 1920, 1080, 0), "{type}"), "");
}

TEST(EdidDetailedResolution, ListsTheVocabularyInTheOrderOfItsBox) {
    std::string texts;
    for (const auto& row : EdidDetailedResolutionStereoEnum::Texts) texts += std::to_string(row.value) + row.text + ";";
    EXPECT_EQ(texts,
              "0None;1None (DE-timing only);2Field sequential (right);4Field sequential (left);"
              "32-way interleaved (right);52-way interleaved (left);64-way interleaved;7Side-by-side;");
}

}  // namespace
}  // namespace VNT

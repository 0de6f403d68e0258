#include "model/cta/audio_formats.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

// The holder reads the bytes as X, which says `text` and writes the same bytes.
template <class X>
X CheckFormat(const char* hex, const std::string& text) {
    const Bytes bytes = FromHex(hex);
    const auto holder = ReadAs<CtaAudioFormat>(bytes);
    X format;
    EXPECT_TRUE(format.Assign(holder)) << hex;
    EXPECT_TRUE(holder.IsValidAll()) << hex;
    EXPECT_EQ(TextOf(holder), text) << hex;
    EXPECT_EQ(BytesOf(holder, 3), bytes) << hex;
    return format;
}

// As an edit makes it.
template <class X>
X Edited(const X& format) {
    return X(static_cast<const typename X::FieldsType&>(format));
}

TEST(CtaAudioFormat, ACodeWithoutAClassIsKept) {
    CheckFormat<CtaOtherAudioFormat>("FF FF FF", "Other");
    CheckFormat<CtaOtherAudioFormat>("7F 00 00", "Other");
    CheckFormat<CtaOtherAudioFormat>("07 07 07", "Other");
    CheckFormat<CtaOtherAudioFormat>("00 00 00", "Other");
    CheckFormat<CtaOtherAudioFormat>("87 FF FF", "Other");
    EXPECT_EQ(ReadAs<CtaAudioFormat>(FromHex("FF FF FF")).GetType(), 0x200);
}

TEST(CtaAudioFormat, LessThanThreeBytesAreNone) {
    CtaAudioFormat format;
    EXPECT_FALSE(format.Read(FromHex("09 07")));
    EXPECT_TRUE(format.IsEmpty());
    EXPECT_EQ(format.GetType(), 0x300);
    EXPECT_FALSE(format.IsValid() || format.IsValidAll());
    EXPECT_EQ(TextOf(format), "");
}

TEST(CtaAudioFormat, AFormatRefusesTheBytesOfAnother) {
    auto format = ReadAs<CtaAc3AudioFormat>(FromHex("15 07 50"));
    const auto same = format;
    EXPECT_FALSE(format.Read(FromHex("09 07 07")));
    EXPECT_EQ(format, same);
}

TEST(CtaAudioFormat, LpcmTellsItsBitDepths) {
    const auto format = CheckFormat<CtaLpcmAudioFormat>("09 07 07", "LPCM: 2 channels, 32/44.1/48 kHz, 16/20/24-bit");
    EXPECT_EQ(format.MaxChannels, 2);
    EXPECT_TRUE(format.IsValid());
    CheckFormat<CtaLpcmAudioFormat>("08 7F 00", "LPCM: 1 channel, 32/44.1/48/88.2/96/176.4/192 kHz, no bit depths");
}

TEST(CtaAudioFormat, LpcmKeepsItsReservedBitsThroughAnEdit) {
    auto format = CheckFormat<CtaLpcmAudioFormat>("8F 87 87", "LPCM: 8 channels, 32/44.1/48 kHz, 16/20/24-bit");
    EXPECT_EQ(format.MaxChannels, 8);
    EXPECT_EQ(format.Reserved.GetBits(), 0x808080u);
    EXPECT_EQ(BytesOf(Edited(format)), FromHex("8F 87 87"));
    format.MaxChannels = 2;
    EXPECT_EQ(BytesOf(Edited(format)), FromHex("89 87 87"));
    format.SampleRates = CtaSampleRates({CtaAudioFormatSampleRateFlagEnum::Khz192});
    EXPECT_EQ(BytesOf(Edited(format)), FromHex("89 C0 87"));
    format.BitDepths = {};
    EXPECT_EQ(BytesOf(Edited(format)), FromHex("89 C0 80"));
}

TEST(CtaAudioFormat, TheCompressedFormatsTellTheirBitRate) {
    const auto format = CheckFormat<CtaAc3AudioFormat>("15 07 50", "AC-3: 6 channels, 32/44.1/48 kHz, 640 kbit/s");
    EXPECT_EQ(format.MaxBitRate, 640);
    CheckFormat<CtaMpeg1AudioFormat>("19 01 00", "MPEG-1: 2 channels, 32 kHz, 0 kbit/s");
    CheckFormat<CtaMp3AudioFormat>("21 02 01", "MP3: 2 channels, 44.1 kHz, 8 kbit/s");
    CheckFormat<CtaMpeg2AudioFormat>("29 04 FF", "MPEG-2: 2 channels, 48 kHz, 2040 kbit/s");
    CheckFormat<CtaAacLcAudioFormat>("31 08 50", "AAC LC: 2 channels, 88.2 kHz, 640 kbit/s");
    CheckFormat<CtaDtsAudioFormat>("3D 1E C0", "DTS: 6 channels, 44.1/48/88.2/96 kHz, 1536 kbit/s");
    CheckFormat<CtaAtracAudioFormat>("41 20 50", "ATRAC: 2 channels, 176.4 kHz, 640 kbit/s");
}

TEST(CtaAudioFormat, ABitRateIsWholeEights) {
    CtaBitRateAudioFormatFields fields;
    for (const int rate : {0, 8, 2040}) {
        fields.MaxBitRate = rate;
        EXPECT_TRUE(CtaAc3AudioFormat(fields).IsValid()) << rate;
    }
    for (const int rate : {-8, 1, 644, 2048, Undefined}) {
        fields.MaxBitRate = rate;
        EXPECT_FALSE(CtaAc3AudioFormat(fields).IsValidAll()) << rate;
    }
}

TEST(CtaAudioFormat, FlagsAreTellTaleOnlyWhenSet) {
    EXPECT_EQ(CheckFormat<CtaDsdAudioFormat>("4D 02 00", "DSD: 6 channels, 44.1 kHz").Flags, 0);
    EXPECT_EQ(CheckFormat<CtaEAc3AudioFormat>("57 06 03", "E-AC-3: 8 channels, 44.1/48 kHz, flags: 3").Flags, 3);
    CheckFormat<CtaDtsHdAudioFormat>("5F 7E FF", "DTS-HD: 8 channels, 44.1/48/88.2/96/176.4/192 kHz, flags: 255");
    CheckFormat<CtaMatAudioFormat>("67 54 01", "MAT: 8 channels, 48/96/192 kHz, flags: 1");
    CheckFormat<CtaDstAudioFormat>("6D 02 00", "DST: 6 channels, 44.1 kHz");
}

TEST(CtaAudioFormat, WmaProTellsItsProfile) {
    const auto format = CheckFormat<CtaWmaProAudioFormat>("75 06 FB", "WMA Pro: 6 channels, 44.1/48 kHz, profile: 3");
    EXPECT_EQ(format.Profile, 3);
    EXPECT_EQ(format.Reserved.GetBits(), 0xF80000u);
}

TEST(CtaAudioFormat, System222IsABitOfAacLcAndRawInHeAac) {
    EXPECT_TRUE(CheckFormat<CtaMpeg4AacLcAudioFormat>("7F 04 37", "MPEG-4 AAC LC: 8 channels, 48 kHz, 960/1024 samples")
                    .Supports222);
    EXPECT_FALSE(
        CheckFormat<CtaMpeg4AacLcAudioFormat>("7F 04 30", "MPEG-4 AAC LC: 8 channels, 48 kHz, no frame lengths")
            .Supports222);
    const auto other =
        CheckFormat<CtaMpeg4HeAacAudioFormat>("7F 04 23", "MPEG-4 HE AAC: 8 channels, 48 kHz, 960 samples");
    EXPECT_EQ(other.Reserved.GetBits(), 0x10000u);
    EXPECT_EQ(BytesOf(Edited(other)), FromHex("7F 04 23"));
    CheckFormat<CtaMpeg4HeAacV2AudioFormat>("79 E4 2C", "MPEG-4 HE AAC v2: 2 channels, 48 kHz, 1024 samples");
}

TEST(CtaAudioFormat, MpegSurroundIsImplicitOrExplicitToo) {
    EXPECT_TRUE(CheckFormat<CtaMpeg4HeAacMpsAudioFormat>(
                    "7D 06 47", "MPEG-4 HE AAC + MPS: 6 channels, 44.1/48 kHz, 960/1024 samples")
                    .ExplicitMps);
    EXPECT_FALSE(CheckFormat<CtaMpeg4AacLcMpsAudioFormat>("7D 06 54",
                                                          "MPEG-4 AAC LC + MPS: 6 channels, 44.1/48 kHz, 1024 samples")
                     .ExplicitMps);
}

TEST(CtaAudioFormat, TheUpperRatesOfMpeg4AreReserved) {
    const auto format = CheckFormat<CtaMpegDUsacAudioFormat>("79 E2 7F", "MPEG-D USAC: 2 channels, 44.1 kHz");
    EXPECT_EQ(format.SampleRates.GetBits(), 2u);
    EXPECT_EQ(format.Reserved.GetBits(), 0x07E000u);
}

TEST(CtaAudioFormat, MpegHHasALevelOrNone) {
    EXPECT_EQ(CheckFormat<CtaMpegH3dAudioFormat>("78 04 58", "MPEG-H 3D: 48 kHz").Level, Undefined);
    const auto format = CheckFormat<CtaMpegH3dAudioFormat>("FB 04 5F", "MPEG-H 3D: level 3, 48 kHz");
    EXPECT_EQ(format.Level, 3);
    EXPECT_EQ(format.Profiles.GetBits(), 3u);
    EXPECT_EQ(format.Reserved.GetBits(), 0x040080u);
    EXPECT_TRUE(format.IsValid());
}

TEST(CtaAudioFormat, Ac4HasFourRatesAndKeepsTheBitsOfTheOthers) {
    auto format = CheckFormat<CtaAc4AudioFormat>("FF FF 67", "AC-4: 44.1/48/96/192 kHz, flags: 7");
    EXPECT_EQ(format.SampleRates.GetBits(), 0x56u);
    EXPECT_EQ(format.Reserved.GetBits(), 0x00A987u);
    format.SampleRates.Set(CtaAudioFormatSampleRateFlagEnum::Khz48, false);
    EXPECT_EQ(BytesOf(Edited(format)), FromHex("FF FB 67"));
    EXPECT_EQ(CheckFormat<CtaAc4AudioFormat>("78 29 60", "AC-4: no sample rates").SampleRates.GetBits(), 0u);
}

TEST(CtaAudioFormat, AuroCxHasNoChannels) {
    EXPECT_EQ(CheckFormat<CtaAuroCxAudioFormat>("7F 84 72", "Auro-Cx: 48 kHz, flags: 2").Reserved.GetBits(), 0x8007u);
}

TEST(CtaAudioFormat, Lpcm3dCountsChannelsInFiveBits) {
    EXPECT_EQ(CheckFormat<CtaLpcm3dAudioFormat>("FF 84 6F", "LPCM 3D: 32 channels, 48 kHz, 16/20/24-bit").MaxChannels,
              32);
    EXPECT_EQ(CheckFormat<CtaLpcm3dAudioFormat>("F8 04 69", "LPCM 3D: 9 channels, 48 kHz, 16-bit").MaxChannels, 9);
    EXPECT_EQ(CheckFormat<CtaLpcm3dAudioFormat>("78 84 69", "LPCM 3D: 17 channels, 48 kHz, 16-bit").MaxChannels, 17);
    EXPECT_EQ(CheckFormat<CtaLpcm3dAudioFormat>("78 04 69", "LPCM 3D: 1 channel, 48 kHz, 16-bit").MaxChannels, 1);
}

TEST(CtaAudioFormat, NoSampleRateIsCarriedButNotSound) {
    const auto format = CheckFormat<CtaLpcmAudioFormat>("09 80 01", "LPCM: 2 channels, no sample rates, 16-bit");
    EXPECT_FALSE(format.IsValid());
    EXPECT_FALSE(format.GetStatus().IsProper("SampleRates"));
    EXPECT_TRUE(format.IsValidAll());
}

TEST(CtaAudioFormat, ANewFormatHasAllOfItsRates) {
    const auto bytesOfNew = [](int type) {
        for (const auto& row : CtaAudioFormatKinds::All()) {
            if (row.type == type) return ToHex(BytesOf(*row.make(), 3));
        }
        return std::string();
    };
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::Lpcm), "0F 7F 07");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::Ac3), "17 7F 50");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::Dsd), "4F 7F 00");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::WmaPro), "77 7F 00");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::Mpeg4HeAac), "7F 1F 20");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::MpegH3d), "78 7F 58");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::Ac4), "78 56 60");
    EXPECT_EQ(bytesOfNew(CtaAudioFormatTypeId::Lpcm3d), "7F 7F 6F");
}

}  // namespace
}  // namespace VNT::Testing

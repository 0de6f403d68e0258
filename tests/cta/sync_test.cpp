// The vendors' data blocks on variable refresh and on the use of a display.
#include <gtest/gtest.h>

#include "model/cta/freesync.h"
#include "model/cta/gsync.h"
#include "model/cta/microsoft.h"
#include "tests/support/cta.h"

namespace VNT::Testing {
namespace {

// Header, OUI, version 2, FreeSync, 48 to 144 Hz, VCP code 0xE6; then Flags2 and the codes; then rate and clock.
constexpr char Least[] = "68 1A 00 00 02 01 30 90 E6";
constexpr char WithCodes[] = "6D 1A 00 00 02 01 30 90 E6 00 A0 FF A0 00";
constexpr char Whole[] = "72 1A 00 00 03 01 30 90 E6 00 00 00 00 00 FF 03 01 00 00";

// What the form makes of a block of these bytes.
CtaFreeSyncDataBlockFields FieldsOf(const char* hex) { return ReadAs<CtaFreeSyncDataBlock>(FromHex(hex)); }
int SizeOf(const CtaFreeSyncDataBlockFields& fields) { return CtaFreeSyncDataBlock(fields).Size; }

TEST(CtaFreeSyncDataBlock, ItsFieldsStandWhereTheBytesHaveThem) {
    const auto block = CheckBlock<CtaFreeSyncDataBlock>(
        "74 1A 00 00 03 C1 30 F0 E6 05 A0 FF 80 40 2C F9 40 E2 01 AA BB", "FreeSync: 48-300 Hz");
    EXPECT_EQ(block.Version, 3);
    EXPECT_TRUE(block.Flags.Test(CtaFreeSyncDataBlockFlagEnum::FreeSync));
    EXPECT_TRUE(block.Flags.Test(CtaFreeSyncDataBlockFlagEnum::PanelReplay));
    EXPECT_EQ(block.Flags.GetBits(), 0xC1u);
    EXPECT_EQ(block.MinRefreshRate, 48);
    EXPECT_EQ(block.MaxRefreshRate, 240);
    EXPECT_EQ(block.VcpCode, 0xE6);
    EXPECT_EQ(block.Flags2, 5);
    EXPECT_EQ(block.Profile1MaxRaw, 160);
    EXPECT_EQ(block.Profile1MinRaw, 255);
    EXPECT_EQ(block.Profile2MaxRaw, 128);
    EXPECT_EQ(block.Profile2MinRaw, 64);
    EXPECT_EQ(block.V3MaxRefreshRate, 300);
    EXPECT_EQ(block.V3Reserved, 62);
    EXPECT_EQ(block.V3MaxPixelClock, Decimal(123456, 3));
    EXPECT_EQ(block.Extra, FromHex("AA BB"));
    EXPECT_EQ(block.PresentLength, 16);
    EXPECT_EQ(TextOf(block, U"{version} {maxrefreshrate} {v3maxrefreshrate} {v3maxpixelclock}"), "3 240 300 123.456");
}

TEST(CtaFreeSyncDataBlock, ANewOneHasFlagsButNoRates) {
    const CtaFreeSyncDataBlock block;
    EXPECT_EQ(block.Version, 1);
    EXPECT_EQ(block.Flags.GetBits(), 1u);
    EXPECT_EQ(block.PresentLength, 5);
    EXPECT_EQ(block.Size, 9);
    for (const int blank : {block.MinRefreshRate, block.MaxRefreshRate, block.VcpCode, block.Profile1MaxRaw,
                            block.Profile1MinRaw, block.Profile2MaxRaw, block.Profile2MinRaw, block.V3MaxRefreshRate})
        EXPECT_EQ(blank, Undefined);
    EXPECT_FALSE(block.IsValidAll());
    EXPECT_EQ(TextOf(block), "");
}

TEST(CtaFreeSyncDataBlock, NineBytesHaveNoLuminancesAndStayNine) {
    const auto block = CheckBlock<CtaFreeSyncDataBlock>(Least, "FreeSync: 48-144 Hz");
    EXPECT_TRUE(block.Profile1MaxLuminance.IsUndefined() && block.Profile1MinLuminance.IsUndefined());
    EXPECT_TRUE(block.Profile2MaxLuminance.IsUndefined() && block.Profile2MinLuminance.IsUndefined());
    EXPECT_EQ(block.Profile1MaxRaw, Undefined);
    EXPECT_TRUE(block.IsValid(9));
    const CtaFreeSyncDataBlock edited(FieldsOf(Least));
    EXPECT_EQ(edited.PresentLength, 5);
    EXPECT_EQ(BytesOf(edited, 9), FromHex(Least));
}

TEST(CtaFreeSyncDataBlock, TwelveBytesStayTwelveUntilAnEditTakesAStep) {
    constexpr char blank[] = "6B 1A 00 00 02 01 30 90 E6 00 00 00";
    constexpr char coded[] = "6B 1A 00 00 02 01 30 90 E6 00 A0 00";
    EXPECT_EQ(CheckBlock<CtaFreeSyncDataBlock>(blank, "FreeSync: 48-144 Hz").PresentLength, 8);
    EXPECT_FALSE(ReadAs<CtaFreeSyncDataBlock>(FromHex(blank)).IsValid());
    EXPECT_EQ(SizeOf(FieldsOf(blank)), 9);
    EXPECT_EQ(SizeOf(FieldsOf(coded)), 14);
}

TEST(CtaFreeSyncDataBlock, AnEditTakesTheSmallestStepThatHoldsWhatIsSet) {
    using Fields = CtaFreeSyncDataBlockFields;
    const auto sizeWith = [](auto&& change) {
        Fields fields = FieldsOf(Least);
        change(fields);
        return SizeOf(fields);
    };
    EXPECT_EQ(sizeWith([](Fields& f) { f.Flags2 = 1; }), 14);
    for (int Fields::*const code :
         {&Fields::Profile1MaxRaw, &Fields::Profile1MinRaw, &Fields::Profile2MaxRaw, &Fields::Profile2MinRaw})
        EXPECT_EQ(sizeWith([code](Fields& f) { f.*code = 1; }), 14);
    EXPECT_EQ(sizeWith([](Fields& f) { f.V3MaxRefreshRate = 1; }), 19);
    EXPECT_EQ(sizeWith([](Fields& f) { f.V3Reserved = 1; }), 19);
    EXPECT_EQ(sizeWith([](Fields& f) { f.V3MaxPixelClock = Decimal(1); }), 19);
    EXPECT_EQ(sizeWith([](Fields& f) { f.Version = 3; }), 9) << "the version has no say";
    EXPECT_EQ(sizeWith([](Fields& f) { f.Extra = Bytes{0}; }), 20);
    EXPECT_EQ(CtaFreeSyncDataBlock(FieldsOf(Whole)).PresentLength, 15);
}

TEST(CtaFreeSyncDataBlock, ALuminanceThatNoCodeSaysTakesItsByteAllTheSame) {
    CtaFreeSyncDataBlockFields fields = FieldsOf(Least);
    fields.RawMode = false;
    fields.Profile1MaxLuminance = Decimal(50);  // would be code 0
    const CtaFreeSyncDataBlock block(fields);
    EXPECT_EQ(block.Profile1MaxRaw, Undefined);
    EXPECT_EQ(block.Profile1MaxLuminance, Decimal(50));
    EXPECT_TRUE(block.IsValid());
    EXPECT_EQ(block.Size, 14);
    fields.Profile1MaxLuminance = Decimal::Undefined();
    EXPECT_EQ(SizeOf(fields), 9);
}

TEST(CtaFreeSyncDataBlock, TheRateOfTheThirdVersionSharesAByteWithItsNeighbour) {
    auto block = CheckBlock<CtaFreeSyncDataBlock>(Whole, "FreeSync: 48-1023 Hz");
    EXPECT_EQ(block.V3MaxRefreshRate, 1023);
    EXPECT_EQ(block.V3Reserved, 0);
    block = CheckBlock<CtaFreeSyncDataBlock>("72 1A 00 00 03 01 30 90 E6 00 00 00 00 00 FF FF 01 00 00",
                                             "FreeSync: 48-1023 Hz");
    EXPECT_EQ(block.V3Reserved, 63);
    CtaFreeSyncDataBlockFields fields = block;
    fields.V3MaxRefreshRate = 256;
    EXPECT_EQ(ToHex(BytesOf(CtaFreeSyncDataBlock(fields), 19).Slice(14, 2)), "00 FD");
    fields.V3MaxRefreshRate = 1024;
    EXPECT_FALSE(CtaFreeSyncDataBlock(fields).IsValidAll());
}

TEST(CtaFreeSyncDataBlock, ABlockTooShortForTheRateOfTheThirdVersionTellsTheOther) {
    const auto block =
        CheckBlock<CtaFreeSyncDataBlock>("6E 1A 00 00 03 01 30 90 E6 00 00 00 00 00 F0", "FreeSync: 48-144 Hz");
    EXPECT_EQ(block.PresentLength, 11);
    EXPECT_EQ(block.GetActualMaxRefreshRate(), 144);
    EXPECT_EQ(CheckBlock<CtaFreeSyncDataBlock>("6F 1A 00 00 03 01 30 90 E6 00 00 00 00 00 F0 00", "FreeSync: 48-240 Hz")
                  .GetActualMaxRefreshRate(),
              240);
    EXPECT_EQ(CheckBlock<CtaFreeSyncDataBlock>("6F 1A 00 00 03 01 30 90 E6 00 00 00 00 00 00 00", "FreeSync: 48-144 Hz")
                  .GetActualMaxRefreshRate(),
              144);
}

TEST(CtaFreeSyncDataBlock, TheTwoSetsOfLimitsDifferInVersionAndRates) {
    const auto block = CheckBlock<CtaFreeSyncDataBlock>("68 1A 00 00 00 00 00 00 00", "FreeSync: 0-0 Hz");
    const ItemStatus status = block.GetStatus();
    for (const char* name : {"Version", "MinRefreshRate", "MaxRefreshRate"}) {
        EXPECT_FALSE(status.IsProper(name)) << name;
        EXPECT_TRUE(status.IsAll(name)) << name;
    }
    EXPECT_EQ(block.VcpCode, Undefined);
    EXPECT_TRUE(status.IsProper("VcpCode"));
    EXPECT_EQ(CheckBlock<CtaFreeSyncDataBlock>("63 1A 00 00", "FreeSync: 0-0 Hz").PresentLength, 0);
    EXPECT_FALSE(ReadAs<CtaFreeSyncDataBlock>(FromHex(Least)).IsValidAll(8));
}

TEST(CtaFreeSyncDataBlock, AFieldOpensWhereTheRoomReachesItsLastByte) {
    const struct {
        const char* name;
        int least;
    } fields[] = {{"Version", 5},           {"Flags", 6},
                  {"MinRefreshRate", 7},    {"MaxRefreshRate", 8},
                  {"VcpCode", 9},           {"Flags2", 10},
                  {"Profile1MaxRaw", 11},   {"Profile1MaxLuminance", 11},
                  {"Profile1MinRaw", 12},   {"Profile1MinLuminance", 12},
                  {"Profile2MaxRaw", 13},   {"Profile2MaxLuminance", 13},
                  {"Profile2MinRaw", 14},   {"Profile2MinLuminance", 14},
                  {"V3MaxRefreshRate", 16}, {"V3Reserved", 16},
                  {"V3MaxPixelClock", 19},  {"Extra", 20}};
    const CtaFreeSyncDataBlock block;
    for (const auto& field : fields) {
        EXPECT_FALSE(block.GetAvailable(field.least - 1).IsProper(field.name)) << field.name;
        EXPECT_TRUE(block.GetAvailable(field.least).IsProper(field.name)) << field.name;
    }
}

TEST(CtaFreeSyncDataBlock, TheProfilesOfAReadBlockFollowTheirCodes) {
    const auto block = CheckBlock<CtaFreeSyncDataBlock>(WithCodes, "FreeSync: 48-144 Hz");
    EXPECT_TRUE(block.RawMode);
    EXPECT_EQ(block.Profile1MaxLuminance, Decimal(1600));
    EXPECT_EQ(block.Profile1MinLuminance, Decimal(16));
    EXPECT_EQ(block.Profile2MaxLuminance, Decimal(1600));
    EXPECT_TRUE(block.Profile2MinLuminance.IsUndefined());
}

TEST(CtaFreeSyncDataBlock, TheCodesFollowTheNumbersOfTheirOwnProfile) {
    CtaFreeSyncDataBlockFields fields = FieldsOf(Least);
    fields.RawMode = false;
    fields.Profile1MaxLuminance = Decimal(1600);
    fields.Profile1MinLuminance = Decimal(16);
    fields.Profile2MaxLuminance = Decimal(200);
    fields.Profile2MinLuminance = Decimal(2);
    const CtaFreeSyncDataBlock block(fields);
    EXPECT_EQ(block.Profile1MaxRaw, 160);
    EXPECT_EQ(block.Profile1MinRaw, 255);
    EXPECT_EQ(block.Profile2MaxRaw, 64);
    EXPECT_EQ(block.Profile2MinRaw, 255);
    EXPECT_EQ(block.Size, 14);
}

TEST(Luminance, TheGreatestDoublesEvery32Codes) {
    EXPECT_EQ(Luminance::DecodeMax(32), Decimal(100));
    EXPECT_EQ(Luminance::DecodeMax(160), Decimal(1600));
    EXPECT_EQ(DecimalToText(Luminance::DecodeMax(138), 3), "993.486");
    EXPECT_EQ(DecimalToText(Luminance::DecodeMax(255), 0), "12525");
    EXPECT_TRUE(Luminance::MaxLimits.Contains(Luminance::DecodeMax(255)));
    EXPECT_EQ(Luminance::EncodeMax(Decimal(1000)), 138);
}

TEST(Luminance, TheLeastGoesWithTheSquareOfItsCode) {
    EXPECT_EQ(Luminance::DecodeMin(255, 160), Decimal(16));
    EXPECT_EQ(Luminance::DecodeMin(51, 160), Decimal(64, 2));
    EXPECT_EQ(Luminance::EncodeMin(Decimal(64, 2), 160), 51);
}

TEST(Luminance, WhatNoCodeOrNumberSaysIsUndefined) {
    for (const int code : {0, 256, -1, Undefined, Undefined + 1}) {
        EXPECT_TRUE(Luminance::DecodeMax(code).IsUndefined()) << code;
        EXPECT_TRUE(Luminance::DecodeMin(code, 160).IsUndefined()) << code;
        EXPECT_TRUE(Luminance::DecodeMin(160, code).IsUndefined()) << code;
        EXPECT_EQ(Luminance::EncodeMin(Decimal(1), code), Undefined) << code;
    }
    const Decimal leastButUndefined = Decimal::FromMillionths(Decimal::Undefined().Millionths() + 1);
    for (const Decimal number :
         {Decimal(), Decimal(49), Decimal(50), Decimal(12800), Decimal(12801), Decimal::Undefined(), leastButUndefined})
        EXPECT_EQ(Luminance::EncodeMax(number), Undefined) << number.Millionths();
    for (const Decimal number :
         {Decimal(), Decimal(-1), Decimal(17), Decimal(129), Decimal::Undefined(), leastButUndefined})
        EXPECT_EQ(Luminance::EncodeMin(number, 160), Undefined) << number.Millionths();
}

TEST(Luminance, EveryCodeComesBackFromItsNumber) {
    for (int max = 1; max <= 255; ++max) {
        ASSERT_EQ(Luminance::EncodeMax(Luminance::DecodeMax(max)), max);
        for (int min = 1; min <= 255; ++min)
            ASSERT_EQ(Luminance::EncodeMin(Luminance::DecodeMin(min, max), max), min) << max;
    }
}

TEST(Luminance, ANumberIsRoundedToItsCodeAndStaysWhereItHasNone) {
    int code = Undefined;
    Decimal number(1000);
    Luminance::AlignMax(false, code, number);
    EXPECT_EQ(code, 138);
    EXPECT_EQ(number, Luminance::DecodeMax(138));
    number = Decimal(20);
    Luminance::AlignMax(false, code, number);
    EXPECT_EQ(code, Undefined);
    EXPECT_EQ(number, Decimal(20));
    Luminance::AlignMax(true, code, number);
    EXPECT_TRUE(number.IsUndefined());
}

TEST(CtaGSyncDataBlock, WhatStandsBehindTheRateIsExtra) {
    const auto block = CheckBlock<CtaGSyncDataBlock>("67 4B 04 00 01 1E AA BB", "G-SYNC");
    EXPECT_EQ(block.PresentLength, 3);
    EXPECT_EQ(block.Extra, FromHex("AA BB"));
    EXPECT_EQ(CheckBlock<CtaGSyncDataBlock>("64 4B 04 00 01", "G-SYNC").PresentLength, 1);
    EXPECT_EQ(CheckBlock<CtaGSyncDataBlock>("65 4B 04 00 01 1E", "G-SYNC").PresentLength, 2);
}

TEST(CtaGSyncDataBlock, ZeroIsCarriedButNotSound) {
    const auto block = CheckBlock<CtaGSyncDataBlock>("65 4B 04 00 00 00", "G-SYNC");
    for (const char* name : {"Version", "MinRefreshRate"}) {
        EXPECT_FALSE(block.GetStatus().IsProper(name));
        EXPECT_TRUE(block.GetStatus().IsAll(name));
    }
}

constexpr char Microsoft[] = "75 5C 12 CA 03 C7 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F";

TEST(CtaMicrosoftDataBlock, ItsFieldsStandWhereTheBytesHaveThem) {
    const auto block = CheckBlock<CtaMicrosoftDataBlock>(Microsoft, "Microsoft");
    EXPECT_EQ(block.Version, 3);
    EXPECT_EQ(block.PrimaryUseCase, CtaMicrosoftDataBlockPrimaryUseCaseEnum::VirtualReality);
    EXPECT_TRUE(block.Flags.Test(CtaMicrosoftDataBlockFlagEnum::DesktopUsage));
    EXPECT_FALSE(block.Flags.Test(CtaMicrosoftDataBlockFlagEnum::ThirdPartyUsage));
    EXPECT_EQ(block.Flags.GetBits(), 6u) << "the third bit is kept";
    EXPECT_EQ(TextOf(block, U"{containerid}"), "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F");
    EXPECT_EQ(block.PresentLength, 18);
    EXPECT_TRUE(block.IsValid());
    EXPECT_EQ(BytesOf(CtaMicrosoftDataBlock(static_cast<const CtaMicrosoftDataBlockFields&>(block)), 22),
              FromHex(Microsoft));
}

TEST(CtaMicrosoftDataBlock, WhatStandsBehindTheIdIsExtra) {
    const auto block = CheckBlock<CtaMicrosoftDataBlock>(
        "76 5C 12 CA 03 25 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F AA", "Microsoft");
    EXPECT_EQ(block.PresentLength, 19);
    EXPECT_TRUE(block.Flags.Test(CtaMicrosoftDataBlockFlagEnum::ThirdPartyUsage));
    EXPECT_EQ(block.Extra, Bytes{0xAA});
    const CtaMicrosoftDataBlock edited(static_cast<const CtaMicrosoftDataBlockFields&>(block));
    EXPECT_EQ(edited.PresentLength, 19);
    EXPECT_EQ(edited.Size, 23);
}

TEST(CtaMicrosoftDataBlock, AShorterOneIsKeptButNotSound) {
    for (const char* hex : {"63 5C 12 CA", "64 5C 12 CA 03", "68 5C 12 CA 03 07 00 01 02",
                            "74 5C 12 CA 03 C7 00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E"}) {
        const auto block = CheckBlock<CtaMicrosoftDataBlock>(hex, "Microsoft");
        EXPECT_LT(block.PresentLength, 18);
        EXPECT_FALSE(block.IsValid());
        EXPECT_TRUE(block.IsValidAll());
    }
}

TEST(CtaMicrosoftDataBlock, AnIdOfAnyOtherLengthIsRefused) {
    CtaMicrosoftDataBlockFields fields;
    EXPECT_TRUE(CtaMicrosoftDataBlock(fields).IsValid());
    for (const int length : {0, 15, 17}) {
        fields.ContainerId = Bytes(length, 0x11);
        EXPECT_FALSE(CtaMicrosoftDataBlock(fields).IsValid());
        EXPECT_FALSE(CtaMicrosoftDataBlock(fields).IsValidAll());
    }
}

TEST(CtaMicrosoftDataBlock, ItsLimits) {
    CtaMicrosoftDataBlockFields fields;
    fields.PrimaryUseCase = 31;
    EXPECT_TRUE(CtaMicrosoftDataBlock(fields).IsValid());
    fields.PrimaryUseCase = 32;
    EXPECT_FALSE(CtaMicrosoftDataBlock(fields).IsValidAll());
    fields = {};
    fields.Version = 0;
    EXPECT_FALSE(CtaMicrosoftDataBlock(fields).IsValid());
    EXPECT_TRUE(CtaMicrosoftDataBlock(fields).IsValidAll());
    fields.Version = 256;
    EXPECT_FALSE(CtaMicrosoftDataBlock(fields).IsValidAll());
}

}  // namespace
}  // namespace VNT::Testing

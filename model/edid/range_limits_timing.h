#pragma once

#include <span>

#include "model/core/flags.h"
#include "model/core/item.h"
#include "model/core/kinds.h"
#include "model/edid/padding.h"

namespace VNT {

// What byte 10 of the range limits descriptor says of timings that are not listed (E-EDID 1.4, 3.10.3.3).
struct EdidRangeLimitsTimingTypeId {
    enum Enum : int { DefaultGtf = 0, Only = 1, SecondaryGtf = 2, Cvt = 4, Other = 0x100, None = 0x200 };
    static constexpr ValueText<Enum> Texts[] = {
        {Only, "Limits only"}, {DefaultGtf, "Default GTF"}, {SecondaryGtf, "Secondary GTF"}, {Cvt, "CVT"}};
};

// The family of the bytes 10 to 17 of the range limits descriptor.
class AnyEdidRangeLimitsTiming : public TAnyFramed<AnyEdidRangeLimitsTiming> {
public:
    static constexpr int FrameSize = 8;
    static constexpr int NoType = EdidRangeLimitsTimingTypeId::None;
    static int PeekType(ByteRange range);  // None below 8 bytes, else the first byte
};

template <class X, EdidRangeLimitsTimingTypeId::Enum id, class Fields, class AllFields = Fields>
using TEdidRangeLimitsTiming =
    TFramedItem<X, AnyEdidRangeLimitsTiming, EdidRangeLimitsTimingTypeId::Enum, id, Fields, AllFields>;

constexpr TextFormat RangeLimitsTimingFormat(std::u32string_view type) { return {U"{type}", U"{type}", U"", type}; }

struct EdidRangeLimitsPlainTimingFields {
    bool operator==(const EdidRangeLimitsPlainTimingFields&) const = default;
};

struct EdidRangeLimitsPlainTimingAllFields : EdidRangeLimitsPlainTimingFields {
    Bytes padding{0x0A, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20};
    bool operator==(const EdidRangeLimitsPlainTimingAllFields&) const = default;
};

// The two kinds that say nothing behind their first byte.
template <class X, EdidRangeLimitsTimingTypeId::Enum id>
class TEdidRangeLimitsPlainTiming
    : public TEdidRangeLimitsTiming<X, id, EdidRangeLimitsPlainTimingFields, EdidRangeLimitsPlainTimingAllFields> {
public:
    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Constant(8, id);
        MapPadding(io, "padding", item.padding, EdidRangeLimitsPlainTimingAllFields().padding);
    }
};

class EdidRangeLimitsDefaultGtfTiming
    : public TEdidRangeLimitsPlainTiming<EdidRangeLimitsDefaultGtfTiming, EdidRangeLimitsTimingTypeId::DefaultGtf> {
public:
    static constexpr TextFormat Format = RangeLimitsTimingFormat(U"Default GTF");
};

class EdidRangeLimitsOnlyTiming
    : public TEdidRangeLimitsPlainTiming<EdidRangeLimitsOnlyTiming, EdidRangeLimitsTimingTypeId::Only> {
public:
    static constexpr TextFormat Format = RangeLimitsTimingFormat(U"Range limits only");
};

// The parameters of a second GTF curve; the initialisers are those of the default one.
struct EdidRangeLimitsSecondaryGtfTimingFields {
    int reserved = 0;
    int startFrequency = 0;  // kHz
    Decimal c{40};
    int m = 600;
    int k = 128;
    Decimal j{20};
    bool operator==(const EdidRangeLimitsSecondaryGtfTimingFields&) const = default;
};

class EdidRangeLimitsSecondaryGtfTiming
    : public TEdidRangeLimitsTiming<EdidRangeLimitsSecondaryGtfTiming, EdidRangeLimitsTimingTypeId::SecondaryGtf,
                                    EdidRangeLimitsSecondaryGtfTimingFields> {
public:
    static constexpr TextFormat Format = RangeLimitsTimingFormat(U"Secondary GTF");

    EdidRangeLimitsSecondaryGtfTiming() = default;
    explicit EdidRangeLimitsSecondaryGtfTiming(const EdidRangeLimitsSecondaryGtfTimingFields& fields) {
        SetFields(fields);
    }

    template <class IO>
    static void Map(IO& io, auto& item) {
        constexpr DecimalCoding halves{Decimal(), Decimal(5, 1), {}};
        const auto halfLimits = Within(DecimalLimits{Decimal(), Decimal(1275, 1), Decimal(5, 1), Decimal(), {}});
        io.Constant(8, TypeValue);
        io.Kept("reserved", 8, item.reserved);
        io.Number("startFrequency", 8, item.startFrequency, ValueCoding{0, 2, {}},
                  TLimitPair(ValueLimits{0, 510, 2, 0, {}}));
        io.Number("c", 8, item.c, halves, halfLimits);
        io.Number("m", 16, item.m, Within(0, 65535));
        io.Number("k", 8, item.k, Within(0, 255));
        io.Number("j", 8, item.j, halves, halfLimits);
    }
};

struct EdidRangeLimitsCvtTimingAspectRatioEnum {
    enum Enum : int { Ratio4x3, Ratio16x9, Ratio16x10, Ratio5x4, Ratio15x9 };
    static constexpr int Count = Ratio15x9 + 1;
    static constexpr ValueText<Enum> Texts[] = {
        {Ratio4x3, "4:3"}, {Ratio16x9, "16:9"}, {Ratio16x10, "16:10"}, {Ratio5x4, "5:4"}, {Ratio15x9, "15:9"}};
};

struct EdidRangeLimitsCvtTimingBlankingFlagEnum {
    enum Enum : int { Standard, Reduced };
    static constexpr ValueText<Enum> Texts[] = {{Standard, "Standard"}, {Reduced, "Reduced"}};
};

struct EdidRangeLimitsCvtTimingScalingFlagEnum {
    enum Enum : int { HorizontalShrink, HorizontalStretch, VerticalShrink, VerticalStretch };
    static constexpr ValueText<Enum> Texts[] = {{HorizontalShrink, "Horizontal shrink"},
                                                {HorizontalStretch, "Horizontal stretch"},
                                                {VerticalShrink, "Vertical shrink"},
                                                {VerticalStretch, "Vertical stretch"}};
};

// What a display takes of CVT timings. A new one states CVT 1.1 and 60 Hz, and nothing else.
struct EdidRangeLimitsCvtTimingFields {
    int versionMajor = 1;
    int versionMinor = 1;
    Decimal subtractPixelClock;  // MHz below the maximum of the descriptor
    int maxWidth = Undefined;    // pixels
    TFlagsMsb<EdidRangeLimitsCvtTimingAspectRatioEnum, 5> aspectRatios;
    EdidRangeLimitsCvtTimingAspectRatioEnum::Enum preferredAspectRatio =
        EdidRangeLimitsCvtTimingAspectRatioEnum::Ratio4x3;
    TFlagsLsb<EdidRangeLimitsCvtTimingBlankingFlagEnum, 2> blanking;
    TFlagsMsb<EdidRangeLimitsCvtTimingScalingFlagEnum, 4> scaling;
    int preferredRefreshRate = 60;  // Hz
    bool operator==(const EdidRangeLimitsCvtTimingFields&) const = default;
};

struct EdidRangeLimitsCvtTimingAllFields : EdidRangeLimitsCvtTimingFields {
    int reserved1 = 0;
    int reserved2 = 0;
    int reserved3 = 0;
    bool operator==(const EdidRangeLimitsCvtTimingAllFields&) const = default;
};

class EdidRangeLimitsCvtTiming
    : public TEdidRangeLimitsTiming<EdidRangeLimitsCvtTiming, EdidRangeLimitsTimingTypeId::Cvt,
                                    EdidRangeLimitsCvtTimingFields, EdidRangeLimitsCvtTimingAllFields> {
public:
    static constexpr TextFormat Format = RangeLimitsTimingFormat(U"CVT");

    EdidRangeLimitsCvtTiming() = default;
    explicit EdidRangeLimitsCvtTiming(const EdidRangeLimitsCvtTimingFields& fields) { SetFields(fields); }

    template <class IO>
    static void Map(IO& io, auto& item) {
        constexpr Decimal quarter(25, 2);
        constexpr DecimalCoding quarters{Decimal(), quarter, {}};
        constexpr ValueCoding cells{0, 8, {{0, Undefined}}};
        io.Constant(8, TypeValue);
        io.Number("versionMinor", {{1, 0, 4}}, item.versionMinor, Within(0, 15));
        io.Number("versionMajor", {{1, 4, 4}}, item.versionMajor, Within({1, 15}, {0, 15}));
        io.Number("subtractPixelClock", {{2, 2, 6}}, item.subtractPixelClock, quarters,
                  TLimitPair(DecimalLimits{Decimal(), Decimal(975, 2), quarter, Decimal(), {}},
                             DecimalLimits{Decimal(), Decimal(1575, 2), quarter, Decimal(), {}}));
        io.Number("maxWidth", {{3, 0, 8}, {2, 0, 2}}, item.maxWidth, cells,
                  TLimitPair(ValueLimits{8, 8184, 8, 0, {Undefined}}));
        io.Kept("reserved1", {{4, 0, 3}}, item.reserved1);
        io.Kept("aspectRatios", {{4, 3, 5}}, item.aspectRatios);
        io.Kept("reserved2", {{5, 0, 3}}, item.reserved2);
        io.Kept("blanking", {{5, 3, 2}}, item.blanking);
        io.Number("preferredAspectRatio", {{5, 5, 3}}, item.preferredAspectRatio,
                  TLimitPair(item.PreferredLimits(), EnumLimits{8, {}}));
        io.Kept("reserved3", {{6, 0, 4}}, item.reserved3);
        io.Kept("scaling", {{6, 4, 4}}, item.scaling);
        io.Number("preferredRefreshRate", {{7, 0, 8}}, item.preferredRefreshRate, Within({1, 255}, {0, 255}));
    }

private:
    // One of the supported ratios, any named one if none is.
    EnumLimits PreferredLimits() const;
};

struct EdidRangeLimitsOtherTimingFields {
    int tag = 0;
    Bytes data = Bytes(7, 0);
    bool operator==(const EdidRangeLimitsOtherTimingFields&) const = default;
};

// A kind of timing that no class is read for.
class EdidRangeLimitsOtherTiming
    : public TEdidRangeLimitsTiming<EdidRangeLimitsOtherTiming, EdidRangeLimitsTimingTypeId::Other,
                                    EdidRangeLimitsOtherTimingFields> {
public:
    static constexpr TextFormat Format = RangeLimitsTimingFormat(U"Other");

    EdidRangeLimitsOtherTiming() = default;
    explicit EdidRangeLimitsOtherTiming(const EdidRangeLimitsOtherTimingFields& fields) { SetFields(fields); }

    static bool Accepts(int peekedType) { return peekedType != EdidRangeLimitsTimingTypeId::None; }

    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Number("tag", 8, item.tag, Within(0, 255));
        io.Data("data", 7, item.data, Exactly(7));
    }
};

struct EdidRangeLimitsTimingKinds {
    static std::span<const TKind<AnyEdidRangeLimitsTiming>> All();
    static std::unique_ptr<AnyEdidRangeLimitsTiming> Read(ByteRange range);
};

using EdidRangeLimitsTiming = TFramedContainer<AnyEdidRangeLimitsTiming, EdidRangeLimitsTimingKinds>;

inline constexpr TKindList EdidRangeLimitsTimingKindList{
    TOtherKind<EdidRangeLimitsOtherTiming>(),
    KindOf<EdidRangeLimitsDefaultGtfTiming>("Default GTF"),
    KindOf<EdidRangeLimitsOnlyTiming>("Range limits only"),
    KindOf<EdidRangeLimitsSecondaryGtfTiming>("Secondary GTF"),
    KindOf<EdidRangeLimitsCvtTiming>("CVT"),
};

}  // namespace VNT

// The short audio descriptors of CTA-861-I, 7.5.2: three bytes each, by the code of the format.
#pragma once

#include <cstdint>
#include <span>

#include "model/core/flags.h"
#include "model/core/item.h"
#include "model/core/kinds.h"
#include "model/core/list.h"

namespace VNT {

// The format code, or the extended code plus `Extended`.
struct CtaAudioFormatTypeId {
    static constexpr int Extended = 0x100;

    enum Enum : int {
        Lpcm = 1,
        Ac3,
        Mpeg1,
        Mp3,
        Mpeg2,
        AacLc,
        Dts,
        Atrac,
        Dsd,
        EAc3,
        DtsHd,
        Mat,
        Dst,
        WmaPro,
        Mpeg4HeAac = 0x104,
        Mpeg4HeAacV2,
        Mpeg4AacLc,
        Mpeg4HeAacMps = 0x108,
        Mpeg4AacLcMps = 0x10A,
        MpegH3d,
        Ac4,
        Lpcm3d,
        AuroCx,
        MpegDUsac,
        Other = 0x200,
        None = 0x300,
    };
    static constexpr ValueText<Enum> Texts[] = {
        {Lpcm, "LPCM"},
        {Ac3, "AC-3"},
        {Mpeg1, "MPEG-1"},
        {Mp3, "MP3"},
        {Mpeg2, "MPEG-2"},
        {AacLc, "AAC LC"},
        {Dts, "DTS"},
        {Atrac, "ATRAC"},
        {Dsd, "DSD"},
        {EAc3, "E-AC-3"},
        {DtsHd, "DTS-HD"},
        {Mat, "MAT"},
        {Dst, "DST"},
        {WmaPro, "WMA Pro"},
        {Mpeg4HeAac, "MPEG-4 HE AAC"},
        {Mpeg4HeAacV2, "MPEG-4 HE AAC v2"},
        {Mpeg4AacLc, "MPEG-4 AAC LC"},
        {Mpeg4HeAacMps, "MPEG-4 HE AAC + MPS"},
        {Mpeg4AacLcMps, "MPEG-4 AAC LC + MPS"},
        {MpegH3d, "MPEG-H 3D"},
        {Ac4, "AC-4"},
        {Lpcm3d, "LPCM 3D"},
        {AuroCx, "Auro-Cx"},
        {MpegDUsac, "MPEG-D USAC"},
        {Other, "Other"},
    };
    // What texts, choosers and forms call the format.
    static constexpr const char* TextOf(Enum type) {
        for (const auto& row : Texts) {
            if (row.value == type) return row.text;
        }
        return "";
    }
};

struct CtaAudioFormatSampleRateFlagEnum {
    enum Enum : int { Khz32, Khz44, Khz48, Khz88, Khz96, Khz176, Khz192 };
    static constexpr ValueText<Enum> Texts[] = {  // kHz
        {Khz32, "32"}, {Khz44, "44.1"},   {Khz48, "48"},  {Khz88, "88.2"},
        {Khz96, "96"}, {Khz176, "176.4"}, {Khz192, "192"}};
};

struct CtaAudioFormatBitDepthFlagEnum {
    enum Enum : int { Bits16, Bits20, Bits24 };
    static constexpr ValueText<Enum> Texts[] = {{Bits16, "16"}, {Bits20, "20"}, {Bits24, "24"}};
};

struct CtaAudioFormatFrameLengthFlagEnum {
    enum Enum : int { Samples960, Samples1024 };
    static constexpr ValueText<Enum> Texts[] = {{Samples960, "960"}, {Samples1024, "1024"}};
};

// Usual counts of channels.
struct CtaAudioFormatChannelPresetEnum {
    enum Enum : int { Stereo = 2, Surround51 = 6, Surround71 = 8, SystemH = 24 };
    static constexpr ValueText<Enum> Texts[] = {
        {Stereo, "2 (stereo)"},
        {Surround51, "6 (5.1 surround)"},
        {Surround71, "8 (7.1 surround)"},
        {SystemH, "24 (22.2 System H)"},
    };
};

class AnyCtaAudioFormat : public TAnyFramed<AnyCtaAudioFormat> {
public:
    static constexpr int FrameSize = 3;
    static constexpr int NoType = CtaAudioFormatTypeId::None;
    // The code of the bytes, whether a class is there for it or not; None below three bytes.
    static int PeekType(ByteRange range);
};

struct CtaAudioFormatReservedBitEnum {
    enum Enum : int {};
};

// What every record of a format's fields begins with. `Reserved` has the bits of the three bytes that are no field and
// no code, in their places: those of `reservedMask`. An edit keeps them.
template <class SampleRateFlags, std::uint32_t reservedMask>
struct TCtaAudioFormatFields {
    SampleRateFlags SampleRates = SampleRateFlags(SampleRateFlags::AllBits);
    TFlags<CtaAudioFormatReservedBitEnum, 24, reservedMask> Reserved;
    bool operator==(const TCtaAudioFormatFields&) const = default;
};
template <class SampleRateFlags, std::uint32_t reservedMask>
struct TCtaChannelAudioFormatFields : TCtaAudioFormatFields<SampleRateFlags, reservedMask> {
    int MaxChannels = 8;
    bool operator==(const TCtaChannelAudioFormatFields&) const = default;
};

// "{key}" is the texts of the set flags, joined by slashes; "{textKey}" is `none` where none is set, else `some`.
template <class Flags, class Value, std::size_t count>
void FillFlagTexts(TextTable& table, std::u32string_view key, std::u32string_view textKey, const Flags& flags,
                   const ValueText<Value> (&rows)[count], std::u32string_view none, std::u32string_view some) {
    String joined;
    for (const auto& row : rows) {
        if (!flags.Test(row.value)) continue;
        if (!joined.IsEmpty()) joined.Append(U'/');
        joined += row.text;
    }
    table.Set(textKey, joined.IsEmpty() ? none : some);
    table.Set(key, joined);
}

// A format by its code, its channels where `Fields` has them, its sample rates and what X maps beside these:
//
//     template <class IO> static void MapFields(IO& io, auto& format);
//     static constexpr TextFormat Format = GetFormatOf(U"...");  // the description
//
// Particular: `FillFieldTexts(table)`, `ChannelPlace` and `MostChannels`.
template <class X, CtaAudioFormatTypeId::Enum id, class Fields>
class TCtaAudioFormat : public TFramedItem<X, AnyCtaAudioFormat, CtaAudioFormatTypeId::Enum, id, Fields> {
public:
    static constexpr bool HasChannels = requires(Fields & fields) { fields.MaxChannels; };
    static constexpr BitPlace ChannelPlace{{0, 0, 3}};
    static constexpr int MostChannels = 8;

    void FillTexts(TextTable& table) const {
        table.Set(U"{typetext}", CtaAudioFormatTypeId::TextOf(id));
        FillFlagTexts(table, U"{samplerates}", U"{sampleratestext}", this->SampleRates,
                      CtaAudioFormatSampleRateFlagEnum::Texts, U"no sample rates", U"{samplerates} kHz");
        if constexpr (HasChannels) {
            table.Set(U"{maxchannels}", this->MaxChannels);
            table.Set(U"{maxchannelstext}", this->MaxChannels == 1 ? U"1 channel" : U"{maxchannels} channels");
        }
        static_cast<const X&>(*this).FillFieldTexts(table);
    }

    template <class IO>
    static void Map(IO& io, auto& format) {
        using Rates = decltype(format.SampleRates);
        constexpr int mostRates = static_cast<int>(Rates::AllBits);
        io.Kept("Reserved", 24, format.Reserved);
        MapCode(io);
        if constexpr (HasChannels) {
            io.Number("MaxChannels", X::ChannelPlace, format.MaxChannels, ValueCoding{1, 1, {}},
                      Within(1, X::MostChannels));
        }
        io.Number("SampleRates", BitPlace{{1, 0, Rates::BitCount}}, format.SampleRates,
                  Within({1, mostRates}, {0, mostRates}));
        X::MapFields(io, format);
    }

    // Defaults of what a kind may replace.
    void FillFieldTexts(TextTable&) const {}
    template <class IO>
    static void MapFields(IO&, auto&) {}

protected:
    static constexpr TextFormat GetFormatOf(std::u32string_view description) {
        return {U"{type}: {description}", U"{type}: {description}", description, U"{typetext}"};
    }

private:
    template <class IO>
    static void MapCode(IO& io) {
        constexpr std::uint32_t extendedCode = 15;
        constexpr bool isExtended = id >= CtaAudioFormatTypeId::Extended;
        io.Constant(BitPlace{{0, 3, 4}}, isExtended ? extendedCode : static_cast<std::uint32_t>(id));
        if constexpr (isExtended) io.Constant(BitPlace{{2, 3, 5}}, id - CtaAudioFormatTypeId::Extended);
    }
};

// The table of kinds: what the holder reads and what the "Add Audio Format" form offers.
struct CtaAudioFormatKinds {
    static std::span<const TKind<AnyCtaAudioFormat>> All();
    static std::unique_ptr<AnyCtaAudioFormat> Read(ByteRange range);
};

using CtaAudioFormat = TFramedContainer<AnyCtaAudioFormat, CtaAudioFormatKinds>;
using CtaAudioFormatList = TSlotList<CtaAudioFormat, AnyCtaAudioFormat::FrameSize>;

}  // namespace VNT

// The formats of the short audio descriptors.
#pragma once

#include "model/cta/audio_format.h"

namespace VNT {

using CtaSampleRates = TFlagsLsb<CtaAudioFormatSampleRateFlagEnum, 7>;
using CtaLowSampleRates = TFlagsLsb<CtaAudioFormatSampleRateFlagEnum, 5>;  // up to 96 kHz
using CtaBitDepths = TFlagsLsb<CtaAudioFormatBitDepthFlagEnum, 3>;
using CtaFrameLengths = TFlagsLsb<CtaAudioFormatFrameLengthFlagEnum, 2>;

struct CtaBitRateAudioFormatFields : TCtaChannelAudioFormatFields<CtaSampleRates, 0x8080> {
    int MaxBitRate = 640;  // kbit/s
    bool operator==(const CtaBitRateAudioFormatFields&) const = default;
};

template <CtaAudioFormatTypeId::Enum id>
class TCtaBitRateAudioFormat : public TCtaAudioFormat<TCtaBitRateAudioFormat<id>, id, CtaBitRateAudioFormatFields> {
public:
    static constexpr TextFormat Format =
        TCtaBitRateAudioFormat::GetFormatOf(U"{maxchannelstext}, {sampleratestext}, {maxbitrate} kbit/s");

    TCtaBitRateAudioFormat() = default;
    explicit TCtaBitRateAudioFormat(const CtaBitRateAudioFormatFields& fields) { this->SetFields(fields); }

    void FillFieldTexts(TextTable& table) const { table.Set(U"{maxbitrate}", this->MaxBitRate); }
    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Number("MaxBitRate", BitPlace{{2, 0, 8}}, format.MaxBitRate, ValueCoding{0, 8, {}},
                  TLimitPair(ValueLimits{0, 2040, 8, 0, {}}));
    }
};

using CtaAc3AudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::Ac3>;
using CtaMpeg1AudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::Mpeg1>;
using CtaMp3AudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::Mp3>;
using CtaMpeg2AudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::Mpeg2>;
using CtaAacLcAudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::AacLc>;
using CtaDtsAudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::Dts>;
using CtaAtracAudioFormat = TCtaBitRateAudioFormat<CtaAudioFormatTypeId::Atrac>;

// Flags whose meaning is the format's own affair: a number.
template <class Base>
struct TCtaFlagsAudioFormatFields : Base {
    int Flags = 0;
    bool operator==(const TCtaFlagsAudioFormatFields&) const = default;
};
using CtaFlagsAudioFormatFields = TCtaFlagsAudioFormatFields<TCtaChannelAudioFormatFields<CtaSampleRates, 0x8080>>;
// Of the sample rates 44.1, 48, 96 and 192 kHz alone.
using CtaAc4AudioFormatFields =
    TCtaFlagsAudioFormatFields<TCtaAudioFormatFields<TFlagsLsb<CtaAudioFormatSampleRateFlagEnum, 7, 0x56>, 0xA987>>;
using CtaAuroCxAudioFormatFields = TCtaFlagsAudioFormatFields<TCtaAudioFormatFields<CtaSampleRates, 0x8087>>;

template <CtaAudioFormatTypeId::Enum id, class Fields = CtaFlagsAudioFormatFields, int mostFlags = 255>
class TCtaFlagsAudioFormat : public TCtaAudioFormat<TCtaFlagsAudioFormat<id, Fields, mostFlags>, id, Fields> {
public:
    static constexpr int MostFlags = mostFlags;
    static constexpr TextFormat Format = TCtaFlagsAudioFormat::GetFormatOf(
        TCtaFlagsAudioFormat::HasChannels ? U"{maxchannelstext}, {sampleratestext}{flagstext}"
                                          : U"{sampleratestext}{flagstext}");

    TCtaFlagsAudioFormat() = default;
    explicit TCtaFlagsAudioFormat(const Fields& fields) { this->SetFields(fields); }

    void FillFieldTexts(TextTable& table) const {
        table.Set(U"{flags}", this->Flags);
        table.Set(U"{flagstext}", this->Flags == 0 ? U"" : U", flags: {flags}");
    }
    template <class IO>
    static void MapFields(IO& io, auto& format) {
        constexpr int bits = MostFlags > 7 ? 8 : 3;
        io.Number("Flags", BitPlace{{2, 0, bits}}, format.Flags, Within(0, MostFlags));
    }
};

using CtaDsdAudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::Dsd>;
using CtaEAc3AudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::EAc3>;
using CtaDtsHdAudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::DtsHd>;
using CtaMatAudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::Mat>;
using CtaDstAudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::Dst>;
using CtaAc4AudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::Ac4, CtaAc4AudioFormatFields, 7>;
using CtaAuroCxAudioFormat = TCtaFlagsAudioFormat<CtaAudioFormatTypeId::AuroCx, CtaAuroCxAudioFormatFields, 7>;

template <std::uint32_t reservedMask>
struct TCtaPcmAudioFormatFields : TCtaChannelAudioFormatFields<CtaSampleRates, reservedMask> {
    CtaBitDepths BitDepths = CtaBitDepths(CtaBitDepths::AllBits);
    bool operator==(const TCtaPcmAudioFormatFields&) const = default;
};
using CtaLpcmAudioFormatFields = TCtaPcmAudioFormatFields<0xF88080>;
using CtaLpcm3dAudioFormatFields = TCtaPcmAudioFormatFields<0>;

template <class X, CtaAudioFormatTypeId::Enum id, class Fields>
class TCtaPcmAudioFormat : public TCtaAudioFormat<X, id, Fields> {
public:
    static constexpr TextFormat Format =
        TCtaPcmAudioFormat::GetFormatOf(U"{maxchannelstext}, {sampleratestext}, {bitdepthstext}");

    void FillFieldTexts(TextTable& table) const {
        FillFlagTexts(table, U"{bitdepths}", U"{bitdepthstext}", this->BitDepths, CtaAudioFormatBitDepthFlagEnum::Texts,
                      U"no bit depths", U"{bitdepths}-bit");
    }
    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Kept("BitDepths", BitPlace{{2, 0, 3}}, format.BitDepths);
    }
};

class CtaLpcmAudioFormat
    : public TCtaPcmAudioFormat<CtaLpcmAudioFormat, CtaAudioFormatTypeId::Lpcm, CtaLpcmAudioFormatFields> {
public:
    CtaLpcmAudioFormat() = default;
    explicit CtaLpcmAudioFormat(const CtaLpcmAudioFormatFields& fields) { SetFields(fields); }
};

class CtaLpcm3dAudioFormat
    : public TCtaPcmAudioFormat<CtaLpcm3dAudioFormat, CtaAudioFormatTypeId::Lpcm3d, CtaLpcm3dAudioFormatFields> {
public:
    static constexpr BitPlace ChannelPlace{{0, 0, 3}, {0, 7, 1}, {1, 7, 1}};
    static constexpr int MostChannels = 32;

    CtaLpcm3dAudioFormat() = default;
    explicit CtaLpcm3dAudioFormat(const CtaLpcm3dAudioFormatFields& fields) { SetFields(fields); }
};

struct CtaWmaProAudioFormatFields : TCtaChannelAudioFormatFields<CtaSampleRates, 0xF88080> {
    int Profile = 0;
    bool operator==(const CtaWmaProAudioFormatFields&) const = default;
};

class CtaWmaProAudioFormat
    : public TCtaAudioFormat<CtaWmaProAudioFormat, CtaAudioFormatTypeId::WmaPro, CtaWmaProAudioFormatFields> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"{maxchannelstext}, {sampleratestext}, profile: {profile}");

    CtaWmaProAudioFormat() = default;
    explicit CtaWmaProAudioFormat(const CtaWmaProAudioFormatFields& fields) { SetFields(fields); }

    void FillFieldTexts(TextTable& table) const { table.Set(U"{profile}", Profile); }
    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Number("Profile", BitPlace{{2, 0, 3}}, format.Profile, Within(0, 7));
    }
};

template <std::uint32_t reservedMask>
struct TCtaMpeg4AudioFormatFields : TCtaChannelAudioFormatFields<CtaLowSampleRates, reservedMask> {
    CtaFrameLengths FrameLengths;
    bool operator==(const TCtaMpeg4AudioFormatFields&) const = default;
};

template <class X, CtaAudioFormatTypeId::Enum id, class Fields>
class TCtaMpeg4AudioFormat : public TCtaAudioFormat<X, id, Fields> {
public:
    static constexpr TextFormat Format =
        TCtaMpeg4AudioFormat::GetFormatOf(U"{maxchannelstext}, {sampleratestext}, {framelengthstext}");

    void FillFieldTexts(TextTable& table) const {
        FillFlagTexts(table, U"{framelengths}", U"{framelengthstext}", this->FrameLengths,
                      CtaAudioFormatFrameLengthFlagEnum::Texts, U"no frame lengths", U"{framelengths} samples");
    }
    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Kept("FrameLengths", BitPlace{{2, 1, 2}}, format.FrameLengths);
    }
};

using CtaMpeg4AacAudioFormatFields = TCtaMpeg4AudioFormatFields<0x1E080>;

template <CtaAudioFormatTypeId::Enum id>
class TCtaMpeg4AacAudioFormat
    : public TCtaMpeg4AudioFormat<TCtaMpeg4AacAudioFormat<id>, id, CtaMpeg4AacAudioFormatFields> {
public:
    TCtaMpeg4AacAudioFormat() = default;
    explicit TCtaMpeg4AacAudioFormat(const CtaMpeg4AacAudioFormatFields& fields) { this->SetFields(fields); }
};

using CtaMpeg4HeAacAudioFormat = TCtaMpeg4AacAudioFormat<CtaAudioFormatTypeId::Mpeg4HeAac>;
using CtaMpeg4HeAacV2AudioFormat = TCtaMpeg4AacAudioFormat<CtaAudioFormatTypeId::Mpeg4HeAacV2>;

struct CtaMpeg4AacLcAudioFormatFields : TCtaMpeg4AudioFormatFields<0xE080> {
    bool Supports222 = false;  // 22.2 channels, System H of ITU-R BS.2051
    bool operator==(const CtaMpeg4AacLcAudioFormatFields&) const = default;
};

class CtaMpeg4AacLcAudioFormat : public TCtaMpeg4AudioFormat<CtaMpeg4AacLcAudioFormat, CtaAudioFormatTypeId::Mpeg4AacLc,
                                                             CtaMpeg4AacLcAudioFormatFields> {
public:
    CtaMpeg4AacLcAudioFormat() = default;
    explicit CtaMpeg4AacLcAudioFormat(const CtaMpeg4AacLcAudioFormatFields& fields) { SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Kept("Supports222", BitPlace{{2, 0, 1}}, format.Supports222);
        TCtaMpeg4AudioFormat::MapFields(io, format);
    }
};

struct CtaMpeg4AacMpsAudioFormatFields : TCtaMpeg4AudioFormatFields<0xE080> {
    bool ExplicitMps = false;  // MPEG Surround is signalled explicitly, too
    bool operator==(const CtaMpeg4AacMpsAudioFormatFields&) const = default;
};

template <CtaAudioFormatTypeId::Enum id>
class TCtaMpeg4AacMpsAudioFormat
    : public TCtaMpeg4AudioFormat<TCtaMpeg4AacMpsAudioFormat<id>, id, CtaMpeg4AacMpsAudioFormatFields> {
public:
    TCtaMpeg4AacMpsAudioFormat() = default;
    explicit TCtaMpeg4AacMpsAudioFormat(const CtaMpeg4AacMpsAudioFormatFields& fields) { this->SetFields(fields); }

    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Kept("ExplicitMps", BitPlace{{2, 0, 1}}, format.ExplicitMps);
        TCtaMpeg4AacMpsAudioFormat::TCtaMpeg4AudioFormat::MapFields(io, format);
    }
};

using CtaMpeg4HeAacMpsAudioFormat = TCtaMpeg4AacMpsAudioFormat<CtaAudioFormatTypeId::Mpeg4HeAacMps>;
using CtaMpeg4AacLcMpsAudioFormat = TCtaMpeg4AacMpsAudioFormat<CtaAudioFormatTypeId::Mpeg4AacLcMps>;

struct CtaMpegH3dAudioFormatProfileFlagEnum {
    enum Enum : int { LowComplexity, Baseline };
    static constexpr ValueText<Enum> Texts[] = {{LowComplexity, "Low complexity"}, {Baseline, "Baseline"}};
};

// Beside the numbers 1 to 7.
struct CtaMpegH3dAudioFormatLevelEnum {
    enum Enum : int { None = Undefined };
    static constexpr ValueText<Enum> Texts[] = {{None, "Undefined"}};
};

struct CtaMpegH3dAudioFormatFields : TCtaAudioFormatFields<CtaSampleRates, 0x48080> {
    int Level = Undefined;
    TFlagsLsb<CtaMpegH3dAudioFormatProfileFlagEnum, 2> Profiles;
    bool operator==(const CtaMpegH3dAudioFormatFields&) const = default;
};

class CtaMpegH3dAudioFormat
    : public TCtaAudioFormat<CtaMpegH3dAudioFormat, CtaAudioFormatTypeId::MpegH3d, CtaMpegH3dAudioFormatFields> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"{leveltext}{sampleratestext}");

    CtaMpegH3dAudioFormat() = default;
    explicit CtaMpegH3dAudioFormat(const CtaMpegH3dAudioFormatFields& fields) { SetFields(fields); }

    void FillFieldTexts(TextTable& table) const {
        table.Set(U"{level}", Level);
        table.Set(U"{leveltext}", Level == Undefined ? U"" : U"level {level}, ");
    }
    template <class IO>
    static void MapFields(IO& io, auto& format) {
        io.Number("Level", BitPlace{{0, 0, 3}}, format.Level, ValueCoding{0, 1, {{0, Undefined}}},
                  TLimitPair(ValueLimits{1, 7, 0, 0, {Undefined}}));
        io.Kept("Profiles", BitPlace{{2, 0, 2}}, format.Profiles);
    }
};

using CtaMpegDUsacAudioFormatFields = TCtaChannelAudioFormatFields<CtaLowSampleRates, 0x7E080>;

class CtaMpegDUsacAudioFormat
    : public TCtaAudioFormat<CtaMpegDUsacAudioFormat, CtaAudioFormatTypeId::MpegDUsac, CtaMpegDUsacAudioFormatFields> {
public:
    static constexpr TextFormat Format = GetFormatOf(U"{maxchannelstext}, {sampleratestext}");

    CtaMpegDUsacAudioFormat() = default;
    explicit CtaMpegDUsacAudioFormat(const CtaMpegDUsacAudioFormatFields& fields) { SetFields(fields); }
};

struct CtaOtherAudioFormatFields {
    Bytes data = Bytes(AnyCtaAudioFormat::FrameSize, 0);
    bool operator==(const CtaOtherAudioFormatFields&) const = default;
};

// A descriptor of a code that no class is read for. It has no form: it is kept or deleted.
class CtaOtherAudioFormat : public TFramedItem<CtaOtherAudioFormat, AnyCtaAudioFormat, CtaAudioFormatTypeId::Enum,
                                               CtaAudioFormatTypeId::Other, CtaOtherAudioFormatFields> {
public:
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"{typetext}"};

    CtaOtherAudioFormat() = default;
    explicit CtaOtherAudioFormat(const CtaOtherAudioFormatFields& fields) { SetFields(fields); }

    static bool Accepts(int peekedType) { return peekedType != CtaAudioFormatTypeId::None; }
    void FillTexts(TextTable& table) const { table.Set(U"{typetext}", CtaAudioFormatTypeId::TextOf(TypeValue)); }

    template <class IO>
    static void Map(IO& io, auto& format) {
        io.Data("data", FrameSize, format.data, Exactly(FrameSize));
    }
};

}  // namespace VNT

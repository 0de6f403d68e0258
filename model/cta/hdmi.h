#pragma once

#include <limits>

#include "model/cta/data_block.h"
#include "model/cta/hdmi_stereo.h"
#include "model/timing/video_code.h"

namespace VNT {

struct CtaHdmiDataBlockFlagEnum {
    enum Enum : int { DualLinkDvi, Ycc444Depth = 3, Depth30, Depth36, Depth48, AcpIsrc };
    static constexpr ValueText<Enum> Texts[] = {
        {AcpIsrc, "Supports ACP/ISRC"},          {Depth48, "48-bit deep color (16 bpc)"},
        {Depth36, "36-bit deep color (12 bpc)"}, {Depth30, "30-bit deep color (10 bpc)"},
        {Ycc444Depth, "YCbCr 4:4:4 deep color"}, {DualLinkDvi, "Supports dual-link DVI"},
    };
};

struct CtaHdmiDataBlockFlag2Enum {
    enum Enum : int { Graphics, Photo, Cinema, Game, VideoPresent = 5, InterlacedLatencyPresent, LatencyPresent };
    static constexpr ValueText<Enum> ContentTexts[] = {
        {Graphics, "Graphics"}, {Photo, "Photo"}, {Cinema, "Cinema"}, {Game, "Game"}};
};

struct CtaHdmiDataBlockImageSizeEnum {
    enum Enum : int { Undefined, AspectRatio, NearestCm, NearestCmFifth };
    static constexpr int Count = NearestCmFifth + 1;
    static constexpr ValueText<Enum> Texts[] = {{Undefined, "Undefined"},
                                                {AspectRatio, "Aspect ratio"},
                                                {NearestCm, "Nearest cm"},
                                                {NearestCmFifth, "Nearest cm / 5"}};
};

struct CtaHdmiDataBlockFields : CtaDataBlockFields {
    // The latency of what the display doesn't show or play at all.
    static constexpr int NoSignal = std::numeric_limits<int>::max();

    int PhysicalAddress = 0;  // four numbers of four bits
    TFlagsLsb<CtaHdmiDataBlockFlagEnum, 8> Flags;
    int MaxTmdsClock = Undefined;  // MHz
    TFlagsLsb<CtaHdmiDataBlockFlag2Enum, 8> Flags2;
    int VideoLatency = Undefined;  // ms
    int AudioLatency = Undefined;
    int InterlacedVideoLatency = Undefined;
    int InterlacedAudioLatency = Undefined;
    int Reserved3d = 0;
    CtaHdmiDataBlockImageSizeEnum::Enum ImageSize = CtaHdmiDataBlockImageSizeEnum::Undefined;
    bool Supports3d = false;
    int StereoLength = 0;     // bytes of the 3D formats
    int ResolutionCount = 0;  // of the resolutions
    TVideoCodeList<HdmiResolution> Resolutions;
    HdmiStereoFormats StereoFormats;
    bool operator==(const CtaHdmiDataBlockFields&) const = default;
};

// HDMI's vendor-specific data block (HDMI 1.4b, 8.3.2), of which most fields stand only where a flag says so.
class CtaHdmiDataBlock : public TCtaDataBlock<CtaHdmiDataBlock, CtaDataBlockTypeId::Hdmi, CtaHdmiDataBlockFields> {
public:
    static constexpr SizedShape Shape{13, {2, 3, 4, 5}};
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"HDMI v1"};

    CtaHdmiDataBlock() = default;
    explicit CtaHdmiDataBlock(const CtaHdmiDataBlockFields& fields) { SetFields(fields); }

    // The flags and counts follow from what is there.
    void Normalize();
    // The length up to the second flags; then 6 to 13 for an end in or behind each of the parts that the flags tell of,
    // 14 where bytes stand behind them.
    int GetPresentLength() const;
    static bool AllowsLength(int presentLength);
    TLimitPair<CountLimits> GetExtraLimits(int) const { return CountLimits{0, AnyCtaDataBlock::MaxSize}; }
    // A part that isn't there opens where there is room for it.
    ItemStatus GetAvailable(int size = AnyCtaDataBlock::MaxSize) const override;
    // The room of the resolutions and of the 3D formats in a block of `size` bytes.
    SlotListLimits GetResolutionLimits(int size) const;
    int GetStereoRoom(int size) const;
    // The length of an edited block: without resolutions and 3D formats their counts are left out.
    void UpdateSize();

    template <class IO>
    static void MapFields(IO& io, auto& block) {
        using Flag = CtaHdmiDataBlockFlag2Enum;
        constexpr ValueCoding clock{0, 5, {{0, Undefined}}};
        io.Order(BitOrder::Msb);
        io.Number("PhysicalAddress", 16, block.PhysicalAddress, Within(0, 65535));
        io.Order(BitOrder::Lsb);
        io.Kept("Flags", 8, block.Flags);
        io.Number("MaxTmdsClock", 8, block.MaxTmdsClock, clock, TLimitPair(ValueLimits{5, 1275, 5, 0, {Undefined}}));
        io.Kept("Flags2", 8, block.Flags2);
        if (block.Flags2.Test(Flag::LatencyPresent)) {
            MapLatency(io, "VideoLatency", block.VideoLatency);
            MapLatency(io, "AudioLatency", block.AudioLatency);
        }
        if (block.Flags2.Test(Flag::InterlacedLatencyPresent)) {
            MapLatency(io, "InterlacedVideoLatency", block.InterlacedVideoLatency);
            MapLatency(io, "InterlacedAudioLatency", block.InterlacedAudioLatency);
        }
        if (block.Flags2.Test(Flag::VideoPresent)) MapVideo(io, block);
    }

private:
    // The bytes before and behind the parts; the flags say which there are.
    static constexpr int UpToFlags2 = 9;
    int CountLatencies() const;
    int CountWithoutLists() const { return UpToFlags2 + CountLatencies() + 2 + Extra.Size(); }

    template <class IO>
    static void MapLatency(IO& io, const char* name, auto& latency) {
        constexpr ValueCoding coding{-2, 2, {{0, Undefined}, {255, NoSignal}}};
        constexpr TFew<int> others{Undefined, NoSignal};
        io.Number(name, 8, latency, coding, Within({0, 500, 2, 0, others}, {0, 506, 2, 0, others}));
    }
    template <class IO>
    static void MapVideo(IO& io, auto& block) {
        const auto countLimits = [&block](int count, int most, int upTo) {
            const ValueLimits exactly{count, count};
            return Within(exactly, block.PresentLength <= upTo ? ValueLimits{0, most} : exactly);
        };
        io.Kept("Reserved3d", 3, block.Reserved3d);
        io.Number("ImageSize", 2, block.ImageSize,
                  OneOf<CtaHdmiDataBlockImageSizeEnum>(CtaHdmiDataBlockImageSizeEnum::Count));
        io.Number("FieldsPresent", 2, block.StereoFormats.FieldsPresent, OneOf(4));
        io.Kept("Supports3d", 1, block.Supports3d);
        io.Number("StereoLength", 5, block.StereoLength, countLimits(block.StereoFormats.Size, 31, 13));
        io.Number("ResolutionCount", 3, block.ResolutionCount, countLimits(block.Resolutions.GetCount(), 7, 12));
        const auto listLimits = block.GetResolutionLimits(io.Available());
        io.Area(block.ResolutionCount, [&block, &listLimits](auto& area) {
            area.List("Resolutions", block.Resolutions, TLimitPair(listLimits));
        });
        const bool fits = block.StereoFormats.Size <= HdmiStereoFormats::MaxSize;
        io.Part("StereoFormats", block.StereoLength, block.StereoFormats, fits, fits);
    }
};

}  // namespace VNT

#include "model/cta/hdmi.h"

#include <algorithm>

namespace VNT {

using Flag = CtaHdmiDataBlockFlag2Enum;

void CtaHdmiDataBlock::Normalize() {
    const auto isEither = [](int a, int b) { return a != Undefined || b != Undefined; };
    Flags2.Set(Flag::LatencyPresent, isEither(VideoLatency, AudioLatency));
    Flags2.Set(Flag::InterlacedLatencyPresent, isEither(InterlacedVideoLatency, InterlacedAudioLatency));
    Flags2.Set(Flag::VideoPresent, Supports3d ||
                                       StereoFormats.FieldsPresent != HdmiStereoFormatsFieldsPresentEnum::None ||
                                       ImageSize != CtaHdmiDataBlockImageSizeEnum::Undefined || Reserved3d != 0 ||
                                       !Resolutions.IsEmpty() || StereoFormats.Size > 0);
    ResolutionCount = Resolutions.GetCount();
    StereoLength = StereoFormats.Size;
}

int CtaHdmiDataBlock::CountLatencies() const {
    return (Flags2.Test(Flag::LatencyPresent) ? 2 : 0) + (Flags2.Test(Flag::InterlacedLatencyPresent) ? 2 : 0);
}

int CtaHdmiDataBlock::GetPresentLength() const {
    if (Size <= UpToFlags2) return Size - PrefixSize;
    int end = UpToFlags2;
    if (Flags2.Test(Flag::LatencyPresent)) {
        if (Size <= end + 2) return 5 + Size - end;
        end += 2;
    }
    if (Flags2.Test(Flag::InterlacedLatencyPresent)) {
        if (Size <= end + 2) return 7 + Size - end;
        end += 2;
    }
    if (Flags2.Test(Flag::VideoPresent)) {
        if (Size <= end + 2) return 9 + Size - end;
        end += 2 + ResolutionCount;
        if (Size <= end) return 12;
        if (Size <= end + StereoLength) return 13;
    }
    return Shape.Longer();
}

bool CtaHdmiDataBlock::AllowsLength(int presentLength) {
    constexpr int edited[] = {2, 3, 4, 5, 7, 9, 10, 11, 12, 13, 14};
    return std::find(std::begin(edited), std::end(edited), presentLength) != std::end(edited);
}

ItemStatus CtaHdmiDataBlock::GetAvailable(int size) const {
    ItemStatus reach = GetReach(size);
    const auto add = [&reach, size](int end, std::initializer_list<const char*> names) {
        for (const char* name : names) {
            if (!reach.IsPresent(name)) reach.Report(name, size >= end, size >= end);
        }
    };
    const int ofLatency = Flags2.Test(Flag::LatencyPresent) ? 2 : 0;
    const int ofVideo = UpToFlags2 + CountLatencies();
    add(UpToFlags2 + 1, {"VideoLatency"});
    add(UpToFlags2 + 2, {"AudioLatency"});
    add(UpToFlags2 + ofLatency + 1, {"InterlacedVideoLatency"});
    add(UpToFlags2 + ofLatency + 2, {"InterlacedAudioLatency"});
    add(ofVideo + 1, {"Reserved3d", "ImageSize", "FieldsPresent", "Supports3d"});
    add(ofVideo + 2, {"Resolutions", "StereoFormats"});
    return reach;
}

SlotListLimits CtaHdmiDataBlock::GetResolutionLimits(int size) const {
    return {std::clamp(size - CountWithoutLists() - StereoFormats.Size, 0, 7), HdmiResolution::FrameSize};
}

int CtaHdmiDataBlock::GetStereoRoom(int size) const {
    return std::clamp(size - CountWithoutLists() - Resolutions.GetCount(), 0, HdmiStereoFormats::MaxSize);
}

void CtaHdmiDataBlock::UpdateSize() {
    TSizedItem::UpdateSize();
    const bool isOfSizeAlone = Flags2.Test(Flag::VideoPresent) && ResolutionCount == 0 && StereoLength == 0;
    if (!isOfSizeAlone || !Extra.IsEmpty()) return;
    --Size;
    PresentLength = GetPresentLength();
}

}  // namespace VNT

#include "model/timing/edid_detailed_resolution.h"

#include <algorithm>

#include "model/core/layout_made.h"

namespace VNT {

namespace {

using SyncType = EdidDetailedResolutionSyncTypeEnum;

// What the bits of the 18 bytes can hold, from 0 or from 1. An interlaced frame has two fields and, in its blanking,
// the two half lines between them.
DetailedResolutionLimits LimitsFrom(const DetailedResolutionFields& f, int least, bool mayCutPorch) {
    const int grain = f.interlaced ? 2 : 1;
    const auto pixels = [least](int max) { return ValueLimits{least, max, 0, 0, {}}; };
    const auto lines = [least, grain](int max) {
        return ValueLimits{least * grain, max * grain, grain == 1 ? 0 : grain, 0, {}};
    };
    const ValueLimits hblank{0, 4095, 0, 0, {}};
    const ValueLimits vblank = f.interlaced ? ValueLimits{1, 8191, 2, 1, {}} : hblank;
    return {LimitsOfAxis({pixels(4095), pixels(1023), pixels(1023), hblank, mayCutPorch}, f.hactive, f.hfront, f.hsync),
            LimitsOfAxis({lines(4095), lines(63), lines(63), vblank, mayCutPorch}, f.vactive, f.vfront, f.vsync),
            DecimalLimits{Decimal(1, 2), Decimal(65535, 2), Decimal(1, 2), Decimal(), {}}, 2};
}

}  // namespace

EdidDetailedResolution::EdidDetailedResolution(const EdidDetailedResolutionFields& fields)
    : TDetailedResolution(fields) {
    Settle();
}

void EdidDetailedResolution::Settle() {
    if (timing != DetailedResolutionTimingEnum::Manual) syncType = SyncType::DigitalSeparate;
    TDetailedResolution::Settle();
}

bool EdidDetailedResolution::Read(ByteRange range) {
    if (PeekType(range) != EdidDescriptorTypeId::DetailedResolution || !range.Limit(FrameSize)) return false;
    static_cast<EdidDetailedResolutionFields&>(*this) = EdidDetailedResolutionFields();
    TLayout<EdidDetailedResolution>::Read(*this, range);
    InitFromEncoded(*this);
    return true;
}

bool EdidDetailedResolution::Write(ByteRange range) const {
    if (!range.Limit(FrameSize) || !IsValidAll()) return false;
    TLayout<EdidDetailedResolution>::Write(*this, range);
    return true;
}

DetailedResolutionLimits EdidDetailedResolution::GetLimits() const { return LimitsFrom(*this, 1, false); }

DetailedResolutionLimits EdidDetailedResolution::GetAllLimits() const { return LimitsFrom(*this, 0, true); }

TLimitPair<ValueLimits> EdidDetailedResolution::BorderLimits(int active, const ValueLimits& activeLimits, int grain) {
    const int most = 255 * grain;
    const int step = grain == 1 ? 0 : grain;
    const int room = activeLimits.Contains(active) ? std::min(most, (active - 1) / 2) : most;
    return {ValueLimits{0, room, step, 0, {}}, ValueLimits{0, most, step, 0, {}}};
}

ItemStatus EdidDetailedResolution::GetAvailable() const {
    ItemStatus available;
    const auto report = [&available](const char* name, bool open) { available.Report(name, open, open); };
    const ItemStatus shared = VNT::GetAvailable(*this);
    const bool isOpen = shared.IsProper("pixelclock");
    const bool isAnalog = syncType == SyncType::AnalogComposite || syncType == SyncType::BipolarAnalogComposite;
    for (const FieldStatus& field : shared.Fields()) {
        const std::string_view name = field.name;
        const bool hasNoBit =
            (name == "hpolarity" && isAnalog) || (name == "vpolarity" && syncType != SyncType::DigitalSeparate);
        report(field.name, field.proper && !hasNoBit);
    }
    for (const char* name : {"imageWidth", "imageHeight", "hborder", "vborder", "stereo"}) report(name, true);
    report("syncType", isOpen);
    report("syncOn", isOpen && isAnalog);
    report("serrations", isOpen && (isAnalog || syncType == SyncType::DigitalComposite));
    return available;
}

void EdidDetailedResolution::FillTexts(TextTable& table) const {
    TDetailedResolution::FillTexts(table);
    if (hborder > 0 || vborder > 0) {
        table.Set(U"{width}", hactive - 2 * hborder);
        table.Set(U"{height}", vactive - 2 * vborder);
        table.Set(U"{resolutiontext}", U"[{width}x{height}{i}]");
    }
    switch (syncType) {
        case SyncType::AnalogComposite:
        case SyncType::BipolarAnalogComposite:
            table.Set(U"{synctext}", syncType == SyncType::AnalogComposite ? U"analog" : U"bipolar");
            table.Set(U"{modelineflags}", U"Composite");
            break;
        case SyncType::DigitalComposite:
            table.Set(U"{synctext}", U"{hpolarity}");
            table.Set(U"{modelineflags}", U"Composite {hpolarity}CSync");
            break;
        default:
            break;
    }
}

template struct TLayout<EdidDetailedResolution>;
template struct TMadeItem<EdidDetailedResolution>;

}  // namespace VNT

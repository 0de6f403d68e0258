#include "model/timing/timing_calculation.h"

#include <algorithm>

#include "model/timing/timing_math.h"

namespace VNT {

namespace {

constexpr int MicrosecondsPerSecond = 1000000;

bool IsPictureSize(int value) { return value >= 1 && value <= MaxTimingCount; }

}  // namespace

void TimingAxis::FollowBack() {
    blank = BlankFromBack(front, sync, back);
    total = TotalFromBlank(active, blank);
}

void TimingAxis::FollowBlank() {
    back = BackFromBlank(front, sync, blank);
    total = TotalFromBlank(active, blank);
}

void TimingAxis::FollowTotal() {
    back = BackFromTotal(active, front, sync, total);
    blank = BlankFromBack(front, sync, back);
}

void TimingAxis::SumBack() {
    blank = front + sync + back;
    SumBlank();
}

void TimingAxis::SumBlank() { total = active + blank; }

Decimal HorizontalPeriod(Decimal rate, int blanking, int lines, int fieldsPerFrame) {
    if (rate == Decimal() || lines == 0) return Decimal();
    const Decimal frame = Decimal(fieldsPerFrame * MicrosecondsPerSecond) / rate;
    return (frame - Decimal(blanking * fieldsPerFrame)) / lines;
}

TimingCalculation::TimingCalculation(DetailedResolutionFields& f, const DetailedResolutionLimits& recordLimits)
    : fields(f),
      limits(recordLimits),
      h{f.hactive, f.hfront, f.hsync, f.hback, f.hblank, f.htotal},
      v{f.vactive, f.vfront, f.vsync, f.vback, f.vblank, f.vtotal},
      perFrame(FieldsPerFrame(f.interlaced)),
      oddLine(f.interlaced ? 1 : 0) {}

bool TimingCalculation::CheckInput() const {
    return IsPictureSize(fields.hactive) && IsPictureSize(fields.vactive) && fields.vrate > Decimal();
}

void TimingCalculation::SetPolarities(bool hpolarity, bool vpolarity) {
    fields.hpolarity = hpolarity;
    fields.vpolarity = vpolarity;
}

void TimingCalculation::StoreClock(Decimal clock) {
    fields.actualpixelclock = clock.RoundUp(limits.pixelClockDecimals);
    fields.actualvrate = RefreshRateFromClock(fields.actualpixelclock, fields.htotal, fields.vtotal, fields.interlaced);
    fields.actualhrate = ScanRateFromClock(fields.actualpixelclock, fields.htotal);
}

void TimingCalculation::StoreFromRefresh() {
    StoreClock(ClockFromRefreshRate(fields.vrate, fields.htotal, fields.vtotal, fields.interlaced));
    fields.hrate = fields.actualhrate;
    fields.pixelclock = fields.actualpixelclock;
}

bool TimingCalculation::LookUp(std::span<const PresetTiming> presets, Decimal rate) {
    const Decimal wholeRate = rate.RoundNearest(0);
    const TimingAxisLimits& carried = limits.horizontal;
    // A porch too wide for the encoding passes the row by, unless the encoding can't hold the picture anyway.
    const bool fitsPicture = carried.active.Contains(fields.hactive);
    const auto row = std::find_if(presets.begin(), presets.end(), [&](const PresetTiming& p) {
        return p.hactive == fields.hactive && p.vactive == fields.vactive && p.interlaced == fields.interlaced &&
               Decimal(p.rate) == wholeRate && (!fitsPicture || carried.front.Contains(p.hfront));
    });
    if (row == presets.end()) return false;
    h.front = row->hfront;
    h.sync = row->hsync;
    h.back = row->hback;
    v.front = row->vfront;
    v.sync = row->vsync;
    v.back = row->vback;
    h.FollowBack();
    v.FollowBack();
    SetPolarities(row->hpolarity, row->vpolarity);
    StoreFromRefresh();
    return true;
}

}  // namespace VNT

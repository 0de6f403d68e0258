#include "model/timing/timing_math.h"

namespace VNT {

namespace {

constexpr std::int64_t HzPerMHz = 1000000;
constexpr std::int64_t KHzPerMHz = 1000;

bool IsCount(int value) { return value >= 0 && value <= MaxTimingCount; }
bool IsFront(int value) { return value >= 0 && value <= MaxFrontPorch; }
bool IsTotal(int value) { return value >= 1 && value <= MaxTimingTotal; }

}  // namespace

bool IsTimingClock(Decimal clock) { return clock >= Decimal() && clock <= MaxTimingClock; }

int BackFromBlank(int front, int sync, int blank) {
    return IsFront(front) && IsCount(sync) && IsCount(blank) ? blank - front - sync : Undefined;
}

int BackFromTotal(int active, int front, int sync, int total) {
    if (!IsCount(active) || !IsFront(front) || !IsCount(sync)) return Undefined;
    return total >= active && total <= active + MaxTimingCount ? total - active - front - sync : Undefined;
}

int BlankFromBack(int front, int sync, int back) {
    if (!IsFront(front) || !IsCount(sync)) return Undefined;
    const int taken = front + sync;
    return back >= -taken && back <= MaxTimingCount - taken ? taken + back : Undefined;
}

int TotalFromBlank(int active, int blank) { return IsCount(active) && IsCount(blank) ? active + blank : Undefined; }

Decimal RefreshRateFromClock(Decimal clock, int htotal, int vtotal, bool interlaced) {
    if (!IsTimingClock(clock) || !IsTotal(htotal) || !IsTotal(vtotal)) return Decimal::Undefined();
    return clock * (FieldsPerFrame(interlaced) * HzPerMHz) / htotal / vtotal;
}

Decimal ScanRateFromClock(Decimal clock, int htotal) {
    if (!IsTimingClock(clock) || !IsTotal(htotal)) return Decimal::Undefined();
    return clock * KHzPerMHz / htotal;
}

Decimal ClockFromRefreshRate(Decimal vrate, int htotal, int vtotal, bool interlaced) {
    const Decimal most = RefreshRateFromClock(MaxTimingClock, htotal, vtotal, interlaced);
    if (most.IsUndefined() || vrate < Decimal() || vrate > most) return Decimal::Undefined();
    return vrate * htotal * vtotal / (FieldsPerFrame(interlaced) * HzPerMHz);
}

Decimal ClockFromScanRate(Decimal hrate, int htotal) {
    const Decimal most = ScanRateFromClock(MaxTimingClock, htotal);
    if (most.IsUndefined() || hrate < Decimal() || hrate > most) return Decimal::Undefined();
    return hrate * htotal / KHzPerMHz;
}

int TotalFromRefreshRate(Decimal clock, Decimal vrate, int htotal, bool interlaced) {
    if (!IsTimingClock(clock) || !IsTotal(htotal) || vrate <= Decimal()) return Undefined;
    const Decimal fieldLines = clock * (FieldsPerFrame(interlaced) * HzPerMHz) / htotal;
    int total = (fieldLines / vrate).ToInt();
    if (interlaced && total % 2 == 0) --total;
    return IsTotal(total) ? total : Undefined;
}

}  // namespace VNT

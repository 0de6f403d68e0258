#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <numeric>

#include "model/timing/timing_calculation.h"
#include "model/timing/timing_math.h"

namespace VNT {

namespace {

// Optimized Video Timing (CTA-861-I). Clocks are in Hz; a picture is timed once for the base rate of its family of
// rates and stretched in the vertical blanking for the others.

constexpr std::int64_t MaxDeviceClock = 650000000;
constexpr std::int64_t HighClock = 590000000;  // from here on the blanking must carry more
constexpr int MinBlankTime = 460;              // microseconds
constexpr std::int64_t MinBlankLines = 20;
constexpr std::int64_t MinPixelsAtOnce = 8;
constexpr std::size_t MaxSteps = 100;  // in either direction of a search

struct RateFamily {
    std::int64_t base, lineGrain;
};

struct RateRow {
    int rate;
    RateFamily family;
};
constexpr RateRow RateTable[] = {
    {24, {30, 20}},  {25, {30, 20}},  {30, {30, 20}},  {48, {60, 20}},  {50, {60, 20}},
    {60, {60, 20}},  {100, {120, 5}}, {120, {120, 5}}, {200, {240, 5}}, {240, {240, 5}},
    {300, {360, 5}}, {360, {360, 5}}, {400, {480, 5}}, {480, {480, 5}},
};

RateFamily FamilyOf(std::int64_t rate) {
    for (const RateRow& row : RateTable) {
        if (row.rate == rate) return row.family;
    }
    return {rate, 1};
}

constexpr std::int64_t CeilDivide(std::int64_t a, std::int64_t b) { return (a + b - 1) / b; }

std::int64_t OddPart(std::int64_t x) {
    while (x % 2 == 0) x /= 2;
    return x;
}

struct Totals {
    std::int64_t htotal = 0, vtotal = 0;
};

// A line, and the number that its clock is divided by when as many pixels are handled at once as it has factors of two.
struct Line {
    std::int64_t htotal, oddPart;
};

// The pair of totals with the smallest product whose clock is a whole number of kHz and stays, divided among the pixels
// handled at once, within what a device can clock. Zeros if there is none near the least totals.
Totals FindTotals(const RateFamily& family, std::int64_t htotalMin, std::int64_t vtotalMin) {
    const std::int64_t divisor = 1000 / std::gcd(std::int64_t{1000}, family.base);
    const std::int64_t leastAtOnce = CeilDivide(family.base * htotalMin * vtotalMin, MaxDeviceClock);
    const auto grain =
        static_cast<std::int64_t>(std::bit_ceil(static_cast<std::uint64_t>(std::max(MinPixelsAtOnce, leastAtOnce))));
    std::array<Line, MaxSteps> lines;
    for (std::int64_t htotal = CeilTo(htotalMin, grain); Line & line : lines) {
        line = {htotal, OddPart(htotal)};
        htotal += grain;
    }
    Totals best;
    std::int64_t bestProduct = std::numeric_limits<std::int64_t>::max();
    std::int64_t v = vtotalMin;
    for (std::size_t step = 0; step < MaxSteps && lines[0].htotal * v < bestProduct; ++step, v += family.lineGrain) {
        const std::int64_t oddPartMost = MaxDeviceClock / family.base / v;
        for (const Line& line : lines) {
            if (line.htotal * v >= bestProduct) break;
            if (line.oddPart > oddPartMost || line.htotal * v % divisor != 0) continue;
            best = {line.htotal, v};
            bestProduct = line.htotal * v;
            break;
        }
    }
    return best;
}

}  // namespace

bool OvtTiming(TimingCalculation& run) {
    if (!run.CheckInput()) return false;
    const std::int64_t rate = run.fields.vrate.RoundNearest(0).ToInt();
    if (rate <= 0) return false;
    const RateFamily family = FamilyOf(rate);

    // As if progressive: the fields of an interlaced picture are not told apart here.
    const Decimal hperiod = HorizontalPeriod(Decimal(family.base), MinBlankTime, run.v.active, 1);
    if (hperiod <= Decimal()) return false;
    const std::int64_t blankLines = (Decimal(MinBlankTime) / hperiod).RoundUp(0).ToInt();
    const std::int64_t vtotalMin = CeilTo(run.v.active + std::max(MinBlankLines, blankLines), family.lineGrain);
    const std::int64_t hblankTarget = 32 * CeilDivide(195000, family.base * vtotalMin) + 32;

    Totals totals = FindTotals(family, run.h.active + std::max<std::int64_t>(80, hblankTarget), vtotalMin);
    if (totals.htotal == 0) return false;
    const std::int64_t highHtotalMin = run.h.active + std::max<std::int64_t>(128, 2 * hblankTarget);
    if (family.base * totals.htotal * totals.vtotal >= HighClock && totals.htotal < highHtotalMin) {
        totals = FindTotals(family, highHtotalMin, vtotalMin);
        if (totals.htotal == 0) return false;
    }

    // The end of the blanking from the sync on: 400 microseconds and 14 lines at least.
    const std::int64_t clock = family.base * totals.htotal * totals.vtotal;
    const std::int64_t lines = std::max<std::int64_t>(14, CeilDivide(clock, 2500 * totals.htotal));
    TimingAxis &h = run.h, &v = run.v;
    v.total = static_cast<int>(totals.vtotal * family.base / rate);
    v.blank = v.total - v.active;
    v.front = static_cast<int>(v.blank - lines);
    v.sync = 8;
    v.back = v.blank - v.front - v.sync;
    h.total = static_cast<int>(totals.htotal);
    h.blank = h.total - h.active;
    h.sync = 32;
    h.back = 32;
    h.front = h.blank - 64;
    run.SetPolarities(true, true);
    run.StoreFromRefresh();
    return true;
}

}  // namespace VNT

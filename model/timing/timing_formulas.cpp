#include <algorithm>

#include "model/timing/timing_calculation.h"
#include "model/timing/timing_math.h"

namespace VNT {

namespace {

constexpr int CvtMinVsyncAndBack = 550;  // microseconds
constexpr int ReducedMinBlank = 460;     // microseconds
constexpr int CharacterCell = 16;        // pixels

// CVT tells the picture's shape by the lines of its vertical sync. Shapes are 4000 x height / width, with 2 % to either
// side: 16:9, 15:9, 16:10, 4:3, 5:4.
struct SyncLinesRow {
    int from, to, lines;
};
constexpr SyncLinesRow SyncLinesTable[] = {
    {2205, 2295, 5}, {2352, 2448, 7}, {2450, 2550, 6}, {2940, 3060, 4}, {3136, 3264, 7},
};
constexpr int SyncLinesElsewhere = 10;

// The share of the line that is blank, in percent.
Decimal BlankingDuty(Decimal hperiod) { return Decimal(30) - hperiod * 300 / 1000; }

// The blank pixels of a duty. Below the bound, which a line of hours has, the line is all but a pixel of it: the bound
// gives the same count and keeps the product within 64 bits.
int BlankPixels(int hactive, Decimal duty) {
    const Decimal held = std::max(duty, Decimal(-100000000));
    return (Decimal(hactive) * held / (Decimal(100) - held)).ToInt();
}

bool IsMultipleOf(Decimal value, int whole) { return value.Millionths() % Decimal(whole).Millionths() == 0; }

// Whole lines of `time` microseconds of a field, with one more.
int LinesAbove(int time, Decimal hperiod) { return (Decimal(time) / hperiod).ToInt() + 1; }

// The horizontal half of the CVT and GTF generations, behind `h.blank`.
void CentreSync(TimingAxis& h) {
    h.back = h.blank / 2;
    h.front = h.blank - h.sync - h.back;
}

// The reduced blankings' horizontal half and ends.
void StoreReduced(TimingCalculation& run, int front, int sync, int back) {
    run.h.front = front;
    run.h.sync = sync;
    run.h.back = back;
    run.h.SumBack();
    run.SetPolarities(true, false);
    run.StoreFromRefresh();
}

// Round totals with the least blanking: `htotal` in steps of 80.
void StoreExactColumns(TimingCalculation& run, int front) {
    run.h.front = front;
    run.h.sync = 32;
    run.h.total = static_cast<int>(CeilTo(run.h.active + run.h.front + run.h.sync + 1, 80 * run.perFrame));
    run.h.FollowTotal();
}

// `vtotal` on the grain; interlaced, where totals are odd, halfway between two of them.
void StoreExactTotal(TimingCalculation& run, int progressive, int interlaced, int grain) {
    const std::int64_t total = run.oddLine != 0 ? RoundTo(interlaced, 2 * grain) + grain : CeilTo(progressive, grain);
    run.v.total = static_cast<int>(total);
    run.v.FollowTotal();
}

void StoreExactLines(TimingCalculation& run, int grain) {
    run.v.front = 3 * run.perFrame;
    run.v.sync = CvtSyncLines(run.h.active, run.v.active) * run.perFrame;
    const int used = run.v.active + run.v.front + run.v.sync;
    StoreExactTotal(run, used + 1, used, grain);
}

// One pass of "Exact reduced": lines in steps of 25 where that still gives round numbers.
void StoreExactReduced(TimingCalculation& run, int front, bool vpolarity) {
    StoreExactColumns(run, front);
    const bool isFine = run.h.total % 400 == 0 || IsMultipleOf(run.fields.vrate, 5);
    StoreExactLines(run, isFine ? 25 : 125);
    run.SetPolarities(true, vpolarity);
    run.StoreFromRefresh();
}

}  // namespace

int CvtSyncLines(int hactive, int vactive) {
    const int shape = vactive * 4000 / hactive;
    for (const SyncLinesRow& row : SyncLinesTable) {
        if (shape >= row.from && shape <= row.to) return row.lines;
    }
    return SyncLinesElsewhere;
}

bool TwoPasses(TimingCalculation& run, TimingFormula formula, Decimal rate) {
    return formula(run, rate) && formula(run, run.fields.actualvrate);
}

bool CvtTiming(TimingCalculation& run, Decimal rate) {
    TimingAxis &h = run.h, &v = run.v;
    const int m = run.perFrame, i = run.oddLine;
    v.front = 3 * m;
    const Decimal hperiod = HorizontalPeriod(rate, CvtMinVsyncAndBack, v.active + v.front + i, m);
    if (hperiod <= Decimal()) return false;
    v.sync = CvtSyncLines(h.active, v.active) * m;
    v.back = std::max(LinesAbove(CvtMinVsyncAndBack, hperiod) * m + i - v.sync, 6 * m + i);
    v.SumBack();
    const Decimal duty = std::max(BlankingDuty(hperiod), Decimal(20));
    h.blank = static_cast<int>(FloorTo(BlankPixels(h.active, duty), CharacterCell));
    h.SumBlank();
    h.sync = h.total / 100 * 8;
    CentreSync(h);
    run.SetPolarities(false, true);
    run.StoreFromRefresh();
    return true;
}

bool CvtRbTiming(TimingCalculation& run, Decimal rate) {
    TimingAxis &h = run.h, &v = run.v;
    const int m = run.perFrame, i = run.oddLine;
    const Decimal hperiod = HorizontalPeriod(rate, ReducedMinBlank, v.active, m);
    if (hperiod <= Decimal()) return false;
    v.front = 3 * m;
    v.sync = CvtSyncLines(h.active, v.active) * m;
    v.back = std::max(LinesAbove(ReducedMinBlank, hperiod) * m + i - v.front - v.sync, 6 * m + i);
    v.SumBack();
    StoreReduced(run, 48, 32, 80);
    return true;
}

bool CvtRb2Timing(TimingCalculation& run, Decimal rate) {
    TimingAxis& v = run.v;
    const int m = run.perFrame, i = run.oddLine;
    const Decimal hperiod = HorizontalPeriod(rate, ReducedMinBlank, v.active, m);
    if (hperiod <= Decimal()) return false;
    v.sync = 8 * m;
    v.back = 6 * m + i;
    v.front = std::max(LinesAbove(ReducedMinBlank, hperiod) * m + i - v.sync - v.back, m);
    v.SumBack();
    StoreReduced(run, 8, 32, 40);
    return true;
}

bool GtfTiming(TimingCalculation& run, Decimal rate) {
    TimingAxis &h = run.h, &v = run.v;
    const int m = run.perFrame, i = run.oddLine;
    v.front = m;
    const Decimal hperiod = HorizontalPeriod(rate, CvtMinVsyncAndBack, v.active + v.front + i, m);
    if (hperiod <= Decimal()) return false;
    v.sync = 3 * m;
    v.back = (Decimal(CvtMinVsyncAndBack) / hperiod).RoundNearest(0).ToInt() * m + i - v.sync;
    v.SumBack();
    h.blank = static_cast<int>(RoundTo(BlankPixels(h.active, BlankingDuty(hperiod)), CharacterCell));
    h.SumBlank();
    h.sync = static_cast<int>(RoundTo(h.total, 100) / 100 * 8);
    CentreSync(h);
    run.SetPolarities(false, true);
    run.StoreFromRefresh();
    return true;
}

bool ExactTiming(TimingCalculation& run) {
    if (!run.CheckInput()) return false;
    StoreExactColumns(run, 48);
    StoreExactLines(run, 125);
    run.SetPolarities(true, false);
    run.StoreFromRefresh();
    return true;
}

bool ExactReducedTiming(TimingCalculation& run) {
    constexpr std::int64_t singleLinkPixels = 2457600;  // 2048x1200: what a single-link DVI clock of 165 MHz may carry
    if (!run.CheckInput()) return false;
    StoreExactReduced(run, 48, false);
    const bool isSmall = static_cast<std::int64_t>(run.h.active) * run.v.active <= singleLinkPixels;
    if (isSmall && run.fields.actualpixelclock > Decimal(165)) StoreExactReduced(run, 24, true);
    return true;
}

bool ExactCrtTiming(TimingCalculation& run) {
    if (!run.CheckInput() || !TwoPasses(run, CvtTiming, run.fields.vrate)) return false;
    run.h.total = static_cast<int>(CeilTo(run.h.total, 80 * run.perFrame));
    run.h.FollowTotal();
    StoreExactTotal(run, run.v.total, run.v.total - 1, 125);
    run.StoreFromRefresh();
    return true;
}

}  // namespace VNT

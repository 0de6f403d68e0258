#pragma once

#include "model/timing/detailed_resolution.h"
#include "model/timing/preset_timings.h"

namespace VNT {

// The counts of one axis of a record.
struct TimingAxis {
    int &active, &front, &sync, &back, &blank, &total;

    // The other two from the one that is entered, or Undefined.
    void FollowBack();
    void FollowBlank();
    void FollowTotal();
    // Plain sums, for what a formula has made.
    void SumBack();
    void SumBlank();
};

// The time of a line in microseconds at `rate` Hz, if `blanking` microseconds of each field go without one; 0 if the
// rate or the lines are 0.
Decimal HorizontalPeriod(Decimal rate, int blanking, int lines, int fieldsPerFrame);

// One run of the calculator over a record: what its modes share. The routines of the modes give false, with the record
// half done, where there is no timing.
struct TimingCalculation {
    TimingCalculation(DetailedResolutionFields& record, const DetailedResolutionLimits& recordLimits);

    // The picture and the rate are ones that a timing can have.
    bool CheckInput() const;
    void SetPolarities(bool hpolarity, bool vpolarity);

    // `clock` at the encoding's precision, never below it, and the rates that it really gives.
    void StoreClock(Decimal clock);
    // The clock for the rate that was entered; scan rate and clock then follow.
    void StoreFromRefresh();

    // The first row of the picture at `rate` that the encoding can hold.
    bool LookUp(std::span<const PresetTiming> presets, Decimal rate);

    DetailedResolutionFields& fields;
    const DetailedResolutionLimits& limits;
    TimingAxis h, v;
    int perFrame;  // fields of a frame, for what is counted per field
    int oddLine;   // 1 where interlaced: the line that the two fields share
};

// The standards' formulas for a picture at `rate`; the clock is always that of the entered rate.
using TimingFormula = bool (*)(TimingCalculation& run, Decimal rate);
bool CvtTiming(TimingCalculation& run, Decimal rate);
bool CvtRbTiming(TimingCalculation& run, Decimal rate);
bool CvtRb2Timing(TimingCalculation& run, Decimal rate);
bool GtfTiming(TimingCalculation& run, Decimal rate);
// Once with `rate`, then with the rate that the rounded clock of the first pass really reaches.
bool TwoPasses(TimingCalculation& run, TimingFormula formula, Decimal rate);
// The lines of the vertical sync, which tell the picture's shape.
int CvtSyncLines(int hactive, int vactive);

// The routines of modes of their own; all but Manual and QFT begin with CheckInput.
bool ExactTiming(TimingCalculation& run);
bool ExactReducedTiming(TimingCalculation& run);
bool ExactCrtTiming(TimingCalculation& run);
bool OvtTiming(TimingCalculation& run);

}  // namespace VNT

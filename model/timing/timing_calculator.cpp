#include "model/timing/timing_calculator.h"

#include "model/timing/timing_calculation.h"
#include "model/timing/timing_math.h"

namespace VNT {

namespace {

using Timing = DetailedResolutionTimingEnum;
using ParameterType = DetailedResolutionParameterTypeEnum;
using FrequencyType = DetailedResolutionFrequencyTypeEnum;
using QftSource = DetailedResolutionQftSourceEnum;

// The two counts of an axis that are not entered.
void FollowEntered(TimingAxis& axis, ParameterType::Enum entered) {
    switch (entered) {
        case ParameterType::BackPorch:
            return axis.FollowBack();
        case ParameterType::Blanking:
            return axis.FollowBlank();
        case ParameterType::Total:
            return axis.FollowTotal();
        default:
            return;
    }
}

Decimal EnteredClock(const DetailedResolutionFields& f) {
    return IsTimingClock(f.pixelclock) ? f.pixelclock : Decimal::Undefined();
}

bool ManualTiming(TimingCalculation& run) {
    DetailedResolutionFields& f = run.fields;
    FollowEntered(run.h, f.parameterType);
    FollowEntered(run.v, f.parameterType);
    switch (f.frequencyType) {
        case FrequencyType::RefreshRate:
            run.StoreFromRefresh();
            break;
        case FrequencyType::ScanRate:
            run.StoreClock(ClockFromScanRate(f.hrate, f.htotal));
            f.vrate = f.actualvrate;
            f.pixelclock = f.actualpixelclock;
            break;
        case FrequencyType::PixelClock:
            run.StoreClock(EnteredClock(f));
            f.vrate = f.actualvrate;
            f.hrate = f.actualhrate;
            break;
        default:
            break;
    }
    return true;
}

// Quick frame transport: the lines run at a high clock, and a long vertical blanking stretches the frame.
bool QftTiming(TimingCalculation& run) {
    DetailedResolutionFields& f = run.fields;
    FollowEntered(run.h, f.parameterType);
    if (f.qftSource == QftSource::ScanRate) {
        run.StoreClock(ClockFromScanRate(f.hrate, f.htotal));
        f.pixelclock = f.actualpixelclock;
    } else {
        run.StoreClock(EnteredClock(f));
        f.hrate = f.actualhrate;
    }
    f.vtotal = TotalFromRefreshRate(f.actualpixelclock, f.vrate, f.htotal, f.interlaced);
    run.v.FollowTotal();
    switch (f.frequencyType) {
        case FrequencyType::RefreshRate:
            run.StoreClock(ClockFromRefreshRate(f.vrate, f.htotal, f.vtotal, f.interlaced));
            break;
        case FrequencyType::ScanRate:
            run.StoreClock(ClockFromScanRate(f.hrate, f.htotal));
            break;
        default:
            run.StoreClock(EnteredClock(f));
    }
    return true;
}

bool Automatic(TimingCalculation& run, std::span<const PresetTiming> presets, TimingFormula formula) {
    const Decimal vrate = run.fields.vrate;
    return run.CheckInput() && (run.LookUp(presets, vrate) || TwoPasses(run, formula, vrate));
}

bool Standard(TimingCalculation& run, TimingFormula formula) {
    return run.CheckInput() && TwoPasses(run, formula, run.fields.vrate);
}

// CVT-RB at 60 Hz, clock and all; then the clock of the entered rate for the same totals.
bool NativeWithoutRow(TimingCalculation& run) {
    const Decimal entered = run.fields.vrate;
    run.fields.vrate = Decimal(60);
    const bool done = TwoPasses(run, CvtRbTiming, run.fields.vrate);
    run.fields.vrate = entered;
    if (done) run.StoreFromRefresh();
    return done;
}

// The panel's own timing, whatever rate it is driven at.
bool Native(TimingCalculation& run, std::span<const PresetTiming> presets) {
    return run.CheckInput() &&
           (run.LookUp(presets, Decimal(60)) || run.LookUp(presets, Decimal(50)) || NativeWithoutRow(run));
}

bool RunMode(TimingCalculation& run) {
    switch (run.fields.timing) {
        case Timing::AutomaticPc:
            return Automatic(run, PresetTimings::Pc, CvtRbTiming);
        case Timing::AutomaticHdtv:
            return Automatic(run, PresetTimings::Hdtv, CvtRbTiming);
        case Timing::AutomaticCrt:
            return Automatic(run, PresetTimings::Crt, CvtTiming);
        case Timing::NativePc:
            return Native(run, PresetTimings::Pc);
        case Timing::NativeHdtv:
            return Native(run, PresetTimings::Hdtv);
        case Timing::Exact:
            return ExactTiming(run);
        case Timing::ExactReduced:
            return ExactReducedTiming(run);
        case Timing::ExactCrt:
            return ExactCrtTiming(run);
        case Timing::Ovt:
            return OvtTiming(run);
        case Timing::Cvt:
            return Standard(run, CvtTiming);
        case Timing::CvtRb:
            return Standard(run, CvtRbTiming);
        case Timing::CvtRb2:
            return Standard(run, CvtRb2Timing);
        case Timing::Gtf:
            return Standard(run, GtfTiming);
        case Timing::Qft:
            return QftTiming(run);
        default:
            return ManualTiming(run);
    }
}

}  // namespace

void Calculate(DetailedResolutionFields& f, const DetailedResolutionLimits& limits) {
    TimingCalculation run(f, limits);
    if (RunMode(run)) return;
    f.hfront = f.hsync = f.hback = f.hblank = f.htotal = Undefined;
    f.vfront = f.vsync = f.vback = f.vblank = f.vtotal = Undefined;
    f.hrate = f.pixelclock = f.actualvrate = f.actualhrate = f.actualpixelclock = Decimal::Undefined();
}

void InitFromEncoded(DetailedResolutionFields& f) {
    f.timing = Timing::Manual;
    f.parameterType = ParameterType::BackPorch;
    f.frequencyType = FrequencyType::RefreshRate;
    f.qftSource = QftSource::PixelClock;
    f.hback = BackFromBlank(f.hfront, f.hsync, f.hblank);
    f.htotal = TotalFromBlank(f.hactive, f.hblank);
    f.vback = BackFromBlank(f.vfront, f.vsync, f.vblank);
    f.vtotal = TotalFromBlank(f.vactive, f.vblank);
    f.pixelclock = f.actualpixelclock;
    f.vrate = f.actualvrate = RefreshRateFromClock(f.actualpixelclock, f.htotal, f.vtotal, f.interlaced);
    f.hrate = f.actualhrate = ScanRateFromClock(f.actualpixelclock, f.htotal);
    if (f.actualvrate.IsUndefined()) f.frequencyType = FrequencyType::PixelClock;
}

}  // namespace VNT

#include "model/timing/timing_status.h"

#include "model/timing/timing_math.h"

namespace VNT {

namespace {

struct Reach {
    int min, max;
};

// A count's own value if it passes, else all that it could be.
Reach ReachOf(int value, const ValueLimits& limits) {
    return limits.Contains(value) ? Reach{value, value} : Reach{limits.min, limits.max};
}

bool IsWithin(int value, int least, int most) { return value >= least && value <= most; }

struct RateStatus {
    bool vrate, hrate;
};

RateStatus StatusOfRates(const DetailedResolutionFields& f, const DetailedResolutionLimits& limits) {
    const bool clock = limits.pixelclock.Contains(f.actualpixelclock);
    const bool vrateEntered = f.vrate > Decimal();
    const bool hrateEntered = f.hrate > Decimal();
    if (f.timing != DetailedResolutionTimingEnum::Manual) {
        if (!IsWithin(f.hactive, 1, MaxTimingCount) || !IsWithin(f.vactive, 1, MaxTimingCount)) {
            return {vrateEntered, hrateEntered};
        }
        const auto passes = [](const TimingAxisLimits& axis, int front, int sync, int back) {
            return axis.front.Contains(front) && axis.sync.Contains(sync) && axis.back.Contains(back);
        };
        return {clock && passes(limits.horizontal, f.hfront, f.hsync, f.hback) &&
                    passes(limits.vertical, f.vfront, f.vsync, f.vback),
                clock};
    }
    const bool vrateOpen = vrateEntered || f.vrate.IsUndefined();
    const bool hrateOpen = hrateEntered || f.hrate.IsUndefined();
    if (!IsWithin(f.htotal, 1, MaxTimingTotal)) return {vrateOpen, hrateOpen};
    if (!IsWithin(f.vtotal, 1, MaxTimingTotal)) return {vrateOpen, clock};
    return {clock, clock};
}

}  // namespace

TimingAxisLimits LimitsOfAxis(const TimingAxisRule& rule, int active, int front, int sync) {
    const Reach a = ReachOf(active, rule.active);
    const Reach f = ReachOf(front, rule.front);
    const Reach s = ReachOf(sync, rule.sync);
    const int least = rule.mayCutPorch ? 0 : f.min + s.min;
    const int backLeast = rule.mayCutPorch ? -(f.max + s.max) : 0;
    const auto bounds = [&blank = rule.blank](int min, int max) {
        return ValueLimits{blank.min + min, blank.max + max, blank.step, blank.stepOffset, {}};
    };
    return {rule.active,      rule.front,
            rule.sync,        bounds(backLeast, -f.min - s.min),
            bounds(least, 0), bounds(a.min + least, a.max)};
}

std::array<FieldStatus, 10> StatusBeyondBytes(const DetailedResolutionFields& f, const DetailedResolutionLimits& proper,
                                              const DetailedResolutionLimits& all) {
    const auto choice = [](const char* name, int value, int count) {
        const bool known = IsWithin(value, 0, count - 1);
        return FieldStatus{name, known, known};
    };
    const auto count = [](const char* name, int value, const ValueLimits& sound, const ValueLimits& carried) {
        return FieldStatus{name, sound.Contains(value), carried.Contains(value)};
    };
    const RateStatus rates = StatusOfRates(f, proper);
    const bool clockAll = all.pixelclock.Contains(f.actualpixelclock);
    return {choice("timing", f.timing, DetailedResolutionTimingEnum::Count),
            choice("parameterType", f.parameterType, DetailedResolutionParameterTypeEnum::Count),
            choice("frequencyType", f.frequencyType, DetailedResolutionFrequencyTypeEnum::Count),
            choice("qftSource", f.qftSource, DetailedResolutionQftSourceEnum::Count),
            count("hback", f.hback, proper.horizontal.back, all.horizontal.back),
            count("htotal", f.htotal, proper.horizontal.total, all.horizontal.total),
            count("vback", f.vback, proper.vertical.back, all.vertical.back),
            count("vtotal", f.vtotal, proper.vertical.total, all.vertical.total),
            FieldStatus{"vrate", rates.vrate, clockAll},
            FieldStatus{"hrate", rates.hrate, clockAll}};
}

ItemStatus GetAvailable(const DetailedResolutionFields& fields) {
    const bool isQft = fields.timing == DetailedResolutionTimingEnum::Qft;
    const bool isManual = !isQft && (fields.timing <= DetailedResolutionTimingEnum::Manual ||
                                     fields.timing >= DetailedResolutionTimingEnum::Count);
    const bool isOpen = isManual || isQft;
    ItemStatus available;
    const auto report = [&available](bool open, std::initializer_list<const char*> names) {
        for (const char* name : names) available.Report(name, open, open);
    };
    report(true, {"timing", "hactive", "vactive", "interlaced", "vrate"});
    report(isOpen, {"parameterType", "frequencyType", "hfront", "hsync", "hback", "hblank", "htotal", "vfront", "vsync",
                    "hpolarity", "vpolarity", "hrate", "pixelclock"});
    report(isManual, {"vback", "vblank", "vtotal"});
    report(isQft, {"qftSource"});
    return available;
}

}  // namespace VNT

#pragma once

#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"

// What the calculator promises of any fields, in range or not: for the property tests and the fuzzer.
namespace VNT::Testing {

inline bool IsOfMode(const DetailedResolutionFields& f) {
    return f.timing > DetailedResolutionTimingEnum::Manual && f.timing < DetailedResolutionTimingEnum::Qft;
}

// The clock that the fields ask for: by the entered frequency where there is a choice of it.
inline Decimal AskedClock(const DetailedResolutionFields& f) {
    using FrequencyType = DetailedResolutionFrequencyTypeEnum;
    if (IsOfMode(f) || f.frequencyType == FrequencyType::RefreshRate) {
        return ClockFromRefreshRate(f.vrate, f.htotal, f.vtotal, f.interlaced);
    }
    return f.frequencyType == FrequencyType::ScanRate ? ClockFromScanRate(f.hrate, f.htotal) : f.pixelclock;
}

// Of the ten counts that a mode gives.
inline int DefinedCounts(const DetailedResolutionFields& f) {
    int defined = 0;
    for (const int count :
         {f.hfront, f.hsync, f.hback, f.hblank, f.htotal, f.vfront, f.vsync, f.vback, f.vblank, f.vtotal}) {
        if (count != Undefined) ++defined;
    }
    return defined;
}

// "Exact CRT" may round up to a total that lies further beyond the picture than any blanking reaches: the total and the
// rates stand, the back porch and the blanking are Undefined, and the timing can't be written.
inline bool IsBeyondBlanking(int active, int back, int blank, int total) {
    return total > MaxTimingCount && active < total - MaxTimingCount && back == Undefined && blank == Undefined;
}

// Neither all of a timing that a mode gives, nor nothing.
inline bool IsHalfTiming(const DetailedResolutionFields& f) {
    const int missing = (IsBeyondBlanking(f.hactive, f.hback, f.hblank, f.htotal) ? 2 : 0) +
                        (IsBeyondBlanking(f.vactive, f.vback, f.vblank, f.vtotal) ? 2 : 0);
    return DefinedCounts(f) + missing != 10;
}

inline bool HasAnyRate(const DetailedResolutionFields& f) {
    for (const Decimal rate : {f.hrate, f.pixelclock, f.actualvrate, f.actualhrate, f.actualpixelclock}) {
        if (!rate.IsUndefined()) return true;
    }
    return false;
}

inline bool KeepsWhatIsEntered(const DetailedResolutionFields& f, const DetailedResolutionFields& entered) {
    return f.timing == entered.timing && f.parameterType == entered.parameterType &&
           f.frequencyType == entered.frequencyType && f.qftSource == entered.qftSource &&
           f.hactive == entered.hactive && f.vactive == entered.vactive && f.interlaced == entered.interlaced;
}

// The first promise that the item of `entered` breaks, or null.
template <class X>
const char* BrokenPromise(const typename X::FieldsType& entered, int size) {
    const X item(entered);
    const DetailedResolutionFields& f = item.GetFields();
    const DetailedResolutionLimits limits = item.GetLimits();

    if (!(X(item) == item)) return "calculating twice gives what calculating once gave";
    if (!KeepsWhatIsEntered(f, entered)) return "mode, picture and scan stay as entered";
    const bool isRateEntered = f.frequencyType >= 0 && f.frequencyType < DetailedResolutionFrequencyTypeEnum::Count;
    if (isRateEntered) {
        if (f.actualvrate != RefreshRateFromClock(f.actualpixelclock, f.htotal, f.vtotal, f.interlaced)) {
            return "the actual refresh rate follows from clock and totals";
        }
        if (f.actualhrate != ScanRateFromClock(f.actualpixelclock, f.htotal)) {
            return "the actual scan rate follows from clock and total";
        }
    }
    if (IsOfMode(f)) {
        if (f.vrate != entered.vrate) return "the refresh rate stays as entered";
        const bool isTiming = DefinedCounts(f) == 10;
        if (IsHalfTiming(f) && (DefinedCounts(f) > 0 || HasAnyRate(f))) return "a mode gives a whole timing or none";
        if (!isTiming && item.IsValid()) return "a timing with a part missing is not valid";
        const bool hasFieldParity = f.vfront % 2 == 0 && f.vsync % 2 == 0 && f.vback % 2 != 0;
        const bool needsFieldParity =
            f.interlaced && f.vactive % 2 == 0 && f.timing != DetailedResolutionTimingEnum::Ovt;
        if (isTiming && needsFieldParity && !hasFieldParity) {
            return "an interlaced frame of even height has an odd total, in its back porch";
        }
    }
    if (!f.actualpixelclock.IsUndefined() && IsOfMode(f)) {
        const Decimal over = f.actualpixelclock - AskedClock(f);
        if (over < Decimal()) return "the stored clock is never below what the entered rate asks";
        if (over >= Decimal(1, limits.pixelClockDecimals)) return "the stored clock is the least that reaches the rate";
    }
    if (item.IsValid() && !item.IsValidAll()) return "what is valid can be written";

    Bytes bytes(size, 0xAA);
    const Bytes untouched = bytes;
    if (item.Write(bytes) != item.IsValidAll()) return "what is valid for the bytes is written, and nothing else";
    if (!item.IsValidAll()) return bytes == untouched ? nullptr : "what is not written leaves the bytes alone";
    X read;
    if constexpr (requires { read.Read(bytes, size); }) {
        if (!read.Read(bytes, size)) return "what is written can be read";
    } else {
        if (!read.Read(bytes)) return "what is written can be read";
    }
    const DetailedResolutionFields& r = read.GetFields();
    const bool isEqual = r.hactive == f.hactive && r.hfront == f.hfront && r.hsync == f.hsync && r.hblank == f.hblank &&
                         r.vactive == f.vactive && r.vfront == f.vfront && r.vsync == f.vsync && r.vblank == f.vblank &&
                         r.actualpixelclock == f.actualpixelclock && r.interlaced == f.interlaced;
    if (!isEqual) return "what is written and read back is equal";
    Bytes again(size, 0x55);
    if (!read.Write(again) || !(again == bytes)) return "what is read and written back is the same bytes";
    return nullptr;
}

}  // namespace VNT::Testing

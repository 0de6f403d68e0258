#pragma once

#include <cstdint>

#include "model/core/decimal.h"

namespace VNT {

// The counts and frequencies of a timing that follow from others. Undefined (the int, the Decimal) comes from operands
// that no timing has, so that an undefined field spreads without further checks; nothing here overflows.

inline constexpr int MaxTimingCount = 65536;  // pixels or lines of one part
inline constexpr int MaxFrontPorch = 32768;
inline constexpr int MaxTimingTotal = 2 * MaxTimingCount;
inline constexpr Decimal MaxTimingClock{16777216, 2};  // MHz

// The clock lies in 0 to MaxTimingClock.
bool IsTimingClock(Decimal clock);

// One axis. A back porch may be negative: the sync pulse then reaches into the next line.
int BackFromBlank(int front, int sync, int blank);
int BackFromTotal(int active, int front, int sync, int total);
int BlankFromBack(int front, int sync, int back);
int TotalFromBlank(int active, int blank);

// The field lines that a frame's line stands for: an interlaced frame is two fields, and rates are those of fields.
constexpr int FieldsPerFrame(bool interlaced) { return interlaced ? 2 : 1; }

// MHz, Hz, kHz; each step truncates to a millionth.
Decimal RefreshRateFromClock(Decimal clock, int htotal, int vtotal, bool interlaced);
Decimal ScanRateFromClock(Decimal clock, int htotal);
Decimal ClockFromRefreshRate(Decimal vrate, int htotal, int vtotal, bool interlaced);
Decimal ClockFromScanRate(Decimal hrate, int htotal);
// The most lines that reach the rate; odd where interlaced.
int TotalFromRefreshRate(Decimal clock, Decimal vrate, int htotal, bool interlaced);

// To a multiple of `grain` (above 0): up, down, to the nearest with halves away from zero.
constexpr std::int64_t FloorTo(std::int64_t x, std::int64_t grain) {
    return x >= 0 ? x - x % grain : x - (x % grain + grain) % grain;
}
constexpr std::int64_t CeilTo(std::int64_t x, std::int64_t grain) { return -FloorTo(-x, grain); }
constexpr std::int64_t RoundTo(std::int64_t x, std::int64_t grain) {
    return x >= 0 ? FloorTo(x + grain / 2, grain) : -FloorTo(-x + grain / 2, grain);
}

}  // namespace VNT

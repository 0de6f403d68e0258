#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"
#include "tests/print.h"

namespace VNT::Testing {

using Timing = DetailedResolutionTimingEnum;
using ParameterType = DetailedResolutionParameterTypeEnum;
using FrequencyType = DetailedResolutionFrequencyTypeEnum;
using QftSource = DetailedResolutionQftSourceEnum;
using SyncType = EdidDetailedResolutionSyncTypeEnum;

// Rates as tests write them: a whole number, or the text of one with a point.
inline Decimal Rate(const char* text) {
    Decimal value;
    TextToDecimal(text, value);
    return value;
}
inline Decimal Rate(int whole) { return Decimal(whole); }

// A new item of the kind whose timing comes from a mode.
template <class X, class R>
X Calculated(Timing::Enum mode, int width, int height, R rate, bool interlaced = false) {
    typename X::FieldsType fields;
    fields.timing = mode;
    fields.hactive = width;
    fields.vactive = height;
    fields.vrate = Rate(rate);
    fields.interlaced = interlaced;
    return X(fields);
}

template <class X>
DetailedResolution Holding(const X& item) {
    return DetailedResolution(std::make_unique<X>(item));
}

inline std::string Counts(const DetailedResolutionFields& f) {
    const auto text = [](int count) { return count == Undefined ? std::string("-") : std::to_string(count); };
    std::string all;
    for (const int count : {f.hfront, f.hsync, f.hback, f.vfront, f.vsync, f.vback}) all += text(count) + " ";
    return all + text(f.htotal) + "x" + text(f.vtotal);
}

inline std::string TextOf(const AnyResolution& item, const char* format = nullptr) {
    String text;
    if (format != nullptr) {
        item.GetText(text, format);
    } else {
        item.GetText(text);
    }
    return text.ToUtf8();
}

template <class X>
Bytes BytesOf(const X& item, int size) {
    Bytes bytes;
    bytes.Resize(size);
    return item.Write(bytes) ? bytes : Bytes();
}

// The same numbers on every machine and in every run.
class Random {
public:
    explicit Random(std::uint32_t seed) : engine_(seed) {}
    std::uint32_t Word() { return static_cast<std::uint32_t>(engine_()); }
    int Between(int least, int most) {
        return least + static_cast<int>(Word() % (static_cast<std::uint32_t>(most - least) + 1));
    }
    bool Coin() { return Word() % 2 != 0; }
    std::int64_t Long() { return static_cast<std::int64_t>(static_cast<std::uint64_t>(Word()) * 4294967296u + Word()); }
    Bytes ManyBytes(int count) {
        Bytes bytes;
        bytes.Resize(count);
        for (int i = 0; i < count; ++i) bytes.At(i) = static_cast<std::uint8_t>(Word() % 256);
        return bytes;
    }

    // A count near what a timing has, near a bound, or anything.
    int Count();
    Decimal Frequency(int usualMost);
    DetailedResolutionFields Fields();

private:
    std::mt19937 engine_;
};

inline int Random::Count() {
    constexpr int edges[] = {Undefined, Undefined + 1, -1,    0,     1,     2,      4095,   4096,
                             32768,     32769,         65535, 65536, 65537, 131072, 131073, 2147483647};
    switch (Between(0, 3)) {
        case 0:
            return edges[Word() % std::size(edges)];
        case 1:
            return static_cast<int>(Word());
        default:
            return Between(0, 5000);
    }
}

inline Decimal Random::Frequency(int usualMost) {
    const Decimal edges[] = {Decimal::Undefined(),
                             Decimal::FromMillionths(std::numeric_limits<std::int64_t>::min() + 1),
                             Decimal(-1),
                             Decimal(),
                             Decimal::FromMillionths(1),
                             Decimal(1),
                             Decimal(16777216, 2),
                             Decimal(16777217, 2),
                             Decimal::FromMillionths(std::numeric_limits<std::int64_t>::max())};
    switch (Between(0, 3)) {
        case 0:
            return edges[Word() % std::size(edges)];
        case 1:
            return Decimal::FromMillionths(Long());
        default:
            return Decimal(Between(1, usualMost * 1000), 3);
    }
}

inline DetailedResolutionFields Random::Fields() {
    DetailedResolutionFields f;
    f.timing = static_cast<Timing::Enum>(Between(-1, 16));
    f.parameterType = static_cast<ParameterType::Enum>(Between(-1, 4));
    f.frequencyType = static_cast<FrequencyType::Enum>(Between(-1, 4));
    f.qftSource = static_cast<QftSource::Enum>(Between(-1, 3));
    for (int* count : {&f.hactive, &f.hfront, &f.hsync, &f.hback, &f.hblank, &f.htotal, &f.vactive, &f.vfront, &f.vsync,
                       &f.vback, &f.vblank, &f.vtotal}) {
        *count = Count();
    }
    f.hpolarity = Coin();
    f.vpolarity = Coin();
    f.interlaced = Coin();
    f.vrate = Frequency(500);
    f.hrate = Frequency(1000);
    f.pixelclock = Frequency(2000);
    f.actualvrate = Frequency(500);
    f.actualhrate = Frequency(1000);
    f.actualpixelclock = Frequency(2000);
    return f;
}

}  // namespace VNT::Testing

#pragma once

#include "model/edid/descriptor.h"
#include "model/edid/range_limits_timing.h"

namespace VNT {

struct EdidRangeLimitsDescriptorFields {
    int minVRate = Undefined;       // Hz
    int maxVRate = Undefined;       // Hz
    int minHRate = Undefined;       // kHz
    int maxHRate = Undefined;       // kHz
    int maxPixelClock = Undefined;  // MHz
    EdidRangeLimitsTiming timing{std::make_unique<EdidRangeLimitsDefaultGtfTiming>()};
    bool operator==(const EdidRangeLimitsDescriptorFields&) const = default;
};

struct EdidRangeLimitsDescriptorAllFields : EdidRangeLimitsDescriptorFields {
    int reserved1 = 0;
    int reservedBits = 0;
    bool operator==(const EdidRangeLimitsDescriptorAllFields&) const = default;
};

// The frequencies that a display takes (E-EDID 1.4, 3.10.3.3).
class EdidRangeLimitsDescriptor
    : public TEdidDescriptor<EdidRangeLimitsDescriptor, EdidDescriptorTypeId::RangeLimits,
                             EdidRangeLimitsDescriptorFields, EdidRangeLimitsDescriptorAllFields> {
public:
    static constexpr TextFormat Format{
        U"{type}: {description}", U"{type}: {description}",
        U"{minvrate}-{maxvrate} Hz, {minhrate}-{maxhrate} kHz, {actualmaxpixelclock} MHz", U"Range limits"};

    EdidRangeLimitsDescriptor() = default;
    explicit EdidRangeLimitsDescriptor(const EdidRangeLimitsDescriptorFields& fields) { SetFields(fields); }

    // What stands behind a timing that has nothing to tell is padding, which no form shows.
    void Normalize();
    void NormalizeRead() {}
    void FillTexts(TextTable& table) const;
    // MHz: the maximum less what a CVT timing subtracts.
    Decimal GetActualMaxPixelClock() const;

    template <class IO>
    static void Map(IO& io, auto& item) {
        const auto upTo = [](int max) { return RateLimits(1, IsRate(max) ? max : MaxRate); };
        const auto from = [](int min) { return RateLimits(IsRate(min) ? min : 1, MaxRate); };
        io.Constant(16, 0);
        io.Kept("reserved1", 8, item.reserved1);
        io.Constant(8, TypeValue);
        io.Kept("reservedBits", {{4, 4, 4}}, item.reservedBits);
        io.Number("minVRate", {{5, 0, 8}, {4, 0, 1}}, item.minVRate, RateCoding(), upTo(item.maxVRate));
        io.Number("maxVRate", {{6, 0, 8}, {4, 1, 1}}, item.maxVRate, RateCoding(), from(item.minVRate));
        io.Number("minHRate", {{7, 0, 8}, {4, 2, 1}}, item.minHRate, RateCoding(), upTo(item.maxHRate));
        io.Number("maxHRate", {{8, 0, 8}, {4, 3, 1}}, item.maxHRate, RateCoding(), from(item.minHRate));
        io.Number("maxPixelClock", {{9, 0, 8}}, item.maxPixelClock, ValueCoding{0, 10, {}},
                  Within({10, 2550, 10, 0, {}}, {0, 2550, 10, 0, {}}));
        io.Part("timing", AnyEdidRangeLimitsTiming::FrameSize, item.timing,
                io.Tested([&item] { return item.timing.IsValid(); }),
                io.Tested([&item] { return item.timing.IsValidAll(); }));
    }

private:
    static constexpr int MaxRate = 510;

    // A byte and its offset flag as the ninth bit: with the flag a byte counts 255 more, and 0 is no number.
    struct RateCoding {
        static constexpr int Flag = 256;
        static int Decode(std::uint32_t raw) {
            const int number = static_cast<int>(raw);
            return number < Flag ? number : number == Flag ? Undefined : number - 1;
        }
        static int Encode(int rate) { return rate == Undefined ? Flag : rate < Flag ? rate : rate + 1; }
    };
    static constexpr bool IsRate(int rate) { return rate >= 1 && rate <= MaxRate; }
    static constexpr TLimitPair<ValueLimits> RateLimits(int min, int max) {
        return {ValueLimits{min, max}, ValueLimits{0, MaxRate, 0, 0, {Undefined}}};
    }
};

}  // namespace VNT

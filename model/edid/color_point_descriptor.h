#pragma once

#include <array>

#include "model/edid/color_coordinates.h"
#include "model/edid/descriptor.h"
#include "model/edid/padding.h"

namespace VNT {

// A white point beside that of the base block. The initialisers are an empty point: one that states nothing.
struct EdidColorPoint {
    int index = Undefined;
    Decimal x = Decimal::Undefined();
    Decimal y = Decimal::Undefined();
    int rawX = Undefined;
    int rawY = Undefined;
    Decimal gamma = Decimal::Undefined();
    int reservedBits = 0;
    bool operator==(const EdidColorPoint&) const = default;

    // States nothing; a coordinate that has no raw number (1.0) is something all the same.
    bool IsEmpty() const {
        return index == Undefined && rawX == Undefined && rawY == Undefined && gamma.IsUndefined() && x.IsUndefined() &&
               y.IsUndefined();
    }
    // What was not given of coordinates and raw numbers follows from the other.
    void Link(bool useRaw);
};

struct EdidColorPointDescriptorFields {
    bool useRaw = false;  // of both points: which of coordinates and raw numbers was given
    std::array<EdidColorPoint, 2> points;
    bool operator==(const EdidColorPointDescriptorFields&) const = default;
};

struct EdidColorPointDescriptorAllFields : EdidColorPointDescriptorFields, EdidDescriptorFrame {
    Bytes padding{0x0A, 0x20, 0x20};
    bool operator==(const EdidColorPointDescriptorAllFields&) const = default;
};

// Two white points (E-EDID 1.4, 3.10.3.5). The class writes and reads its bytes, yet the holder reads them as
// EdidOtherDescriptor: what was read is kept raw.
class EdidColorPointDescriptor
    : public TEdidDescriptor<EdidColorPointDescriptor, EdidDescriptorTypeId::ColorPoint, EdidColorPointDescriptorFields,
                             EdidColorPointDescriptorAllFields> {
public:
    static constexpr TextFormat Format{U"{type}", U"{type}", U"", U"Color point"};

    EdidColorPointDescriptor() = default;
    explicit EdidColorPointDescriptor(const EdidColorPointDescriptorFields& fields) { SetFields(fields); }

    void Normalize();
    void NormalizeRead();

    // The names of a point's fields in the layout, for point 0 and 1.
    struct PointNames {
        const char *index, *rawX, *rawY, *gamma, *reservedBits;
    };
    static constexpr PointNames Names[] = {{"index1", "rawX1", "rawY1", "gamma1", "reservedBits1"},
                                           {"index2", "rawX2", "rawY2", "gamma2", "reservedBits2"}};

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapDescriptorFrame(io, TypeValue, item);
        MapPoint<5>(io, Names[0], item.points[0], 1);
        MapPoint<10>(io, Names[1], item.points[1], 2);
        MapPadding(io, "padding", item.padding, EdidColorPointDescriptorAllFields().padding);
    }

private:
    // Five bytes from `at` on; an empty point has zeros. Read, a raw gamma of 0 is 1.00 until the whole point is known.
    template <int at, class IO>
    static void MapPoint(IO& io, const PointNames& names, auto& point, int leastIndex) {
        const TFew<int> blank = point.IsEmpty() ? TFew<int>{Undefined} : TFew<int>{};
        const TLimitPair<ValueLimits> rawLimits(ValueLimits{0, 1023, 0, 0, blank});
        io.Number(names.index, {{at, 0, 8}}, point.index,
                  Within({leastIndex, 255, 0, 0, blank}, {0, 255, 0, 0, blank}));
        io.Number(names.rawX, {{at + 1, 2, 2}, {at + 2, 0, 8}}, point.rawX, rawLimits);
        io.Number(names.rawY, {{at + 1, 0, 2}, {at + 3, 0, 8}}, point.rawY, rawLimits);
        io.Kept(names.reservedBits, {{at + 1, 4, 4}}, point.reservedBits);
        const DecimalCoding gammaCoding{Decimal(1), Decimal(1, 2), {{point.IsEmpty() ? 0 : 255, Decimal::Undefined()}}};
        io.Number(names.gamma, {{at + 4, 0, 8}}, point.gamma, gammaCoding,
                  Within(DecimalLimits{Decimal(1), Decimal(354, 2), Decimal(1, 2), Decimal(), {Decimal::Undefined()}}));
    }
};

}  // namespace VNT

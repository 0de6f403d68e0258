#pragma once

#include <array>
#include <utility>

#include "model/core/layout.h"

namespace VNT {

// The CIE 1931 xy chromaticities of the base block (E-EDID 1.4, 3.7), 10 bits each.
struct EdidColorCoordinatesFields {
    enum Coordinate { RedX, RedY, GreenX, GreenY, BlueX, BlueY, WhiteX, WhiteY, CoordinateCount };

    bool useRaw = false;  // which of `value` and `raw` was given; the other follows
    std::array<Decimal, CoordinateCount> value{Decimal(640, 3), Decimal(330, 3), Decimal(300, 3), Decimal(600, 3),
                                               Decimal(150, 3), Decimal(60, 3),  Decimal(313, 3), Decimal(329, 3)};
    std::array<int, CoordinateCount> raw{};
    std::array<Decimal, CoordinateCount> actual{};
    bool operator==(const EdidColorCoordinatesFields&) const = default;
};

// A coordinate as its raw number: value x 1024, to the nearest; Undefined where there is none (1.0 has none).
int EncodeColorCoordinate(Decimal value);
// raw / 1024; undefined outside 0 to 1023.
Decimal DecodeColorCoordinate(int raw);

class EdidColorCoordinates : public EdidColorCoordinatesFields {
public:
    static constexpr int FrameSize = 10;

    EdidColorCoordinates();
    explicit EdidColorCoordinates(const EdidColorCoordinatesFields& fields) : EdidColorCoordinatesFields(fields) {
        Normalize();
    }

    bool Read(ByteRange range);  // `useRaw` is true then, so that what was read is not disturbed
    bool Write(ByteRange range) const;
    bool IsValid() const { return ValidityOf(*this, FrameSize).proper; }
    bool IsValidAll() const { return ValidityOf(*this, FrameSize).all; }
    ItemStatus GetStatus() const { return StatusOf(*this, FrameSize); }
    std::vector<FieldLimits> GetFieldLimits() const { return LimitsOf(*this, FrameSize); }
    void Normalize();
    bool operator==(const EdidColorCoordinates&) const = default;

    static constexpr const char* Names[CoordinateCount] = {"redX",  "redY",  "greenX", "greenY",
                                                           "blueX", "blueY", "whiteX", "whiteY"};

    template <class IO>
    static void Map(IO& io, auto& item) {
        MapCoordinates(io, item, std::make_integer_sequence<int, CoordinateCount>());
    }

private:
    // Two bytes of the low bits, four coordinates each from the highest bits down, then a byte of high bits each.
    template <class IO, int... i>
    static void MapCoordinates(IO& io, auto& item, std::integer_sequence<int, i...>) {
        (io.Number(Names[i], BitPlace{{i / 4, 6 - i % 4 * 2, 2}, {2 + i, 0, 8}}, item.raw[static_cast<std::size_t>(i)],
                   Within(0, 1023)),
         ...);
    }
};

}  // namespace VNT

#pragma once

#include <memory>

#include "model/core/item.h"
#include "model/core/kinds.h"
#include "model/core/layout_made.h"
#include "model/core/list.h"
#include "tests/print.h"

namespace VNT {

// A family as small as one can be, for the tests of what all families share: frames of four bytes, the first a tag.
struct ShapeTypeId {
    enum Enum : int { Circle = 1, Square = 2, Other = 0x200, None = 0x300 };
};

class AnyShape : public TAnyFramed<AnyShape> {
public:
    static constexpr int FrameSize = 4;
    static constexpr int NoType = ShapeTypeId::None;
    static int PeekType(ByteRange range) {
        return range.Limit(FrameSize) && range.Size() == FrameSize ? static_cast<int>(range.ReadLsb(8)) : NoType;
    }
};

struct CircleFields {
    int radius = 10;
    bool operator==(const CircleFields&) const = default;
};
struct CircleAllFields : CircleFields {
    int reserved = 0;
    bool operator==(const CircleAllFields&) const = default;
};

// A sound radius is 1 to 100, the bytes carry 0 to 200; a radius of 0 is a circle without content.
class Circle
    : public TFramedItem<Circle, AnyShape, ShapeTypeId::Enum, ShapeTypeId::Circle, CircleFields, CircleAllFields> {
public:
    Circle() = default;
    explicit Circle(const CircleFields& fields) { SetFields(fields); }
    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Constant(8, ShapeTypeId::Circle);
        io.Number("radius", 8, item.radius, Within({1, 100}, {0, 200}));
        io.Kept("reserved", 16, item.reserved);
    }
    void FillTexts(TextTable& table) const { table.Set(U"{radius}", radius); }
    bool HasContent() const { return radius != 0; }
    static constexpr TextFormat Format{.description = U"radius {radius}", .type = U"Circle"};
};

struct SquareFields {
    int side = 1;
    Bytes pattern{7, 7};
    bool operator==(const SquareFields&) const = default;
};

// A side of 0 has no pattern.
class Square : public TFramedItem<Square, AnyShape, ShapeTypeId::Enum, ShapeTypeId::Square, SquareFields> {
public:
    Square() = default;
    explicit Square(const SquareFields& fields) { SetFields(fields); }
    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Constant(8, ShapeTypeId::Square);
        io.Number("side", 8, item.side, Within(0, 255));
        if (item.side != 0) io.Data("pattern", 2, item.pattern, Exactly(2));
    }
    void Normalize() {
        if (side == 0) pattern = Bytes();
    }
    static constexpr TextFormat Format{.format = U"{type}", .type = U"Square"};
};

struct OtherShapeFields {
    Bytes bytes{0, 0, 0, 0};
    bool operator==(const OtherShapeFields&) const = default;
};

class OtherShape : public TFramedItem<OtherShape, AnyShape, ShapeTypeId::Enum, ShapeTypeId::Other, OtherShapeFields> {
public:
    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Data("bytes", FrameSize, item.bytes, Exactly(4));
    }
    static bool Accepts(int peekedType) { return peekedType != ShapeTypeId::None; }
    static constexpr TextFormat Format{.format = U"{type}", .type = U"Other"};
};

struct ShapeKinds {
    static constexpr TKind<AnyShape> Rows[] = {
        Kind<Circle, AnyShape>("Circle"),
        Kind<Square, AnyShape>("Square"),
    };
    static std::unique_ptr<AnyShape> Read(ByteRange range) { return ReadKind<OtherShape, AnyShape>(Rows, range); }
};

using Shape = TFramedContainer<AnyShape, ShapeKinds>;
using ShapeList = TSlotList<Shape, AnyShape::FrameSize>;

inline Circle CircleOf(int radius) { return Circle(CircleFields{radius}); }

template <class X>
Shape Held(const X& item) {
    return Shape(item.Clone());
}

inline String TextOf(const AnyShape& shape) {
    String text("left over");
    shape.GetText(text);
    return text;
}

inline Bytes BytesOf(const AnyShape& shape) {
    Bytes bytes(AnyShape::FrameSize, 0xEE);
    return shape.Write(bytes) ? bytes : Bytes();
}

}  // namespace VNT

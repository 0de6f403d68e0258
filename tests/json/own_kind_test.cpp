// A family that this room has never heard of: its fields come from its layouts, so that nothing here needs to know
// them.
#include <gtest/gtest.h>

#include "json/schema.h"
#include "model/core/flags.h"
#include "tests/core/shapes.h"

namespace VNT {

// The shapes with a kind of this file's own.
struct TriangleColorEnum {
    enum Enum : int { Red, Green };
    static constexpr ValueText<Enum> Texts[] = {{Red, "Red"}, {Green, "Green"}};
};

struct TriangleFields {
    TriangleColorEnum::Enum color = TriangleColorEnum::Red;
    bool isHollow = false;
    int refreshRate = 3;
    bool operator==(const TriangleFields&) const = default;
};

class Triangle
    : public TFramedItem<Triangle, AnyShape, ShapeTypeId::Enum, static_cast<ShapeTypeId::Enum>(3), TriangleFields> {
public:
    Triangle() = default;
    explicit Triangle(const TriangleFields& fields) { SetFields(fields); }
    template <class IO>
    static void Map(IO& io, auto& item) {
        io.Constant(8, 3);
        io.Number("color", 7, item.color, OneOf<TriangleColorEnum>(4));
        io.Kept("isHollow", 1, item.isHollow);
        if (item.isHollow) io.Number("refreshRate", 16, item.refreshRate, Within({1, 99}, {0, 500}));
    }
    static constexpr TextFormat Format{.format = U"{type}", .type = U"Triangle"};
};

namespace {

struct MoreShapeKinds {
    static std::span<const TKind<AnyShape>> All() {
        static constexpr TKind<AnyShape> rows[] = {Kind<Circle, AnyShape>("Circle"), Kind<Square, AnyShape>("Square"),
                                                   Kind<Triangle, AnyShape>("Triangle")};
        return rows;
    }
    static std::unique_ptr<AnyShape> Read(ByteRange range) { return ReadKind<OtherShape, AnyShape>(All(), range); }
};
using MoreShapes = TFramedContainer<AnyShape, MoreShapeKinds>;

ItemRef RefOf(MoreShapes& shape) { return ItemRef(&shape, Detail::ItemTypeOf<MoreShapes>); }

TEST(JsonOfAKindOfOnesOwn, PrintsItsFields) {
    MoreShapes shape;
    ASSERT_TRUE(shape.Read(Bytes{3, 0x81, 0x05, 0x00}));
    EXPECT_EQ(Json::PrintShort(Json::NodeOfItem(RefOf(shape))),
              R"({"type": "Triangle", "color": "Green", "isHollow": true, "refreshRate": 5})");
}

TEST(JsonOfAKindOfOnesOwn, BuildsItsBytes) {
    std::string problem;
    const auto node = Json::Parse(R"({"type": "Triangle", "color": 3, "isHollow": true, "refreshRate": 100})", problem);
    ASSERT_TRUE(node) << problem;
    MoreShapes shape;
    Json::Building building;
    Json::BuildItem(*node, RefOf(shape), "shape", building);
    EXPECT_EQ(building.error, "");
    EXPECT_EQ(building.warnings, std::vector<std::string>{"shape.refreshRate: should be 1 to 99"});
    EXPECT_EQ(BytesOf(shape), (Bytes{3, 0x83, 100, 0}));
}

TEST(JsonOfAKindOfOnesOwn, HasItsSchema) {
    Json::SchemaMaker maker;
    MoreShapes shape;
    EXPECT_EQ(Json::PrintShort(maker.OfItem(RefOf(shape), "shape")), R"({"$ref": "#/$defs/shape"})");
    const Json::Node* schema = maker.Definitions().Find("shape.triangle");
    ASSERT_NE(schema, nullptr);
    const Json::Node& fields = *schema->Find("properties");
    EXPECT_EQ(Json::PrintShort(*fields.Find("type")), R"({"const": "Triangle"})");
    EXPECT_EQ(Json::PrintShort(*fields.Find("color")), R"({"enum": ["Red", "Green", 2, 3], "title": "Color"})");
    EXPECT_EQ(Json::PrintShort(*fields.Find("isHollow")), R"({"type": "boolean", "title": "Is hollow"})");
    // One that a new triangle doesn't have.
    EXPECT_EQ(Json::PrintShort(*fields.Find("refreshRate")),
              R"({"type": "integer", "minimum": 0, "maximum": 500, "title": "Refresh rate", )"
              R"("description": "In Hz. A sound EDID holds 1 to 99."})");
    EXPECT_EQ(
        maker.Definitions().Find("shape.square")->Find("properties")->Find("pattern")->Find("description")->Text(),
        "Of 2 bytes.");
}

}  // namespace
}  // namespace VNT

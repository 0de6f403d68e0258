#include "json/difference.h"
#include "json/edid_json.h"
#include "model/edid/edid.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

Json::Node Parsed(const char* text) {
    std::string problem;
    const auto node = Json::Parse(text, problem);
    EXPECT_EQ(problem, "");
    return node.value_or(Json::Node());
}

std::string ErrorOf(const char* text) {
    Json::Building building;
    EXPECT_FALSE(Json::BuildEdid(Parsed(text), building));
    return building.error;
}

Edid Built(const char* text) {
    Json::Building building;
    const auto bytes = Json::BuildEdid(Parsed(text), building);
    EXPECT_EQ(building.error, "");
    Edid edid;
    EXPECT_TRUE(edid.Read(bytes.value_or(Bytes())));
    return edid;
}

TEST(JsonBuild, AVendorAndAModeAreAWholeEdid) {
    const Edid edid = Built(R"({"vendorId": "ABC", "descriptors": [
        {"mode": "CVT-RB standard", "hactive": 2560, "vactive": 1440, "vrate": 60}]})");
    EXPECT_TRUE(edid.IsValid());
    EXPECT_EQ(edid.properties.vendorId, "ABC");
    ASSERT_EQ(edid.descriptors.GetCount(), 1);
    EXPECT_EQ(TextOf(edid.descriptors.At(0)).substr(0, 18), "2560x1440 @ 60.000");
}

TEST(JsonBuild, AnEmptyObjectIsANewEdid) { EXPECT_TRUE(Built("{}").IsValid()); }

TEST(JsonBuild, AScreenWithoutASizeIsTakenByEachVersion) {
    EXPECT_TRUE(Built(R"({"revision": 3})").IsValid());
    EXPECT_TRUE(Built(R"({"revision": 4})").IsValid());
    EXPECT_EQ(Built(R"({"revision": 4, "horizontalSize": 60, "verticalSize": 34})").properties.verticalSize, 34);
}

TEST(JsonBuild, ColorsAreFields) {
    EXPECT_EQ(Built(R"({"colors": {"redX": 700}})").properties.colors.raw[EdidColorCoordinates::RedX], 700);
    EXPECT_EQ(ErrorOf(R"({"colors": {"redX": 1024}})"), "colors.redX: can be 0 to 1023");
}

TEST(JsonBuild, ASizeIsANumber) {
    const char* text =
        R"({"extensionBlocks": [{"type": "CTA-861", "dataBlocks": [{"type": "Microsoft", "Size": null}]}]})";
    EXPECT_EQ(ErrorOf(text), "extensionBlocks[0].dataBlocks[0].Size: a number is needed");
}

TEST(JsonBuild, AnUnknownNameIsToldWithTheNearest) {
    EXPECT_EQ(ErrorOf(R"({"vendorID": "ABC"})"), "vendorID: no such field here; the nearest is \"vendorId\"");
    EXPECT_EQ(ErrorOf(R"({"descriptors": [{"type": "Nam"}]})"),
              "descriptors[0]: \"Nam\" is no kind; the nearest is \"Name\"");
}

TEST(JsonBuild, AValueThatNoFieldCarriesIsToldWithItsRange) {
    EXPECT_EQ(ErrorOf(R"({"productId": 70000})"), "productId: can be 0 to 65535");
    EXPECT_EQ(ErrorOf(R"({"productId": 1.5})"), "productId: 1.5 is not a whole number");
    EXPECT_EQ(ErrorOf(R"({"vendorId": 5})"), "vendorId: a text is needed");
    EXPECT_EQ(ErrorOf(R"([])"), "the whole: an object is needed");
}

TEST(JsonBuild, AValueThatNoSoundEdidHoldsIsAWarning) {
    Json::Building building;
    EXPECT_TRUE(Json::BuildEdid(Parsed(R"({"version": 0})"), building));
    ASSERT_EQ(building.warnings.size(), 1u);
    EXPECT_EQ(building.warnings[0], "version: should be 1 to 255");
}

// Each mistake is told where it is, with what would do; none gives bytes.
TEST(JsonBuild, WhatCantBeBuiltIsToldWithItsPath) {
    const std::pair<const char*, const char*> mistakes[] = {
        {R"({"descriptors": {}})", "descriptors: a list is needed"},
        {R"({"descriptors": [5]})", "descriptors[0]: an object is needed"},
        {R"({"descriptors": [{"text": "A"}]})", "descriptors[0]: \"type\" is missing"},
        {R"({"descriptors": [{"data": "00"}]})", "descriptors[0].data: is not the hex text of such an item"},
        {R"({"powerFlags": "Standby"})", "powerFlags: a list of flags is needed"},
        {R"({"powerFlags": [3]})", "powerFlags: [3] doesn't fit its bits"},
        {R"({"powerFlags": ["Suspended"]})",
         "powerFlags: \"Suspended\" is none of its flags; the nearest is \"Suspend\""},
        {R"({"digital": 1})", "digital: 1 is not true or false"},
        {R"({"serialNumber": -1})", "serialNumber: can be 1 to 4294967295"},
        {R"({"productId": null})", "productId: can be 0 to 65535"},
        {R"({"established": [24]})", "established: 24 is none of its flags"},
        {R"({"extensionBlocks": [{"type": "CTA-861", "dataBlocks": [{"type": "FreeSync", "Size": 70000}]}]})",
         "extensionBlocks[0].dataBlocks[0].Size: 70000 is not 0 to 65535"},
        {R"({"blocks": 300})", "blocks: 300 is not 0 to 256"},
        {R"({"behind": 5})", "behind: bytes as hex text are needed"},
        {R"({"bytes": {"128": "00"}})", "bytes.128: is no place in the EDID"},
        {R"({"bytes": {"x": "00"}})", "bytes.x: is no place in the EDID"},
        {R"({"descriptors": [{"mode": "CVT", "hactive": 640, "vactive": 480, "vrate": 60}]})",
         "descriptors[0].mode: \"CVT\" is no mode; the nearest is \"CVT standard\""},
        {R"({"descriptors": [{"mode": "CVT standard", "hactive": 640, "vactive": 480}]})",
         "descriptors[0].vrate: the calculator needs it, 0 to 65536"},
        {R"({"descriptors": [{"mode": "CVT standard", "hactive": 60000, "vactive": 60000, "vrate": 600}]})",
         "descriptors[0].mode: gives no timing that fits"},
    };
    for (const auto& [text, error] : mistakes) EXPECT_EQ(ErrorOf(text), error) << text;
}

TEST(JsonBuild, TooManyItemsAreToldOf) {
    std::string slots;
    for (int i = 0; i < 5; ++i) slots += std::string(i > 0 ? ", " : "") + R"({"type": "Empty"})";
    EXPECT_EQ(ErrorOf((R"({"descriptors": [)" + slots + "]}").c_str()),
              "the whole: can't be written: too many items for the base block");
}

TEST(JsonParse, WhatIsNoJsonOrTooDeepIsRefused) {
    for (const std::string& text :
         {std::string("{"), std::string(""), std::string("{} {}"), std::string(100, '['),
          std::string(R"({"a": 1, "a": 2})"), std::string("1e300"), std::string("[12345678901234567890]")}) {
        std::string problem;
        EXPECT_FALSE(Json::Parse(text, problem)) << text;
        EXPECT_NE(problem, "") << text;
    }
}

TEST(JsonCompare, AnInsertedItemIsOneChange) {
    const auto before = Parsed(R"({"list": [{"type": "A", "x": 1}, {"type": "B", "x": 2}], "n": 1})");
    const auto after = Parsed(R"({"list": [{"type": "A", "x": 1}, {"type": "C"}, {"type": "B", "x": 3}], "n": 1})");
    std::string text;
    for (const Json::Change& change : Json::Compare(before, after)) text += Json::Describe(change) + "\n";
    EXPECT_EQ(text, "list[2].x: 2 -> 3\n+ list[1]\n");
    EXPECT_TRUE(Json::Compare(before, before).empty());
}

}  // namespace
}  // namespace VNT::Testing

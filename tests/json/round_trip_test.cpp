#include "json/edid_json.h"
#include "tests/json/some_edids.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

class JsonOfEachSet : public testing::TestWithParam<std::string> {};

// The bytes come back from the text, and two rounds say the same.
TEST_P(JsonOfEachSet, GivesBackTheBytes) {
    constexpr std::size_t first = 5;  // others than those that the schema is tried on
    for (const NamedEdid& edid : SomeEdidsOf(GetParam(), first)) {
        SCOPED_TRACE(edid.name);
        const auto node = Json::NodeOfEdid(edid.bytes);
        if (!node) continue;
        std::string problem;
        const auto parsed = Json::Parse(Json::Print(*node), problem);
        ASSERT_TRUE(parsed) << problem;
        EXPECT_EQ(*parsed, *node);
        Json::Building building;
        const auto built = Json::BuildEdid(*parsed, building);
        ASSERT_TRUE(built) << building.error;
        EXPECT_EQ(*built, edid.bytes);
        EXPECT_EQ(Json::NodeOfEdid(*built), node);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, JsonOfEachSet, testing::ValuesIn(EdidSets(VANTELLE_SOURCE_DIR)),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace VNT::Testing

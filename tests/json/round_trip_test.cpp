#include "json/edid_json.h"
#include "tests/support/edids.h"
#include "tests/support/items.h"

namespace VNT::Testing {
namespace {

// The bytes of what the JSON of some bytes says, read back from its text.
Bytes ThroughText(const Bytes& bytes) {
    const auto node = Json::NodeOfEdid(bytes);
    if (!node) return {};
    std::string problem;
    const auto parsed = Json::Parse(Json::Print(*node), problem);
    EXPECT_EQ(problem, "");
    if (!parsed) return {};
    EXPECT_EQ(*parsed, *node);
    Json::Building building;
    const auto built = Json::BuildEdid(*parsed, building);
    EXPECT_EQ(building.error, "");
    return built.value_or(Bytes());
}

class JsonOfEachSet : public testing::TestWithParam<std::string> {};

TEST_P(JsonOfEachSet, GivesBackTheBytes) {
    for (const NamedEdid& edid : EdidsOf(GetParam(), VANTELLE_SOURCE_DIR)) {
        if (!Json::NodeOfEdid(edid.bytes)) continue;
        EXPECT_EQ(ThroughText(edid.bytes), edid.bytes) << edid.name;
    }
}

// Two rounds say the same.
TEST_P(JsonOfEachSet, SaysTheSameAgain) {
    for (const NamedEdid& edid : EdidsOf(GetParam(), VANTELLE_SOURCE_DIR)) {
        const auto once = Json::NodeOfEdid(edid.bytes);
        if (!once) continue;
        Json::Building building;
        const auto built = Json::BuildEdid(*once, building);
        ASSERT_TRUE(built) << edid.name << ": " << building.error;
        EXPECT_EQ(Json::NodeOfEdid(*built), once) << edid.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, JsonOfEachSet, testing::ValuesIn(EdidSets(VANTELLE_SOURCE_DIR)),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace VNT::Testing

// The schema as a validator that knows nothing of this project reads it.
#include "json/schema.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

#include "json/edid_json.h"
#include "tests/json/some_edids.h"

namespace VNT::Testing {
namespace {

Json::Node Parsed(const std::string& text) {
    std::string problem;
    const auto node = Json::Parse(text, problem);
    EXPECT_EQ(problem, "") << text;
    return node.value_or(Json::Node());
}

const Json::Node& Schema() {
    static const Json::Node schema = Json::SchemaOfEdid();
    return schema;
}

// By the path of what is wrong in each.
Json::Node FaultyEdids() {
    Json::Node faulty = Json::Node::EmptyObject();
    const std::pair<const char*, const char*> edids[] = {
        {"", R"({"vendorID": "ABC"})"},
        {"productId", R"({"productId": 65536})"},
        {"vendorId", R"({"vendorId": 5})"},
        {"digital", R"({"digital": "yes"})"},
        {"digitalInterface", R"({"digitalInterface": "HDMI-x"})"},
        {"powerFlags.0", R"({"powerFlags": ["Standbye"]})"},
        {"powerFlags", R"({"powerFlags": ["Standby", "Standby"]})"},
        {"gamma", R"({"gamma": 3.55})"},
        {"established.1", R"({"established": ["640x480 @ 60 Hz", 24]})"},
        {"standardResolutions.0.width", R"({"standardResolutions": [{"width": 255}]})"},
        {"descriptors", R"({"descriptors": [{"type": "Empty"}, {"type": "Empty"}, {"type": "Empty"}, {"type": "Empty"},
            {"type": "Empty"}]})"},
        {"descriptors.0.type", R"({"descriptors": [{"type": "Nam"}]})"},
        {"descriptors.0", R"({"descriptors": [{}]})"},
        {"descriptors.1", R"({"descriptors": [{"type": "Empty"}, {"type": "Name", "hactive": 5}]})"},
        {"descriptors.0.hactive", R"({"descriptors": [{"type": "Detailed resolution", "hactive": 4096}]})"},
        {"descriptors.0.mode", R"({"descriptors": [{"type": "Detailed resolution", "mode": "CVT"}]})"},
        {"descriptors.0.data", R"({"descriptors": [{"type": "Other", "data": "xyz"}]})"},
        {"extensionBlocks.0.dataBlocks.0.Version",
         R"({"extensionBlocks": [{"type": "CTA-861", "dataBlocks": [{"type": "HDMI v2", "Version": 256}]}]})"},
        {"extensionBlocks.0.section.dataBlocks.0.resolutions.0.vactive",
         R"({"extensionBlocks": [{"type": "DisplayID", "section": {"dataBlocks": [{"type": "Detailed resolutions",
             "resolutions": [{"vactive": 65537}]}]}}]})"},
        {"blocks", R"({"blocks": 257})"},
        {"bytes", R"({"bytes": {"x": "00"}})"},
    };
    for (const auto& [path, text] : edids) faulty.Set(path, Parsed(text));
    return faulty;
}

TEST(JsonSchema, SaysOfEachEdidWhatAValidatorShouldSay) {
    Json::Node sound = Json::Node::EmptyObject();
    for (const std::string& set : EdidSets(VANTELLE_SOURCE_DIR)) {
        for (const NamedEdid& edid : SomeEdidsOf(set)) {
            if (const auto node = Json::NodeOfEdid(edid.bytes)) sound.Set(edid.name, *node);
        }
    }
    sound.Set("nothing", Parsed("{}"));
    sound.Set("a mode", Parsed(R"({"vendorId": "ABC", "descriptors": [
        {"mode": "CVT-RB standard", "hactive": 2560, "vactive": 1440, "vrate": 60}]})"));
    Json::Node given = Json::Node::EmptyObject();
    given.Set("schema", Schema());
    given.Set("sound", sound);
    given.Set("faulty", FaultyEdids());
    const std::string file = VANTELLE_BINARY_DIR "/schema_test.json", said = VANTELLE_BINARY_DIR "/schema_test.txt";
    std::ofstream(file, std::ios::binary) << Json::Print(given);
    const std::string command =
        "/usr/bin/python3 '" VANTELLE_SOURCE_DIR "/tests/json/check_schema.py' '" + file + "' > '" + said + "' 2>&1";
    const int status = std::system(command.c_str());
    std::ifstream output(said);
    EXPECT_EQ(status, 0) << std::string(std::istreambuf_iterator<char>(output), {});
}

std::string DescriptionOf(const char* definition, const char* name) {
    const Json::Node* object = Schema().Find("$defs")->Find(definition);
    const Json::Node* field = object != nullptr ? object->Find("properties")->Find(name) : nullptr;
    if (field == nullptr || field->Find("description") == nullptr) return "";
    return field->Find("title")->Text() + ": " + field->Find("description")->Text();
}

TEST(JsonSchema, TellsUnitsAndWhatIsSound) {
    EXPECT_EQ(DescriptionOf("descriptors.detailedResolution", "pixelclock"), "Pixelclock: In MHz.");
    EXPECT_EQ(DescriptionOf("descriptors.rangeLimits", "maxVRate"), "Max vrate: In Hz. A sound EDID holds 1 to 510.");
    EXPECT_EQ(DescriptionOf("extensionBlocks.cta861.dataBlocks.hdmiV1", "MaxTmdsClock"), "Max tmds clock: In MHz.");
}

// A field with a unit is one that some layout has.
TEST(JsonSchema, HasAFieldForEachUnit) {
    std::set<std::string> known;
    const auto add = [&known](const Json::Node& object) {
        const Json::Node* properties = object.Find("properties");
        if (properties == nullptr) return;
        for (const auto& [name, field] : properties->Members()) {
            known.insert(name);
            std::string other = name;
            if (other[0] >= 'A' && other[0] <= 'Z') other[0] = static_cast<char>(other[0] - 'A' + 'a');
            known.insert(other);
        }
    };
    add(Schema());
    for (const auto& [name, object] : Schema().Find("$defs")->Members()) add(object);
    for (const std::string& name : Json::FieldsWithUnits()) EXPECT_TRUE(known.contains(name)) << name;
}

}  // namespace
}  // namespace VNT::Testing

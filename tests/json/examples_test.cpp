// The examples of the document, run by a shell as its readers run them.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "json/edid_json.h"
#include "samples/displays.h"

namespace VNT::Testing {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const fs::path& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.Range().data), static_cast<std::streamsize>(bytes.Size()));
}

// Of each example by its heading: the blocks of code, the first of which is commands and the second what they print.
std::map<std::string, std::vector<std::string>> ReadExamples() {
    std::istringstream document(Content(VANTELLE_SOURCE_DIR "/docs/json.md"));
    std::map<std::string, std::vector<std::string>> examples;
    std::string heading;
    bool inBlock = false;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with("### ")) heading = line.substr(4);
        const bool isCode = line.starts_with("    ");
        if (!heading.empty() && isCode) {
            std::vector<std::string>& blocks = examples[heading];
            if (!inBlock) blocks.emplace_back();
            blocks.back() += line.substr(4) + "\n";
        }
        inBlock = isCode;
    }
    return examples;
}

// The television after its update.
Bytes Updated(const Bytes& before) {
    std::string text = Json::Print(Json::NodeOfEdid(before).value_or(Json::Node()));
    const auto replace = [&text](const std::string& from, const std::string& to) {
        const std::size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from << " in " << text;
        text.replace(at, from.size(), to);
    };
    replace("\"MaxTmdsClock\": 300", "\"MaxTmdsClock\": 340");
    std::string problem;
    std::optional<Json::Node> node = Json::Parse(text, problem);
    EXPECT_TRUE(node) << problem;
    const std::size_t at = text.find("{\n          \"type\": \"Video capability\"");
    EXPECT_NE(at, std::string::npos) << text;
    text.insert(at, "{\"type\": \"FreeSync\", \"MinRefreshRate\": 48, \"MaxRefreshRate\": 60}, ");
    node = Json::Parse(text, problem);
    EXPECT_TRUE(node) << problem;
    Json::Building building;
    const auto bytes = Json::BuildEdid(node.value_or(Json::Node()), building);
    EXPECT_EQ(building.error, "");
    return bytes.value_or(Bytes());
}

TEST(JsonExamples, PrintWhatTheDocumentSays) {
    const auto examples = ReadExamples();
    ASSERT_EQ(examples.size(), 3u);
    const fs::path folder = fs::path(testing::TempDir()) / "vantelle_json_examples";
    for (const auto& [heading, blocks] : examples) {
        SCOPED_TRACE(heading);
        ASSERT_EQ(blocks.size(), 2u);
        fs::remove_all(folder);
        fs::create_directories(folder);
        const Bytes television(Samples::MakeDisplays()[2].edid);
        Put(folder / "monitor.bin", Bytes(Samples::MakeDisplays()[0].edid));
        Put(folder / "before.bin", television);
        Put(folder / "after.bin", Updated(television));
        std::ofstream(folder / "run.sh") << "set -euo pipefail\ncd '" << folder.string() << "'\nPATH='"
                                         << VANTELLE_BINARY_DIR << "/bin':$PATH\n"
                                         << blocks[0];
        const std::string command =
            "bash '" + (folder / "run.sh").string() + "' > '" + (folder / "said").string() + "' 2>&1";
        EXPECT_EQ(std::system(command.c_str()), 0) << Content(folder / "said");
        EXPECT_EQ(Content(folder / "said"), blocks[1]);
    }
    fs::remove_all(folder);
}

}  // namespace
}  // namespace VNT::Testing

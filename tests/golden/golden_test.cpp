// Each file of facts agrees with the program. `scripts/golden --renew` writes them anew: read the difference as code.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

#include "tests/golden/facts.h"
#include "tests/support/difference.h"

namespace VNT::Testing {
namespace {

const std::filesystem::path Folder = std::filesystem::path(VANTELLE_SOURCE_DIR) / GetFacts().folder;

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The first line that differs, which says more than two long texts.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream a(expected), b(actual);
    for (int number = 1;; ++number) {
        std::string is, was;
        const bool hasWas = static_cast<bool>(std::getline(a, was)), hasIs = static_cast<bool>(std::getline(b, is));
        if (!hasWas && !hasIs) return {};
        if (was != is || hasWas != hasIs) {
            return "line " + std::to_string(number) + "\n  file:    " + was + "\n  program: " + is;
        }
    }
}

class EachFactFile : public testing::TestWithParam<FactFile> {};

TEST_P(EachFactFile, AgreesWithTheProgram) {
    const FactFile& facts = GetParam();
    const std::string text = facts.print();
    if (std::getenv("VANTELLE_RENEW_GOLDEN") != nullptr) std::ofstream(Folder / facts.name) << text;
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(FirstDifference(ReadFile(Folder / facts.name), text), "") << facts.name;
}

std::string NameOf(const testing::TestParamInfo<FactFile>& info) {
    std::string name;
    for (const char c : std::string(info.param.name)) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) name += c;
    }
    return name;
}
INSTANTIATE_TEST_SUITE_P(Facts, EachFactFile, testing::ValuesIn(GetFacts().files), NameOf);

TEST(FactFiles, AreAllThatStandHere) {
    std::set<std::string> known, there;
    for (const FactFile& facts : GetFacts().files) known.insert(facts.name);
    for (const auto& entry : std::filesystem::directory_iterator(Folder)) {
        if (entry.path().extension() == ".txt" && entry.path().filename() != "CMakeLists.txt")
            there.insert(entry.path().filename().string());
    }
    EXPECT_TRUE(HaveNoDifference(known, there));
}

}  // namespace
}  // namespace VNT::Testing

// The rules on the project as it stands.

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "tests/lint/rules.h"

namespace Lint {

namespace {

const std::vector<SourceFile>& Tree() {
    static const std::vector<SourceFile> tree = ReadTree(VANTELLE_SOURCE_DIR);
    return tree;
}

std::string BrokenIn(void (*rule)(const SourceFile&, Findings&)) {
    Findings findings;
    for (const SourceFile& file : Tree()) rule(file, findings);
    std::string all;
    for (const std::string& finding : findings) all += finding + "\n";
    return all;
}

// The files that clang-format would change, or why it can't say.
std::string UnformattedFiles() {
    const std::string folder = VANTELLE_BINARY_DIR;
    const std::string list = folder + "/lint_files.txt";
    const std::string output = folder + "/lint_format.txt";
    std::ofstream names(list);
    for (const SourceFile& file : Tree()) names << file.path << "\n";
    names.close();
    const std::string command =
        "cd '" VANTELLE_SOURCE_DIR "' && xargs clang-format --dry-run -Werror < '" + list + "' > '" + output + "' 2>&1";
    if (std::system(command.c_str()) == 0) return {};
    std::ifstream said(output);
    const std::string text{std::istreambuf_iterator<char>(said), std::istreambuf_iterator<char>()};
    return text.empty() ? "clang-format failed" : text.substr(0, 4000);
}

}  // namespace

TEST(Tree, IsFound) { EXPECT_GT(Tree().size(), 50u); }

TEST(Tree, TakesBitsApartInTheCoreAlone) {
    EXPECT_EQ(BrokenIn(FindShifts), "");
    EXPECT_EQ(BrokenIn(FindMasks), "");
}

TEST(Tree, IncludesPlatformHeadersInTheirRoomsOnly) { EXPECT_EQ(BrokenIn(FindForeignHeaders), ""); }

TEST(Tree, HasArrowsThatPointDownOnly) { EXPECT_EQ(BrokenIn(FindUpwardIncludes), ""); }

TEST(Tree, HasNoFloatingPointInTiming) { EXPECT_EQ(BrokenIn(FindFloatingPoint), ""); }

TEST(Tree, HasNeitherExceptionsNorStreamsInTheModel) { EXPECT_EQ(BrokenIn(FindFailuresInModel), ""); }

TEST(Tree, HasNoFileOfMoreThanEightHundredLines) { EXPECT_EQ(BrokenIn(FindLongFiles), ""); }

TEST(Tree, LeavesNothingToDo) { EXPECT_EQ(BrokenIn(FindUnfinishedWork), ""); }

TEST(Tree, GuardsItsHeaders) { EXPECT_EQ(BrokenIn(FindUnguardedHeaders), ""); }

TEST(Tree, IsFormatted) { EXPECT_EQ(UnformattedFiles(), ""); }

}  // namespace Lint

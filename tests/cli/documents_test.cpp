#include "cli/documents.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "cli/commands.h"

namespace fs = std::filesystem;

namespace VNT::Cli {

namespace {

// Without what is escaped in one text and not in the other.
std::string Plain(std::string text) {
    std::erase_if(text, [](char c) { return c == '\\' || c == '\''; });
    return text;
}

#ifndef _WIN32
// What bash offers for the last of `words`, a blank behind each; the program itself is `program`.
std::string Offered(const std::string& words, const std::string& program = "true") {
    const fs::path folder = fs::path(testing::TempDir()) / "vantelle_completion";
    fs::create_directories(folder);
    std::ofstream(folder / "completion") << MakeBashCompletion();
    std::ofstream(folder / "run") << "vantelle-cli() { " << program << "; }\nsource '"
                                  << (folder / "completion").string() << "' || exit 1\nCOMP_WORDS=(vantelle-cli "
                                  << words << ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_vantelle_cli\n"
                                  << "for word in \"${COMPREPLY[@]}\"; do echo -n \"$word \"; done\n";
    const std::string out = (folder / "out").string();
    EXPECT_EQ(std::system(("bash '" + (folder / "run").string() + "' >'" + out + "' 2>&1").c_str()), 0);
    std::ifstream in(out);
    return {std::istreambuf_iterator<char>(in), {}};
}
#endif

}  // namespace

TEST(Documents, TellOfEveryCommandWordAndOption) {
    const std::string manual = Plain(MakeManual());
    const std::string bash = MakeBashCompletion();
    const std::string zsh = Plain(MakeZshCompletion());
    for (const Command* command : Commands()) {
        EXPECT_NE(manual.find("vantelle-cli " + UsageOf(*command) + "\n"), std::string::npos) << command->name;
        EXPECT_NE(manual.find(Plain(command->summary)), std::string::npos) << command->name;
        EXPECT_NE(manual.find(command->example), std::string::npos) << command->name;
        EXPECT_NE(bash.find(std::string("    ") + command->name + ")\n"), std::string::npos) << command->name;
        EXPECT_NE(zsh.find(Plain(std::string(command->name) + ":" + command->summary)), std::string::npos);
        for (const Word& word : command->words) {
            EXPECT_NE(manual.find(Plain(word.help)), std::string::npos) << word.name;
            EXPECT_NE(zsh.find(Plain(word.help)), std::string::npos) << word.name;
        }
        for (const Option& option : command->options) {
            EXPECT_NE(manual.find(Plain(option.help)), std::string::npos) << option.name;
            EXPECT_NE(zsh.find(Plain(std::string(option.name) + "[" + option.help)), std::string::npos) << option.name;
            EXPECT_NE(bash.find(option.name), std::string::npos) << option.name;
        }
    }
}

#ifndef _WIN32

TEST(Documents, BashOffersCommandsOptionsAndChoices) {
    EXPECT_EQ(Offered("sho"), "show ");
    EXPECT_EQ(Offered("--v"), "--version ");
    EXPECT_EQ(Offered("convert --"), "--help --format ");
    EXPECT_EQ(Offered("convert --format ''"), "bin dat txt ");
    EXPECT_EQ(Offered("timing --kind displayid2"), "displayid2 displayid2r2 ");
    EXPECT_EQ(Offered("timing a 1920x1080@60 ''"), "");
}

TEST(Documents, BashAsksTheProgramForModesAndDisplays) {
    EXPECT_EQ(Offered("timing ''", "printf 'CVT-RB standard\\nManual\\n'"), "cvt-rb-standard manual ");
    const std::string list = R"(printf '1\tA B\tDISPLAY\\A\\5&1\n2\tC\tDISPLAY\\C\\6\n')";
    EXPECT_EQ(Offered("read ''", list), R"(DISPLAY\A\5&1 DISPLAY\C\6 )");
    EXPECT_EQ(Offered("read --format bin 'DISPLAY\\C'", list), R"(DISPLAY\C\6 )");
    EXPECT_EQ(Offered("read 'display\\\\a\\\\5\\&'", list), R"(DISPLAY\A\5&1 )");
}

#endif

}  // namespace VNT::Cli

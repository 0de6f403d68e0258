// Files that are edited in place, and what is saved with the rights of others.
#include <fstream>
#include <gtest/gtest.h>

#include "app/edit_file.h"
#include "app/run_command.h"
#include "app/save_with_rights.h"
#include "store/edid_files.h"

namespace fs = std::filesystem;

namespace VNT::App {

namespace {

std::string Read(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const fs::path& file, const std::string& text) { std::ofstream(file, std::ios::binary) << text; }

std::string MakeBytes(const char* vendor) {
    EdidFields fields;
    fields.properties.vendorId = vendor;
    const Bytes bytes = Edid(fields).GetBytes();
    return {bytes.View().begin(), bytes.View().end()};
}

Bytes ToBytes(const std::string& text) { return Bytes(std::vector<std::uint8_t>(text.begin(), text.end())); }

class Saving : public testing::Test {
protected:
    Saving() { fs::create_directories(folder); }
    ~Saving() override { fs::remove_all(folder); }

    // A user who makes the file's display an edited one and ends with `result`.
    EntryScreen Edit(const std::string& bytes, int result) {
        return {[] { return 0; },
                [bytes, result](DisplayList& displays) {
                    EXPECT_EQ(displays.size(), 1u);
                    EXPECT_TRUE(displays.front().SetData(ToBytes(bytes)));
                    return result;
                },
                [this](const wchar_t* text) { shown = text; }};
    }

    Display MakeDisplay(const wchar_t* id, bool saved) {
        Display display;
        display.InstanceId = id;
        display.CurrentData = ToBytes(MakeBytes("AAA"));
        display.Saved = saved;
        return display;
    }

    const fs::path folder =
        fs::path(testing::TempDir()) / testing::UnitTest::GetInstance()->current_test_info()->name();
    const fs::path file = folder / "edid.bin";
    const std::string before = MakeBytes("AAA");
    const std::string after = MakeBytes("BBB");
    std::wstring shown;
};

constexpr int Ok = 1;
constexpr int Cancel = 2;

}  // namespace

TEST_F(Saving, OfAFileWritesItInItsOwnFormat) {
    Write(file, before);
    EXPECT_EQ(EditFile(file, Edit(after, Ok)), 0);
    EXPECT_EQ(Read(file), after);
    Edid edid;
    edid.Read(ToBytes(before));
    for (const FileFormat format : {FileFormat::Dat, FileFormat::Txt}) {
        ASSERT_TRUE(Export(file, edid, format));
        const std::string text = Read(file);
        EXPECT_EQ(EditFile(file, Edit(after, Ok)), 0);
        EXPECT_NE(Read(file), text);
        Edid read;
        EXPECT_TRUE(format == FileFormat::Dat ? ImportDat(file, read) : ImportTxt(file, read));
        EXPECT_EQ(read.GetBytes(), ToBytes(after));
    }
}

TEST_F(Saving, OfAFileThatWasCancelledOrNotChangedLeavesIt) {
    Write(file, before);
    EXPECT_EQ(EditFile(file, Edit(after, Cancel)), 0);
    EXPECT_EQ(Read(file), before);
    const auto time = fs::last_write_time(file);
    EXPECT_EQ(EditFile(file, Edit(before, Ok)), 0);
    EXPECT_EQ(fs::last_write_time(file), time);
    EXPECT_EQ(shown, L"");
}

TEST_F(Saving, OfAFileKeepsWhatStandsBehindTheEdid) {
    Write(file, before + std::string(128, 'x'));
    EXPECT_EQ(EditFile(file, Edit(after, Ok)), 0);
    EXPECT_EQ(Read(file), after + std::string(128, 'x'));
}

TEST_F(Saving, OfAFileBehindALinkKeepsTheLink) {
    Write(file, before);
    const fs::path link = folder / "link";
    fs::create_symlink(file, link);
    EXPECT_EQ(EditFile(link, Edit(after, Ok)), 0);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(Read(file), after);
}

TEST_F(Saving, OfWhatIsNoEdidFailsBeforeItIsShown) {
    Write(file, "no EDID");
    bool isShown = false;
    EntryScreen screen = Edit(after, Ok);
    screen.edit = [&isShown](DisplayList&) {
        isShown = true;
        return Ok;
    };
    EXPECT_EQ(EditFile(file, screen), 1);
    EXPECT_FALSE(isShown);
    EXPECT_EQ(shown, L"Failed to import file.");
    EXPECT_EQ(Read(file), "no EDID");
    EXPECT_EQ(EditFile(folder / "none", screen), 1);
}

TEST_F(Saving, WithRightsGivesEachEditedDisplayToTheCommandLine) {
    std::vector<Words> commands;
    std::string given;
    SaveWithRights saving("/usr/bin/vantelle-cli", folder / "unsaved", std::nullopt, [&](const Words& words) {
        commands.push_back(words);
        given = Read(words.back());
        return 0;
    });
    DisplayList displays{MakeDisplay(L"CARD/DP 1", false), MakeDisplay(L"OTHER", true)};
    EXPECT_TRUE(saving.Save(displays));
    const std::string waiting = (folder / "unsaved" / "CARD-DP-1.bin").string();
    EXPECT_EQ(commands, (std::vector<Words>{{"pkexec", "/usr/bin/vantelle-cli", "write", "--", "CARD/DP 1", waiting}}));
    EXPECT_EQ(given, before);
    EXPECT_TRUE(displays.front().Saved);
    EXPECT_FALSE(fs::exists(waiting));
    EXPECT_EQ(saving.GetAdvice(), L"");
}

TEST_F(Saving, WithoutRightsKeepsTheEdidAndTellsTheCommand) {
    for (const std::optional<int> answer : {std::optional<int>(126), std::optional<int>()}) {
        SaveWithRights saving("/opt/my tools/vantelle-cli", folder / "unsaved", folder,
                              [&](const Words&) { return answer; });
        DisplayList displays{MakeDisplay(L"CARD", false)};
        EXPECT_FALSE(saving.Save(displays));
        EXPECT_FALSE(displays.front().Saved);
        const fs::path kept = folder / "unsaved" / "CARD.bin";
        EXPECT_EQ(Read(kept), before);
        const std::string command = "sudo '/opt/my tools/vantelle-cli' write --store " + Quote(folder.string()) +
                                    " -- CARD " + Quote(kept.string());
        EXPECT_NE(saving.GetAdvice().find(std::wstring(command.begin(), command.end())), std::wstring::npos);
    }
}

TEST_F(Saving, WhereNothingCanBeKeptFails) {
    Write(file, "in the way");
    SaveWithRights saving("/usr/bin/vantelle-cli", file / "unsaved", std::nullopt, [](const Words&) { return 0; });
    DisplayList displays{MakeDisplay(L"CARD", false)};
    EXPECT_FALSE(saving.Save(displays));
    EXPECT_EQ(saving.GetAdvice(), L"");
}

TEST(Quote, MakesOneWordOfAShellOfAnyText) {
    EXPECT_EQ(Quote("/usr/bin/vantelle-cli"), "/usr/bin/vantelle-cli");
    EXPECT_EQ(Quote("a b"), "'a b'");
    EXPECT_EQ(Quote("it's"), "'it'\\''s'");
    EXPECT_EQ(Quote(""), "''");
    EXPECT_EQ(Quote("DISPLAY\\A&B"), "'DISPLAY\\A&B'");
}

TEST(RunCommandToEnd, AnswersWithTheExitCode) {
    EXPECT_EQ(RunCommandToEnd({"sh", "-c", "exit 7"}), 7);
    EXPECT_EQ(RunCommandToEnd({"true"}), 0);
    EXPECT_EQ(RunCommandToEnd({"/no/such/program"}), std::nullopt);
    EXPECT_EQ(RunCommandToEnd({"sh", "-c", "kill -9 $$"}), std::nullopt);
    EXPECT_EQ(RunCommandToEnd({}), std::nullopt);
}

}  // namespace VNT::App

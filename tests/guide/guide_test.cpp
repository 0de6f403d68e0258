// Every task of the guide, done on the program as its text says.
#include <filesystem>
#include <gtest/gtest.h>

#include "tests/guide/player.h"
#include "ui/headless/driver.h"

namespace Guide {

// How a failure names its task.
static void PrintTo(const Task& task, std::ostream* out) { *out << task.name; }

namespace {

class HeadlessHands : public Hands {
public:
    HeadlessHands() {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~HeadlessHands() override { std::filesystem::remove_all(folder); }

    void Play(std::vector<std::function<void()>> steps, const std::function<void()>& program) override {
        for (auto& step : steps) driver.Then(std::move(step));
        program();
        if (driver.CountStepsLeft() > 0) throw PlayError("the program has ended before the task has");
        for (const auto& message : driver.GetMessages()) throw PlayError(ToUtf8(message.Text));
    }
    void Click(UI::Control& control) override { driver.Click(control); }
    void Enter(UI::Controls::TextBox& box, const std::wstring& text) override { driver.Enter(box, text); }
    void Choose(UI::Controls::ComboBox& box, int row) override { driver.Choose(box, row); }
    void Select(UI::Controls::ListBox& list, int row) override { driver.Click(list, row); }
    void AnswerFile(const std::wstring& name) override { driver.AnswerFileDialog({UI::ChosenFile{folder / name}}); }
    void TakePicture(const std::string&, UI::Window&, const std::vector<UI::Control*>&) override {}

private:
    UI::Headless::Driver driver;
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        (std::string("vantelle-guide-") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

const std::filesystem::path Folder = VANTELLE_SOURCE_DIR "/docs/guide";

std::vector<Task> GetTasks() {
    std::vector<Task> tasks;
    for (const Page& page : ReadPages(Folder)) tasks.insert(tasks.end(), page.tasks.begin(), page.tasks.end());
    return tasks;
}

// What the player says of the task; empty when all is as told.
std::string PlayText(const std::string& text) {
    HeadlessHands hands;
    const Page page = ReadPage("text.md", text);
    if (!page.errors.empty()) return page.errors.front();
    try {
        for (const Task& task : page.tasks) Player(hands).Play(task);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

class GuideTask : public testing::TestWithParam<Task> {};

TEST_P(GuideTask, CanBeDoneAsTold) {
    HeadlessHands hands;
    EXPECT_NO_THROW(Player(hands).Play(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Of, GuideTask, testing::ValuesIn(GetTasks()), [](const auto& info) {
    std::string name = info.param.name;
    for (char& c : name) c = c == '-' ? '_' : c;
    return name;
});

TEST(Guide, ShowsExactlyThePicturesThatItsTasksTake) {
    std::set<std::string> shown;
    std::set<std::string> taken;
    std::set<std::string> files;
    for (const Page& page : ReadPages(Folder)) {
        EXPECT_EQ(page.errors, std::vector<std::string>());
        shown.insert(page.pictures.begin(), page.pictures.end());
        for (const Task& task : page.tasks) {
            for (const Step& step : task.steps) {
                for (const Command& command : step.commands) {
                    if (command.verb == "picture") taken.insert(ToUtf8(command.words.at(0)));
                }
            }
        }
    }
    for (const auto& file : std::filesystem::directory_iterator(Folder / "pictures")) {
        files.insert(file.path().stem().string());
    }
    EXPECT_FALSE(shown.empty());
    EXPECT_EQ(shown, taken);
    EXPECT_EQ(files, taken);
}

// That a guide which is wrong does not pass.
TEST(GuidePlayer, TellsOfAButtonThatIsNotThere) {
    EXPECT_EQ(PlayText("<!-- task: t -->\nPress **OK**.\n<!-- click \"Okay\" -->"),
              "text.md:3: click \"Okay\": nothing reads \"Okay\"");
}

TEST(GuidePlayer, TellsOfABoldWordThatTheScreenDoesNotShow) {
    EXPECT_EQ(PlayText("<!-- task: t -->\nPress **Save**.\n<!-- click \"OK\" -->"),
              "text.md:3: the screen shows no \"Save\"");
}

TEST(GuidePlayer, TellsOfAButtonThatIsOff) {
    EXPECT_EQ(PlayText("<!-- task: t -->\n<!-- click \"Standard resolutions\" \"Delete\" -->"),
              "text.md:2: click \"Standard resolutions\" \"Delete\": it can't be used");
}

TEST(GuidePlayer, TellsOfTheEndBeforeTheTasks) {
    EXPECT_EQ(PlayText("<!-- task: t -->\n<!-- click \"Cancel\" -->\n<!-- see \"Display\" -->"),
              "the program has ended before the task has");
}

TEST(GuidePlayer, TellsOfATaskThatLeavesTheProgramOpen) {
    EXPECT_NE(PlayText("<!-- task: t -->\n<!-- see \"Display\" -->\n<!-- see \"Display\" -->"), "");
}

TEST(GuidePlayer, TellsOfWhatIsNoCommand) {
    EXPECT_EQ(PlayText("<!-- task: t -->\n<!-- click OK -->"), "text.md:2: no command: click OK");
    EXPECT_EQ(PlayText("<!-- click \"OK\" -->"), "text.md:1: commands before the first task");
    EXPECT_EQ(PlayText("<!-- task: t -->\n<!-- press \"OK\" -->"), "text.md:2: press \"OK\": there is no such command");
}

TEST(GuidePlayer, SeesWhatWasSavedWhenTheProgramRunsAgain) {
    EXPECT_EQ(PlayText("<!-- task: t -->\n<!-- click \"720x400 @ 70 Hz\" -->\nPress **OK**.\n<!-- click \"OK\" -->\n"
                       "<!--\nagain\nchecked \"720x400 @ 70 Hz\"\nsee \"QOR2401 - QORVEL 24 (active)*\"\n"
                       "click \"Cancel\"\n-->"),
              "");
}

TEST(GuideScript, GoesOnScreenAsFarAsItsLastPicture) {
    const Page page =
        ReadPage("text.md", "<!-- task: t -->\n<!--\nsee \"a\"\npicture \"b\"\nsee \"c\"\n-->\n<!-- see \"d\" -->");
    const Task cut = CutBehindLastPicture(page.tasks.at(0));
    ASSERT_EQ(cut.steps.size(), 1u);
    EXPECT_EQ(cut.steps[0].commands.size(), 2u);
    EXPECT_TRUE(CutBehindLastPicture({"t", {}}).steps.empty());
}

}  // namespace
}  // namespace Guide

#include "store/entry.h"

#include <gtest/gtest.h>

#include "tests/store/sample.h"

namespace VNT {

using namespace Sample;

namespace {

struct Outcome {
    int exitCode = -1;
    std::vector<std::wstring> errors = {};
    bool edited = false;
};

// Runs the flow with an editor that sets `data` on every display and ends with `result`.
Outcome RunFlow(MemoryPlatform& platform, int result, const Bytes& data, int drawing = 0) {
    Outcome outcome;
    EntryScreen screen;
    screen.startDrawing = [=] { return drawing; };
    screen.edit = [&](DisplayList& list) {
        outcome.edited = true;
        for (Display& display : list) display.SetData(data);
        return result;
    };
    screen.showError = [&](const wchar_t* text) { outcome.errors.emplace_back(text); };
    outcome.exitCode = RunEntry(platform, screen);
    return outcome;
}

}  // namespace

TEST(Entry, OkSavesWhatWasEdited) {
    MemoryPlatform platform;
    MemoryDevice& device = Add(platform, First, true, Base(1));
    const Outcome outcome = RunFlow(platform, 1, Base(2));
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.errors.empty());
    EXPECT_EQ(OverrideNames(device), L"0 ");
}

TEST(Entry, CancelWritesNothing) {
    for (const int result : {0, 2, -1}) {
        MemoryPlatform platform;
        MemoryDevice& device = Add(platform, First, true, Base(1));
        const Outcome outcome = RunFlow(platform, result, Base(2));
        EXPECT_TRUE(outcome.edited);
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(OverrideNames(device), L"-");
        EXPECT_EQ(platform.Count("SetValue"), 0);
    }
}

TEST(Entry, DrawingThatDoesNotStartEndsTheProgram) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    const Outcome outcome = RunFlow(platform, 1, Base(2), 7);
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors, (std::vector<std::wstring>{L"GdiplusStartup failed."}));
    EXPECT_TRUE(platform.Log().empty());
}

TEST(Entry, ClassThatCannotBeOpenedEndsTheProgram) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    platform.FailEach("OpenMonitorClass");
    const Outcome outcome = RunFlow(platform, 1, Base(2));
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors, (std::vector<std::wstring>{L"Failed to load displays."}));
    EXPECT_FALSE(outcome.edited);
}

TEST(Entry, NoDisplayThatQualifiesEndsTheProgram) {
    MemoryPlatform platform;
    Add(platform, First, false, Base(1));
    const Outcome outcome = RunFlow(platform, 1, Base(2));
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors, (std::vector<std::wstring>{L"No displays found."}));
    EXPECT_FALSE(outcome.edited);
}

TEST(Entry, DisplayThatFailsToSaveIsReportedAndTheOthersAreSaved) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    MemoryDevice& second = Add(platform, Second, true, Base(1));
    EntryScreen screen;
    std::vector<std::wstring> errors;
    screen.startDrawing = [] { return 0; };
    screen.edit = [&](DisplayList& list) {
        for (Display& display : list) display.SetData(Base(2));
        platform.FailCall(1);  // the first device can't be opened
        return 1;
    };
    screen.showError = [&](const wchar_t* text) { errors.emplace_back(text); };
    EXPECT_EQ(RunEntry(platform, screen), 1);
    EXPECT_EQ(errors, (std::vector<std::wstring>{L"An error occurred while saving. Not all changes were saved."}));
    EXPECT_EQ(OverrideNames(platform.devices[0]), L"-");
    EXPECT_EQ(OverrideNames(second), L"0 ");
}

TEST(Entry, TextThrownByTheEditorIsShownAndNothingIsSaved) {
    MemoryPlatform platform;
    Add(platform, First, true, Base(1));
    EntryScreen screen;
    std::vector<std::wstring> errors;
    screen.startDrawing = [] { return 0; };
    screen.edit = [](DisplayList& list) -> int {
        list[0].SetData(Base(2));
        throw L"CreateWindowExW failed.";
    };
    screen.showError = [&](const wchar_t* text) { errors.emplace_back(text); };
    EXPECT_EQ(RunEntry(platform, screen), 1);
    EXPECT_EQ(errors, (std::vector<std::wstring>{L"CreateWindowExW failed."}));
    EXPECT_EQ(platform.Count("SetValue"), 0);
}

}  // namespace VNT

// The program from end to end on a machine in memory: the main window between a load and a save.
#include <gtest/gtest.h>

#include "editor/main_window.h"
#include "store/entry.h"
#include "tests/editor/main_window_form.h"
#include "tests/store/sample.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using Testing::MakeEdid;
using Testing::MakeExtendedEdid;
namespace Store = VNT::Sample;

class EntryFlow : public testing::Test {
protected:
    void SetUp() override {
        Store::Add(platform, Store::First, true, MakeEdid("AAA", "FIRST"));
        Store::Add(platform, Store::Second, true, MakeEdid("BBB", "SECOND"));
        Store::Add(platform, Store::Third, true, MakeExtendedEdid(2));
    }
    // Runs the program; its exit code.
    int Run(const std::function<void()>& steps) {
        driver.Then(steps);
        return RunEntry(platform,
                        {[] { return 0; }, EditDisplays, [this](const wchar_t* text) { errors.emplace_back(text); }});
    }
    void Toggle(const wchar_t* text) { driver.Click(driver.Find<CheckBox>(text)); }
    void Show(int row) { driver.Choose(driver.Find<ComboBox>(L"Display:"), row); }
    void Click(const wchar_t* text) { driver.Click(driver.Find<Button>(text)); }
    std::wstring OverrideNames(std::size_t device) const { return Store::OverrideNames(platform.devices[device]); }
    Bytes Override(std::size_t device, const wchar_t* name) {
        MemoryKeyPointer* key = platform.devices[device].hardwareKey->keys.Find(L"EDID_OVERRIDE");
        const Bytes* value = key ? (*key)->values.Find(name) : nullptr;
        return value ? *value : Bytes();
    }

    MemoryPlatform platform;
    UI::Headless::Driver driver;
    std::vector<std::wstring> errors;
};

TEST_F(EntryFlow, OkWritesTheBlocksOfTheEditedDisplaysAlone) {
    EXPECT_EQ(Run([&] {
                  Show(2);
                  Toggle(L"800x600 @ 60 Hz");
                  Show(1);
                  Click(L"OK");
              }),
              0);
    EXPECT_TRUE(errors.empty());
    EXPECT_EQ(OverrideNames(0), L"-");
    EXPECT_EQ(OverrideNames(1), L"-");
    EXPECT_EQ(OverrideNames(2), L"0 1 2 ");
    Bytes expected = MakeExtendedEdid(2);
    expected.At(35) = 0x01;
    expected.At(127) = static_cast<std::uint8_t>(ComputeChecksum(expected));
    EXPECT_EQ(Override(2, L"0"), expected.Slice(0, 128));
    EXPECT_EQ(Override(2, L"1"), expected.Slice(128, 128));
    EXPECT_EQ(Override(2, L"2"), expected.Slice(256, 128));
    EXPECT_EQ(platform.OpenHandles(), 0);
}

TEST_F(EntryFlow, CancelAfterChangesToSeveralDisplaysSavesNone) {
    EXPECT_EQ(Run([&] {
                  Toggle(L"800x600 @ 60 Hz");
                  Show(1);
                  Toggle(L"640x480 @ 60 Hz");
                  Show(2);
                  Toggle(L"720x400 @ 70 Hz");
                  Click(L"Cancel");
              }),
              0);
    EXPECT_TRUE(errors.empty());
    EXPECT_EQ(platform.Count("SetValue"), 0);
    EXPECT_EQ(platform.Count("DeleteKey"), 0);
    for (std::size_t device = 0; device < 3; ++device) EXPECT_EQ(OverrideNames(device), L"-");
}

TEST_F(EntryFlow, OkWithoutAnEditWritesNothing) {
    EXPECT_EQ(Run([&] {
                  Show(2);
                  Show(0);
                  Click(L"OK");
              }),
              0);
    EXPECT_EQ(platform.Count("SetValue"), 0);
}

TEST_F(EntryFlow, WhatWasSavedIsMarkedAndShownTheNextTime) {
    Run([&] {
        Toggle(L"800x600 @ 60 Hz");
        Click(L"OK");
    });
    Run([&] {
        EXPECT_EQ(driver.Find<ComboBox>(L"Display:").GetItemText(0), L"AAA09FF - FIRST (active)*");
        EXPECT_TRUE(driver.Find<CheckBox>(L"800x600 @ 60 Hz").IsChecked());
        Click(L"Cancel");
    });
}

TEST_F(EntryFlow, AStoreThatRefusesIsReportedAndEndsWithOne) {
    platform.FailEach("SetValue");
    EXPECT_EQ(Run([&] {
                  Toggle(L"800x600 @ 60 Hz");
                  Click(L"OK");
              }),
              1);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0], L"An error occurred while saving. Not all changes were saved.");
}

TEST_F(EntryFlow, AWindowThatCantBeMadeIsReportedAndSavesNothing) {
    const MainWindow other(DisplayList{Testing::MakeDisplay(L"X", MakeEdid("XXX", ""))});
    EXPECT_EQ(RunEntry(platform,
                       {[] { return 0; }, EditDisplays, [this](const wchar_t* text) { errors.emplace_back(text); }}),
              1);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0], L"RegisterClassExW failed.");
    EXPECT_EQ(platform.Count("SetValue"), 0);
}

}  // namespace

// The user of the resolution form, who reads and fills its boxes by their labels.
#pragma once

#include <functional>
#include <gtest/gtest.h>

#include "editor/resolution_windows.h"
#include "ui/headless/driver.h"

namespace VNT::Testing {

class ResolutionForm : public testing::Test {
protected:
    enum Axis { Horizontal, Vertical };

    void TearDown() override { DetailedResolutionClipboard() = DetailedResolution(); }

    // Opens the form of a kind on `item` and does the steps; its result.
    template <class FormWindow>
    int Open(typename FormWindow::Item& item, const std::function<void()>& steps) {
        driver.Then(steps);
        FormWindow window(nullptr);
        if constexpr (requires { item.GetSize(); }) {
            return window.Run(item, item.GetSize());
        } else {
            return window.Run(item);
        }
    }
    int Run(EdidDetailedResolution& item, const std::function<void()>& steps) {
        return Open<EdidDetailedResolutionWindow>(item, steps);
    }
    UI::Controls::TextBox& Box(const wchar_t* label, int nth = 0) {
        return driver.Find<UI::Controls::TextBox>(label, nth);
    }
    UI::Controls::ComboBox& Mode() { return driver.Find<UI::Controls::ComboBox>(L"Timing:"); }
    UI::Controls::RadioButton& Radio(const wchar_t* text) { return driver.Find<UI::Controls::RadioButton>(text); }
    void Click(const wchar_t* button) { driver.Click(driver.Find<UI::Controls::Button>(button)); }
    void ClickInterlaced() { driver.Click(driver.Find<UI::Controls::CheckBox>(L"Interlaced")); }
    void Choose(const wchar_t* mode) { driver.Choose(Mode(), mode); }
    void Picture(const wchar_t* width, const wchar_t* height, const wchar_t* rate) {
        driver.Enter(Box(L"Active:", Horizontal), width);
        driver.Enter(Box(L"Active:", Vertical), height);
        driver.Enter(Box(L"Refresh rate:"), rate);
    }
    std::wstring Counts(Axis axis) {
        std::wstring all;
        for (const wchar_t* label :
             {L"Active:", L"Front porch:", L"Sync width:", L"Back porch:", L"Blanking:", L"Total:"}) {
            all += (all.empty() ? L"" : L" ") + Box(label, axis).GetText();
        }
        return all;
    }
    bool CanConfirm() { return driver.Find<UI::Controls::Button>(L"OK").IsEnabled(); }
    void Leave() { driver.Press(UI::Key::Escape); }
    void Confirm() { driver.Press(UI::Key::Return); }

    UI::Headless::Driver driver;
};

}  // namespace VNT::Testing

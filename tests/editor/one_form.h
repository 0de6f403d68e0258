// A test of one form by its user.
#pragma once

#include <functional>
#include <gtest/gtest.h>

#include "ui/headless/driver.h"

namespace VNT::Testing {

template <class FormWindow>
class TFormTest : public testing::Test {
protected:
    using Item = typename FormWindow::Item;

    // Opens the form on `item` and does the steps; its result.
    int Run(const std::function<void()>& steps) {
        driver.Then(steps);
        FormWindow window(nullptr);
        return window.Run(item, bytes);
    }
    // Clicks what opens a further form, and does the steps there.
    void In(UI::Controls::Button& opener, const std::function<void()>& steps) {
        driver.Then(steps);
        driver.Click(opener);
    }
    void Confirm() { driver.Click(Named(L"OK")); }
    void Leave() { driver.Press(UI::Key::Escape); }
    bool CanConfirm() const { return Named(L"OK").IsEnabled(); }
    UI::Controls::Button& Named(const wchar_t* text) const { return driver.Find<UI::Controls::Button>(text); }
    UI::Controls::TextBox& Box(const wchar_t* label, int nth = 0) const {
        return driver.Find<UI::Controls::TextBox>(label, nth);
    }
    UI::Controls::ComboBox& Combo(const wchar_t* label) const { return driver.Find<UI::Controls::ComboBox>(label); }
    UI::Controls::CheckBox& Check(const wchar_t* text) const { return driver.Find<UI::Controls::CheckBox>(text); }

    UI::Headless::Driver driver;
    Item item;
    int bytes = GetMostBytes();  // that the item may take, where its size is its own

private:
    static constexpr int GetMostBytes() {
        if constexpr (requires { Item::MaxSize; }) return Item::MaxSize;
        return 0;
    }
};

}  // namespace VNT::Testing

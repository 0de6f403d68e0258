// The form framework on a form that has a row of every kind.
#include "editor/any_window.h"

#include <gtest/gtest.h>

#include "tests/editor/sample_form.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

// Runs the sample's form with these steps; its result.
int RunSample(Driver& driver, Sample::Item& item, const std::function<void(Sample::ItemForm&)>& steps) {
    Sample::ItemForm form;
    driver.Then([&] {
        steps(form);
        driver.Press(Key::Escape);
    });
    return form.Run(item);
}

TEST(FormText, ANumberWithLeadingZerosComesBackCanonicalWhenItIsLeft) {
    Driver driver;
    Sample::Item item;
    RunSample(driver, item, [&](auto&) {
        auto& box = driver.Find<TextBox>(L"Count:");
        driver.Enter(box, L"007");
        EXPECT_EQ(box.GetText(), L"007");
        driver.Press(Key::Tab);
        EXPECT_EQ(box.GetText(), L"7");
    });
}

}  // namespace

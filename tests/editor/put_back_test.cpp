// What was not edited keeps its bytes: what is opened and confirmed, and what is put back as it was, in every form that
// the samples and real displays lead to.
#include "tests/editor/put_back.h"

#include <cstdlib>
#include <gtest/gtest.h>

#include "tests/editor/main_window_form.h"
#include "tests/support/edids.h"

namespace {

using namespace VNT;
using VNT::Testing::PutBack;

// All of them with VANTELLE_ALL set, which takes minutes; else one in so many, and so many states of each form.
bool TakesAll() { return std::getenv("VANTELLE_ALL") != nullptr; }
constexpr int OneOf = 16;
constexpr int MostStates = 8;

class WhatIsPutBack : public testing::Test {
protected:
    void Walk(const std::string& name, const Bytes& bytes) {
        MainWindow window(DisplayList{::Testing::MakeDisplay(L"DISPLAY\\A\\1", bytes)});
        const std::size_t known = walker.GetFaults().size();
        driver.Then([&] {
            walker.Walk([&]() -> std::wstring {
                const Display& display = window.GetDisplays()[0];
                return display.CurrentData == bytes && display.Saved ? L"" : L"the bytes of the display change";
            });
            driver.Click(driver.Find<UI::Controls::Button>(L"OK"));
        });
        EXPECT_EQ(window.Run(), UI::IdOk);
        EXPECT_EQ(window.GetDisplays()[0].CurrentData, bytes) << name;
        for (std::size_t i = known; i < walker.GetFaults().size(); ++i)
            ADD_FAILURE() << name << ": " << walker.GetFaults()[i];
    }
    void WalkAll(const std::vector<VNT::Testing::NamedEdid>& edids, std::size_t step) {
        for (std::size_t i = 0; i < edids.size(); i += step) Walk(edids[i].name, edids[i].bytes);
        RecordProperty("forms", walker.CountForms());
        RecordProperty("inputs", walker.CountInputs());
        std::cout << edids.size() << " EDIDs, " << walker.CountForms() << " forms, " << walker.CountInputs()
                  << " inputs\n";
    }

    UI::Headless::Driver driver;
    PutBack walker{driver, TakesAll() ? 1 << 30 : MostStates};
};

TEST_F(WhatIsPutBack, ChangesNoByteOfASample) { WalkAll(VNT::Testing::Samples(), 1); }

TEST_F(WhatIsPutBack, ChangesNoByteOfARealDisplay) {
    WalkAll(VNT::Testing::Corpus(VANTELLE_SOURCE_DIR), TakesAll() ? 1 : OneOf);
}

}  // namespace

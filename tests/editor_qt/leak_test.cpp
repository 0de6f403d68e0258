// A thousand forms, opened and closed: nothing of them is left.
#include <QApplication>
#include <gtest/gtest.h>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include "editor/all_forms.h"
#include "tests/editor_qt/desktop.h"
#include "ui/resources.h"

// What the library of fonts keeps for itself, once.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }

namespace Testing {

namespace {

// Opens each form and leaves it again; how many.
int OpenAll() {
    NextStep next;
    int count = 0;
    const auto open = [&](auto sample) {
        bool wasOpen = false;
        next.Set([&wasOpen] {
            wasOpen = true;
            UI::EndRun(UI::IdCancel);
        });
        sample.edit(nullptr, sample.item, sample.bytes);
        EXPECT_TRUE(wasOpen) << sample.name;
        ++count;
    };
    Forms::ForEachForm(open);
    Forms::ForEachChooser(open);
    return count;
}

}  // namespace

TEST(ManyForms, LeaveNothing) {
    constexpr int most = 1000;
    OpenAll();  // what Qt makes once stays
    const auto widgets = QApplication::allWidgets().size();
    const int living = UI::CountLive();
    for (int count = 0; count < most;) count += OpenAll();
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
    EXPECT_EQ(UI::CountLive(), living);
#ifdef __SANITIZE_ADDRESS__
    EXPECT_EQ(__lsan_do_recoverable_leak_check(), 0);
#endif
}

}  // namespace Testing

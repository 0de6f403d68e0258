// The program as a screen reader in another process has it.
#include <gtest/gtest.h>

#include "tests/editor_windows/running_editor.h"
#include "tests/store_windows/stand_ins.h"
#include "tests/ui/win32/screen_reader.h"

namespace Testing {

class ReaderBeside : public VNT::StandInTest {
protected:
    void SetUp() override {
        StandInTest::SetUp();
        if (!IsSkipped()) InstallWmi("");  // Wine's own has no such class, which the program tells in a box
    }
};

TEST_F(ReaderBeside, LearnsOfTheControlsOfTheRunningProgram) {
    RunningEditor editor;
    HWND window = editor.AwaitWindow(L"MainWindow");
    const ScreenReader reader;
    const Reading display = reader.Read(editor.Find(window, L"ComboBox"));
    EXPECT_EQ(display.Name, L"Display");
    EXPECT_EQ(display.Role, ROLE_SYSTEM_COMBOBOX);
    EXPECT_NE(display.Value, L"");
    HWND check = editor.Find(window, L"Button", L"640x480 @ 60 Hz");
    const Reading before = reader.Read(check);
    EXPECT_EQ(before.Name, L"640x480 @ 60 Hz");
    EXPECT_EQ(before.Role, ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_FALSE(before.Is(STATE_SYSTEM_FOCUSED));
    editor.TabTo(check);
    editor.Press(VK_SPACE);
    const Reading after = reader.Read(check);
    EXPECT_TRUE(after.Is(STATE_SYSTEM_FOCUSED));
    EXPECT_NE(after.Is(STATE_SYSTEM_CHECKED), before.Is(STATE_SYSTEM_CHECKED));
    editor.Press(VK_ESCAPE);
    EXPECT_EQ(editor.AwaitExit(), 0);
}

}  // namespace Testing

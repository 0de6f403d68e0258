// The program from its start to its end, on the registry of the prefix that the test runs in.
#include <gtest/gtest.h>
#include <iostream>
#include <set>
#include <sstream>

#include "store/load.h"
#include "store/windows/windows_platform.h"
#include "tests/editor_windows/running_editor.h"
#include "tests/store_windows/stand_ins.h"

namespace Testing {

using namespace VNT;

namespace {

using Lines = std::multiset<std::string>;
using Slot = std::array<std::uint8_t, 18>;

constexpr int SlotsAt = 54;
constexpr int EstablishedAt = 35;
constexpr Slot Timing{0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58,
                      0x2C, 0x45, 0x00, 0xD6, 0x49, 0x21, 0x00, 0x00, 0x1E};
constexpr Slot Name{0, 0, 0, 0xFC, 0, 'D', 'R', 'I', 'V', 'E', 'N', 0x0A, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20};
constexpr Slot Serial{0, 0, 0, 0xFF, 0, 'S', '1', 0x0A, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20, 0x20};
constexpr Slot Empty{0, 0, 0, 0x10};

// A base block of the four slots, summed up; `established` is byte 35.
Bytes MakeBase(std::uint8_t established, const std::array<Slot, 4>& slots) {
    constexpr std::uint8_t head[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x5A, 0x81, 0x01, 0x10,
                                     0x01, 0x00, 0x00, 0x00, 0x01, 0x20, 0x01, 0x04, 0xA5, 0x34, 0x1D, 0x78,
                                     0x22, 0xEE, 0x95, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54};
    Bytes bytes(128, 0);
    for (int i = 0; i < static_cast<int>(std::size(head)); ++i) bytes.At(i) = head[i];
    bytes.At(EstablishedAt) = established;
    for (int i = 38; i < SlotsAt; ++i) bytes.At(i) = 0x01;
    for (int slot = 0; slot < 4; ++slot) {
        for (int i = 0; i < 18; ++i) {
            bytes.At(SlotsAt + 18 * slot + i) = slots[static_cast<std::size_t>(slot)][static_cast<std::size_t>(i)];
        }
    }
    unsigned sum = 0;
    for (int i = 0; i < 127; ++i) sum += bytes.At(i);
    bytes.At(127) = static_cast<std::uint8_t>(256 - sum % 256);
    return bytes;
}

constexpr std::uint8_t Vga = 0x20;  // 640 x 480 at 60 Hz

class EditorOnRegistry : public StandInTest {
protected:
    void SetUp() override {
        StandInTest::SetUp();
        if (!IsSkipped()) InstallWmi("");  // Wine's own has no such class, which the program tells in a box
    }

    // The row of the display in the program's list.
    static int FindRow(const PrefixDisplay& display) {
        WindowsPlatform platform([](const wchar_t*) {});
        DisplayList list;
        EXPECT_TRUE(LoadDisplays(platform, list, false));
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (list[i].EdidData == display.edid) return static_cast<int>(i);
        }
        ADD_FAILURE() << "not in the list";
        return 0;
    }

    static Lines ReadDevices() {
        Lines lines;
        std::istringstream text(Dump(L"System\\CurrentControlSet\\Enum\\DISPLAY"));
        for (std::string line; std::getline(text, line);) lines.insert(line);
        return lines;
    }

    // What `a` has and `b` has not.
    static Lines Subtract(const Lines& a, const Lines& b) {
        Lines rest;
        std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(rest, rest.end()));
        return rest;
    }

    // The lines of an override with these bytes and nothing else.
    static Lines GetOverride(const PrefixDisplay& display, const Bytes& bytes) {
        const std::wstring key = display.ParametersPath() + L"\\EDID_OVERRIDE";
        const std::string path(key.begin(), key.end());
        std::string value = path + " 0 3";
        for (int i = 0; i < bytes.Size(); ++i) value.append(" ").append(std::to_string(bytes.At(i)));
        return {path, value};
    }

    static HWND Open(RunningEditor& editor) {
        HWND window = editor.AwaitWindow(L"MainWindow");
        std::cout << "the main window was up after " << static_cast<int>(editor.GetMilliseconds()) << " ms\n";
        return window;
    }

    static void ToggleVga(RunningEditor& editor, HWND window) {
        editor.TabTo(editor.Find(window, L"Button", L"640x480 @ 60 Hz"));
        editor.Press(VK_SPACE);
    }

    PrefixDisplay first_ = {L"VTD1001", L"4&d1&0&UID1", L"{4D36E96E-E325-11CE-BFC1-08002BE10318}\\0201", L"First",
                            MakeBase(0, {Timing, Name, Serial, Empty})};
    PrefixDisplay second_ = {L"VTD2002", L"4&d1&0&UID2", L"{4D36E96E-E325-11CE-BFC1-08002BE10318}\\0202", L"Second",
                             MakeBase(0, {Timing, Empty, Empty, Empty})};
};

}  // namespace

TEST_F(EditorOnRegistry, SavesExactlyTheBytesOfTheDisplayThatWasEdited) {
    Add(first_);
    Add(second_);
    const Lines before = ReadDevices();
    const int row = FindRow(first_);
    const int other = FindRow(second_);
    {
        RunningEditor editor;
        HWND window = Open(editor);
        HWND choice = editor.Find(window, L"ComboBox");
        editor.Select(choice, row);
        ToggleVga(editor, window);

        HWND list = editor.Find(window, L"ListBox");
        EXPECT_EQ(RunningEditor::CountRows(list), 3);
        editor.Select(list, 1);
        editor.TabTo(editor.Find(window, L"Button", L"\u25BC", list));
        editor.Press(VK_SPACE);  // the serial number comes before the name
        editor.Select(list, 0);
        editor.TabTo(editor.Find(window, L"Button", L"Delete", list));
        editor.Press(VK_SPACE);  // the timing goes
        EXPECT_EQ(RunningEditor::CountRows(list), 2);

        editor.Select(choice, other);
        EXPECT_EQ(RunningEditor::CountRows(list), 1);
        editor.Click(editor.Find(window, L"Button", L"OK"));
        EXPECT_EQ(editor.AwaitExit(), 0);
    }
    const Lines after = ReadDevices();
    EXPECT_EQ(Subtract(before, after), Lines());
    EXPECT_EQ(Subtract(after, before), GetOverride(first_, MakeBase(Vga, {Serial, Name, Empty, Empty})));
}

TEST_F(EditorOnRegistry, ChangesNothingWhenCancelledOrConfirmedWithoutAnEdit) {
    Add(first_);
    const Lines before = ReadDevices();
    const int row = FindRow(first_);
    for (const bool confirms : {false, true}) {
        RunningEditor editor;
        HWND window = Open(editor);
        editor.Select(editor.Find(window, L"ComboBox"), row);
        if (!confirms) ToggleVga(editor, window);
        editor.Press(confirms ? VK_RETURN : VK_ESCAPE);
        EXPECT_EQ(editor.AwaitExit(), 0);
        EXPECT_EQ(ReadDevices(), before);
    }
}

TEST_F(EditorOnRegistry, TellsOfAStoreThatRefusesSavesTheRestAndExitsWithOne) {
    first_.refusesKeys = true;
    Add(first_);
    Add(second_);
    const Lines before = ReadDevices();
    const int rows[] = {FindRow(first_), FindRow(second_)};
    {
        RunningEditor editor;
        HWND window = Open(editor);
        for (const int row : rows) {
            editor.Select(editor.Find(window, L"ComboBox"), row);
            ToggleVga(editor, window);
        }
        editor.Press(VK_RETURN);
        HWND box = editor.AwaitWindow(L"#32770");
        EXPECT_EQ(RunningEditor::GetText(box), L"Error");
        EXPECT_EQ(RunningEditor::GetText(editor.Find(box, L"Static",
                                                     L"An error occurred while saving. Not all "
                                                     L"changes were saved.")),
                  L"An error occurred while saving. Not all changes were saved.");
        editor.Press(VK_RETURN);
        EXPECT_EQ(editor.AwaitExit(), 1);
    }
    const Lines after = ReadDevices();
    EXPECT_EQ(Subtract(before, after), Lines());
    EXPECT_EQ(Subtract(after, before), GetOverride(second_, MakeBase(Vga, {Timing, Empty, Empty, Empty})));
}

}  // namespace Testing

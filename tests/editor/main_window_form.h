// Displays for the main window's tests, and the user who works in it.
#pragma once

#include <gtest/gtest.h>

#include "editor/main_window.h"
#include "model/edid/text_descriptor.h"
#include "ui/headless/driver.h"

namespace Testing {

inline VNT::EdidDescriptor MakeName(const VNT::String& text) {
    VNT::EdidTextDescriptorFields fields;
    fields.text = text;
    return VNT::EdidDescriptor(VNT::EdidNameDescriptor(fields).Clone());
}

inline VNT::Bytes MakeEdid(const char* vendor, const char* name) {
    VNT::EdidFields fields;
    fields.properties.vendorId = vendor;
    if (const VNT::String text(name); !text.IsEmpty()) fields.descriptors.Add(MakeName(text));
    return VNT::Edid(fields).GetBytes();
}

// An EDID with `count` extension blocks that no form edits, each beginning with its number.
inline VNT::Bytes MakeExtendedEdid(int count) {
    VNT::Bytes bytes = MakeEdid("EXT", "EXTENDED");
    bytes.At(126) = static_cast<std::uint8_t>(count);
    bytes.At(127) = static_cast<std::uint8_t>(VNT::ComputeChecksum(bytes));
    for (int i = 0; i < count; ++i) {
        VNT::Bytes block(VNT::Edid::BlockSize, 0);
        block.At(0) = 0xC0;
        block.At(1) = static_cast<std::uint8_t>(i + 1);
        bytes.Append(block);
    }
    return bytes;
}

inline VNT::Display MakeDisplay(const wchar_t* id, const VNT::Bytes& bytes) {
    VNT::Display display;
    display.InstanceId = id;
    display.DeviceDescription = L"Generic";
    display.CurrentData = display.EdidData = bytes;
    display.Active = true;
    return display;
}

class MainWindowForm : public testing::Test {
protected:
    // Runs the window on the displays with these steps; its result.
    int Run(const std::function<void()>& steps) {
        MainWindow window(displays);
        driver.Then(steps);
        const int result = window.Run();
        after = window.GetDisplays();
        return result;
    }
    // The same, and closes the window without saving.
    void Look(const std::function<void()>& steps) {
        EXPECT_EQ(Run([&] {
                      steps();
                      driver.Press(UI::Key::Escape);
                  }),
                  UI::IdCancel);
    }
    void TearDown() override { EXPECT_EQ(driver.CountStepsLeft(), 0u); }

    UI::Controls::ComboBox& Choice() { return driver.Find<UI::Controls::ComboBox>(L"Display:"); }
    UI::Controls::Button& Button(const wchar_t* text) { return driver.Find<UI::Controls::Button>(text); }
    UI::Controls::Button& ButtonOf(const std::wstring& caption, const wchar_t* text) {
        return driver.Find<UI::Controls::Button>({caption, text});
    }
    UI::Controls::CheckBox& Check(const wchar_t* text) { return driver.Find<UI::Controls::CheckBox>(text); }
    UI::Controls::ListBox& List(const std::wstring& caption) { return driver.Find<UI::Controls::ListBox>(caption); }
    static std::wstring Rows(const UI::Controls::ListBox& list) {
        std::wstring all;
        for (int i = 0; i < list.GetCount(); ++i) all += list.GetItemText(i) + L"|";
        return all;
    }

    // The captions of the three lists, with so many slots used.
    static std::wstring Descriptors(int used) { return Caption(L"Detailed resolutions and descriptors", 4 - used); }
    static std::wstring Standards(int used) { return Caption(L"Standard resolutions", 8 - used); }
    static std::wstring Extensions(int used) {
        return used == 255 ? L"Extension blocks (0 slots left)" : Caption(L"Extension blocks", 255 - used);
    }

    UI::Headless::Driver driver;
    VNT::DisplayList displays{MakeDisplay(L"DISPLAY\\A\\1", MakeEdid("AAA", "FIRST")),
                              MakeDisplay(L"DISPLAY\\B\\2", MakeEdid("BBB", ""))};
    VNT::DisplayList after;

private:
    static std::wstring Caption(const std::wstring& name, int left) {
        const std::wstring text = left == 0   ? L"no space left"
                                  : left == 1 ? L"1 slot left"
                                              : std::to_wstring(left) + L" slots left";
        return name + L" (" + text + L")";
    }
};

}  // namespace Testing

// What only windows of the system have: procedures, frames, activation, exceptions through the system's code.
#include <gtest/gtest.h>

#include "tests/ui/conformance/adapter.h"
#include "ui/win32/dc.h"
#include "ui/win32/system.h"

namespace Conformance {

using namespace UI;
using namespace UI::Controls;
using namespace UI::Win32;

namespace {

constexpr const wchar_t* Failure = L"GetDC failed.";

// What `action` throws.
const wchar_t* GetThrown(const std::function<void()>& action) {
    try {
        action();
    } catch (const wchar_t* text) {
        return text;
    }
    return nullptr;
}

}  // namespace

TEST(Subclassing, AMessageForAControlWhoseObjectIsGoneTakesTheSystemsDefault) {
    TestWindow window;
    ListBox list(window);
    list.AddItem(L"a");
    EXPECT_EQ(Tell(list.GetHandle(), LB_GETCOUNT), 1);
    Native::SetObject(list.GetHandle(), static_cast<Control*>(nullptr));
    EXPECT_EQ(Tell(list.GetHandle(), LB_GETCOUNT), 0) << "neither the handlers nor the class answer";
    EXPECT_EQ(Tell(list.GetHandle(), WM_GETTEXTLENGTH), 0);
}

TEST(Subclassing, FindsNoControlInWindowsOfOthers) {
    TestWindow window;
    int data = 0;
    HWND other = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 0, 0, ToWindow(window.GetHandle()), nullptr,
                                 nullptr, nullptr);
    SetWindowLongPtrW(other, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&data));
    EXPECT_EQ(Native::FindControl(ToHandle(other)), nullptr);
    EXPECT_EQ(Native::FindControl(window.GetHandle()), nullptr);
    EXPECT_EQ(Native::FindControl(nullptr), nullptr);
    DestroyWindow(other);
    EXPECT_EQ(Native::FindControl(ToHandle(other)), nullptr);
}

TEST(Subclassing, LetsTheClassReleaseWhatItHeld) {
    TestWindow window;
    HWND list = nullptr;
    {
        ComboBox box(window);
        COMBOBOXINFO info{};
        info.cbSize = sizeof(info);
        ASSERT_TRUE(GetComboBoxInfo(ToWindow(box.GetHandle()), &info));
        list = info.hwndList;
        EXPECT_TRUE(IsWindow(list));
    }
    EXPECT_FALSE(IsWindow(list));
}

// A neighbour in the process that looks on at a window, as overlays and tools of assistance do.
class Neighbour {
public:
    explicit Neighbour(Handle handle) : window(ToWindow(handle)) {
        current = this;
        below =
            reinterpret_cast<WNDPROC>(SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
    }
    ~Neighbour() { current = nullptr; }
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;

    int destroyed = 0;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCDESTROY) ++current->destroyed;
        return CallWindowProcW(current->below, window, message, wParam, lParam);
    }
    inline static Neighbour* current = nullptr;
    HWND window;
    WNDPROC below;
};

TEST(Subclassing, ByANeighbourChangesNothing) {
    TestWindow window;
    AllControls all(window);
    const Neighbour neighbour(all.Ok.GetHandle());
    EXPECT_EQ(Native::FindControl(all.Ok.GetHandle()), &all.Ok);
    int clicks = 0;
    all.Ok.AddNotificationHandler(Button::Clicked, [&] { ++clicks; });
    RunWith(window, {[&] {
                Click(all.Ok);
                EXPECT_TRUE(Shows(all.Ok, all.Ok.GetStyle().States[ControlState::HotFocused].Background));
                EndRun(IdOk);
            }});
    EXPECT_EQ(clicks, 1);
}

TEST(Subclassing, ByANeighbourStaysUntilTheEnd) {
    TestWindow window;
    HWND list = nullptr;
    auto box = std::make_unique<ComboBox>(window);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(GetComboBoxInfo(ToWindow(box->GetHandle()), &info));
    list = info.hwndList;
    int messages = 0;
    for (int message : {WM_DESTROY, WM_NCDESTROY}) box->AddMessageHandler(message, [&](WParam, LParam) { ++messages; });
    const Neighbour neighbour(box->GetHandle());
    box.reset();
    EXPECT_EQ(neighbour.destroyed, 1) << "it hears of the end";
    EXPECT_EQ(messages, 0) << "no handler runs any more";
    EXPECT_FALSE(IsWindow(list)) << "nor does the class keep what it held";
}

TEST(Subclassing, LeavesAColourOfTheDroppedListToItsBox) {
    TestWindow window;
    AllControls all(window);
    RunWith(window, {[&] {
                COMBOBOXINFO info{};
                info.cbSize = sizeof(info);
                GetComboBoxInfo(ToWindow(all.Combo.GetHandle()), &info);
                HDC dc = GetDC(info.hwndList);
                SendMessageW(ToWindow(all.Combo.GetHandle()), WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc),
                             reinterpret_cast<LPARAM>(info.hwndList));
                EXPECT_EQ(GetBkColor(dc), window.GetStyle().ComboBox.List.States[ControlState::Normal].Background);
                ReleaseDC(info.hwndList, dc);
                EndRun(IdOk);
            }});
}

TEST(Exceptions, OfAHandlerComeOutOfTheLoop) {
    TestWindow window;
    window.AddMessageHandler(Message::User, [](WParam, LParam) { throw Failure; });
    EXPECT_EQ(GetThrown([&] { RunWith(window, {[&] { PostMessageW(ToWindow(window.GetHandle()), WM_USER, 0, 0); }}); }),
              Failure);
    EXPECT_FALSE(window.IsVisible());
    EXPECT_EQ(RunWith(window, {[] { EndRun(IdOk); }}), IdOk) << "thrown once";
}

TEST(Exceptions, OfAControlsHandlerComeOutOfTheLoop) {
    TestWindow window;
    AllControls all(window);
    all.Ok.AddNotificationHandler(Button::Clicked, [] { throw Failure; });
    EXPECT_EQ(GetThrown([&] { RunWith(window, {[&] { Click(all.Ok); }}); }), Failure);
}

TEST(Exceptions, PassThroughNestedLoopsAndEnableTheParents) {
    TestWindow outer;
    EXPECT_EQ(GetThrown([&] {
                  RunWith(outer, {[&] {
                              TestWindow inner(&outer, L"ConformanceChild");
                              inner.AddMessageHandler(Message::User, [](WParam, LParam) { throw Failure; });
                              RunWith(inner, {[&] { PostMessageW(ToWindow(inner.GetHandle()), WM_USER, 0, 0); }});
                              ADD_FAILURE() << "the inner loop went on";
                          }});
              }),
              Failure);
    EXPECT_TRUE(outer.IsEnabled());
}

TEST(DeviceContexts, ThatTheSystemRefusesThrowTheirTexts) {
    HWND gone = ToWindow(TestWindow().GetHandle());
    EXPECT_EQ(GetThrown([&] { ClientDC dc(gone); }), std::wstring(L"GetDC failed."));
    EXPECT_EQ(GetThrown([&] { WindowDC dc(gone); }), std::wstring(L"GetWindowDC failed."));
    EXPECT_EQ(GetThrown([&] { PaintDC dc(gone); }), std::wstring(L"BeginPaint failed."));
}

TEST(DeviceContexts, AreLeftAsTheyWereFound) {
    struct Borrowed : DC {
        explicit Borrowed(HDC dc) : DC(dc, Failure) {}
        ~Borrowed() { Restore(); }
    };
    const CompatibleDC memory;
    const COLORREF before = GetTextColor(memory);
    {
        const Borrowed dc(memory);
        SetTextColor(dc, RGB(1, 2, 3));
        EXPECT_NE(GetTextColor(memory), before);
    }
    EXPECT_EQ(GetTextColor(memory), before);
}

TEST(Frame, IsWhatTheSystemAddsToTheClientArea) {
    TestWindow window;
    const auto frame = Native::GetFrameSize({300, 200}, window.GetStyleFlags(), window.GetExtendedStyle(), 96);
    RECT expected{0, 0, 300, 200};
    AdjustWindowRectEx(&expected, WS_CAPTION | WS_SYSMENU, FALSE, WS_EX_DLGMODALFRAME);
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->Width, Win32::GetWidth(expected));
    EXPECT_EQ(frame->Height, Win32::GetHeight(expected));
}

TEST(Frame, GrowsWithTheDpiWhereTheSystemTells) {
    ASSERT_NE(GetUser32().AdjustWindowRectExForDpi, nullptr);
    const auto normal = Native::GetFrameSize({300, 200}, Window::DefaultStyle, Window::DialogFrame, 96);
    const auto large = Native::GetFrameSize({300, 200}, Window::DefaultStyle, Window::DialogFrame, 192);
    ASSERT_TRUE(normal && large);
    EXPECT_GT(large->Height, normal->Height);
}

TEST(Frame, GoesWhereTheSystemWantsItAtAnotherDpi) {
    TestWindow window;
    const RECT proposed{300, 200, 1000, 700};
    SetAppearance(Appearance{144, window.GetStyle().Theme});
    Tell(window.GetHandle(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&proposed));
    SetAppearance(std::nullopt);
    EXPECT_EQ(Native::GetWindowPlace(window.GetHandle()), FromRect(proposed));
    EXPECT_EQ(window.GetX(), 300);
    EXPECT_EQ(window.GetHeight(), 500);
    EXPECT_EQ(window.GetStyle().NormalFont.GetSpec().Height, 24);
}

TEST(Frame, IsThatOfADialogWithACloseBox) {
    TestWindow window;
    HWND handle = ToWindow(window.GetHandle());
    EXPECT_EQ(GetWindowLongPtrW(handle, GWL_STYLE) & (WS_CAPTION | WS_SYSMENU), WS_CAPTION | WS_SYSMENU);
    EXPECT_EQ(GetWindowLongPtrW(handle, GWL_STYLE) & (WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX), 0);
    EXPECT_NE(Tell(window.GetHandle(), WM_GETICON, ICON_BIG), 0);
    EXPECT_NE(Tell(window.GetHandle(), WM_GETICON, ICON_SMALL), 0);
}

TEST(Activation, GivesTheFocusBackToTheControlThatHadIt) {
    TestWindow window;
    AllControls all(window);
    TestWindow other(nullptr, L"ConformanceOther");
    RunWith(window, {[&] {
                all.Check.SetFocus();
                Native::SetVisible(other.GetHandle(), true);
                SetActiveWindow(ToWindow(other.GetHandle()));
                EXPECT_FALSE(all.Check.HasFocus());
                SetActiveWindow(ToWindow(window.GetHandle()));
                EXPECT_TRUE(all.Check.HasFocus());
                Native::SetVisible(other.GetHandle(), false);
                EndRun(IdOk);
            }});
    // A new run begins anew.
    RunWith(window, {[&] {
                EXPECT_TRUE(all.Box.HasFocus());
                EndRun(IdOk);
            }});
}

TEST(System, IsWindows10WithItsOwnDpi) {
    EXPECT_TRUE(IsWindows10OrGreater());
    EXPECT_GE(Native::GetSystemVersion().Major, 10u);
    TestWindow window;
    ASSERT_NE(GetUser32().GetDpiForWindow, nullptr);
    EXPECT_EQ(UI::GetDpi(window), static_cast<int>(GetUser32().GetDpiForWindow(ToWindow(window.GetHandle()))));
    EXPECT_GT(Native::GetScrollBarWidth(192), Native::GetScrollBarWidth(96));
}

TEST(System, WithoutDarkModeIsLight) {
    if (GetUxTheme().PrefersDark) GTEST_SKIP() << "this system has dark mode";
    EXPECT_FALSE(Native::UserPrefersDark());
    EXPECT_NE(ChooseTheme(), Theme::Dark);
    TestWindow window;
    AllControls all(window);
    // Each step is left out where the system lacks it.
    ApplyTheme(window, BuildStyleTable(window.GetDpi(), Theme::Dark));
    EXPECT_TRUE(IsDarkMode(window.GetStyle()));
}

TEST(Edit, KeepsItsSelectionByPositionsOfTheInterfacesText) {
    TestWindow window;
    TextBox box(window, TextBox::MultiLine);
    box.SetText(L"ab\ncd\nef");
    EXPECT_EQ(ReadSystemText(box.GetHandle()), L"ab\r\ncd\r\nef");
    box.Select(4, 7);
    int begin = -1;
    int end = -1;
    box.GetSelection(begin, end);
    EXPECT_EQ(begin, 4);
    EXPECT_EQ(end, 7);
    DWORD first = 0;
    Tell(box.GetHandle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first), 0);
    EXPECT_EQ(first, 5u);
}

TEST(Edit, TakesAClickBesideItsTextAsOneOnIt) {
    TestWindow window;
    AllControls all(window);
    RunWith(window, {[&] {
                const Rect place = Native::GetWindowPlace(all.Box.GetHandle());
                const LPARAM corner = MAKELPARAM(place.Left + 2, place.Top + 2);
                EXPECT_EQ(Tell(all.Box.GetHandle(), WM_NCHITTEST, 0, corner), HTCLIENT);
                EndRun(IdOk);
            }});
}

}  // namespace Conformance

// The conformance suite's user on the desktop without a screen.
#include "tests/ui/conformance/adapter.h"
#include "ui/headless/driver.h"

namespace Conformance {

namespace {

UI::Headless::Driver& GetDriver() {
    static UI::Headless::Driver driver;
    return driver;
}

}  // namespace

int RunWith(UI::Window& window, const Steps& steps) {
    GetDriver();  // which empties the desktop when it is made
    auto& script = UI::Headless::GetDesktop().Script;
    // The steps of an inner loop stand before what is left for the outer one, and the loop may not go on with those.
    struct Outer {
        ~Outer() { script.swap(left); }
        decltype(UI::Headless::Desktop::Script)& script;
        decltype(UI::Headless::Desktop::Script) left;
    };
    const Outer outer{script, std::exchange(script, {steps.begin(), steps.end()})};
    return window.Run();
}

void Press(UI::Key key) { GetDriver().Press(key); }
void Repeat(UI::Key key) { GetDriver().Repeat(key); }
void PressShiftTab() { GetDriver().Press(UI::Key::Tab, UI::Headless::Modifier::Shift); }
void PressControlA() { GetDriver().PressControl(L'A'); }
void Type(std::wstring_view text) { GetDriver().Type(text); }
void Click(UI::Control& control) { GetDriver().Click(control); }
void DoubleClick(UI::Control& control) { GetDriver().DoubleClick(control); }
void Click(UI::Controls::ListBox& list, int row) { GetDriver().Click(list, row); }
void DoubleClick(UI::Controls::ListBox& list, int row) { GetDriver().DoubleClick(list, row); }
void Choose(UI::Controls::ComboBox& box, int row) { GetDriver().Choose(box, row); }
void Hover(UI::Control& control) { GetDriver().Hover(control); }
void MovePointerAway() { GetDriver().MovePointerAway(); }
void Hold(UI::Control& control) { UI::Native::Send(control.GetHandle(), UI::Message::LeftButtonDown, 0, 0); }
void Release(UI::Control& control) { UI::Native::Send(control.GetHandle(), UI::Message::LeftButtonUp, 0, 0); }
void ClickCloseBox(UI::Window&) { GetDriver().ClickCloseBox(); }

bool Shows(const UI::Control& control, UI::Color color) {
    const auto& look = GetDriver().GetLook(control);
    const bool hasMark = look.Checked && look.Frame.Text == color;
    return hasMark || color == look.Frame.Border || color == look.Frame.Background || color == look.Text ||
           color == look.Background;
}

bool Hears(const UI::Control& control, UI::Native::Change change, const std::function<void()>& action) {
    bool heard = false;
    auto& reader = UI::Headless::GetDesktop().Reader;
    reader = [&](const UI::Control& of, UI::Native::Change what) {
        heard = heard || (&of == &control && what == change);
    };
    action();
    reader = nullptr;
    return heard;
}

std::vector<Monitor> GetMonitors() {
    auto& system = GetDriver().GetSystem();
    // Where no other test comes.
    system.OtherMonitors = {{{10000, 0, 13840, 2160}, {10000, 0, 13840, 2080}, 192},
                            {{-11366, -10768, -10000, -10000}, {-11366, -10768, -10000, -10040}, 120}};
    std::vector<Monitor> monitors{{*system.WorkArea, system.Dpi}};
    for (const UI::Headless::Monitor& other : system.OtherMonitors) monitors.push_back({other.WorkArea, other.Dpi});
    return monitors;
}

void Break(UI::Handle handle) { UI::Headless::Break(*handle); }

}  // namespace Conformance

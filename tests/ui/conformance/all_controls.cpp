#include "tests/ui/conformance/adapter.h"

namespace Conformance {

using namespace UI::Controls;

AllControls::AllControls(UI::Window& window)
    : Group(window, L"Group"),
      Label(window, L"Label:"),
      Box(window),
      Lines(window, TextBox::MultiLine, TextBox::Face::Monospace),
      Check(window, L"Check"),
      Radio(window, L"Radio"),
      Combo(window),
      List(window),
      Ok(window, L"OK") {
    for (const wchar_t* item : {L"one", L"two", L"three"}) {
        Combo.AddItem(item);
        List.AddItem(item, window.GetStyle().MonospaceFont);
    }
    Group.SetRect(4, 16, 580, 370);
    int y = 30;
    for (UI::Control* control : All()) {
        if (control == &Group) continue;
        const int height = control == &Lines || control == &List ? 60 : 23;
        control->SetRect(12, y, 200, height);
        y += height + 8;
    }
}

}  // namespace Conformance

#include "ui/label.h"

#include "ui/native.h"

namespace UI::Controls {

Label::Label(Window& window, const std::wstring& text, unsigned format)
    : Control(window, ControlKind::Static, text, CreationStyle), format(format) {
    Native::Attach(*this);
    Label::ApplyStyle(window.GetStyle());
}

void Label::ApplyStyle(const StyleTable& table) {
    style = table.Label;
    ApplyLook(style.Font);
}

}  // namespace UI::Controls

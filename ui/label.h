#pragma once

#include "ui/control.h"

namespace UI::Controls {

class Label : public Control {
public:
    static constexpr unsigned CreationStyle = 0xD;
    // How the text is drawn; the numbers are the platform's.
    static constexpr unsigned Left = 0x24;  // centred from top to bottom, in one line
    static constexpr unsigned Center = 0x25;
    static constexpr unsigned Right = 0x26;

    Label(Window& window, const std::wstring& text, unsigned format = Left);

    unsigned GetFormat() const { return format; }
    const LabelStyle& GetStyle() const { return style; }
    Color GetTextColor() const { return IsEnabled() ? style.Text : style.DisabledText; }
    void ApplyStyle(const StyleTable& table) override;

private:
    unsigned format;
    LabelStyle style;
};

}  // namespace UI::Controls

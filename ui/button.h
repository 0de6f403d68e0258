#pragma once

#include "ui/any_hot_control.h"

namespace UI::Controls {

class Button : public AnyHotControl {
public:
    static constexpr unsigned CreationStyle = 0x1000B;
    static constexpr int Clicked = 0;  // notification

    Button(Window& window, const std::wstring& text);

    // Disabling also clears the default flag.
    void SetEnabled(bool enabled) override;
    // The default button looks focused at all times: Enter in the window does what it does.
    void SetDefault(bool on);
    bool IsDefault() const { return isDefault; }

    const ButtonStyle& GetStyle() const { return isDefault ? defaultStyle : style; }
    Size Measure(std::wstring_view text) const override;
    void ApplyStyle(const StyleTable& table) override;

protected:
    bool LooksFocused() const override { return HasFocus() || isDefault; }

private:
    ButtonStyle style;
    ButtonStyle defaultStyle;
    int controlHeight = 0;
    bool isDefault = false;
};

}  // namespace UI::Controls

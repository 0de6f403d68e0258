// Check boxes and radio buttons. A click only notifies: who listens sets the check state.
#pragma once

#include "ui/any_hot_control.h"

namespace UI::Controls {

class AnyCheckControl : public AnyHotControl {
public:
    static constexpr int Clicked = 0;  // notification

    bool IsChecked() const { return checked; }
    void SetChecked(bool on);

    // Of the present check state.
    const CheckStyle& GetStyle() const { return checked ? checkedStyle : uncheckedStyle; }
    Size Measure(std::wstring_view text) const override;

protected:
    AnyCheckControl(Window& window, const std::wstring& text, unsigned style);
    void ApplyStyles(const CheckStyle& unchecked, const CheckStyle& whenChecked);

private:
    CheckStyle uncheckedStyle;
    CheckStyle checkedStyle;
    bool checked = false;
};

class CheckBox : public AnyCheckControl {
public:
    static constexpr unsigned CreationStyle = 0x1000B;

    CheckBox(Window& window, const std::wstring& text);
    void ApplyStyle(const StyleTable& table) override;
};

// No tab stop at first: the form gives it to the checked button of each group.
class RadioButton : public AnyCheckControl {
public:
    static constexpr unsigned CreationStyle = 0xB;

    // The arrow keys go round among the buttons of one window that have the same group number.
    RadioButton(Window& window, const std::wstring& text, int group = 0);
    int GetGroup() const { return group; }
    void ApplyStyle(const StyleTable& table) override;

private:
    // Focuses and clicks the next (+1) or previous (-1) button of the group that is enabled and visible.
    void Go(int step);

    int group;
};

}  // namespace UI::Controls

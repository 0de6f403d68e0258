#pragma once

#include "ui/any_hot_control.h"

namespace UI::Controls {

// Lines end with "\n" in the texts of the interface.
class TextBox : public AnyHotControl {
public:
    // Creation styles; a box of several lines scrolls, and Enter breaks the line.
    static constexpr unsigned SingleLine = 0x10080;
    static constexpr unsigned MultiLine = 0x211044;
    // Notifications. `Changed` tells what the user did: `SetText` raises none.
    static constexpr int Changed = 0x300;
    static constexpr int FocusLost = 0x200;

    enum class Face { Normal, Monospace };

    explicit TextBox(Window& window, unsigned style = SingleLine, Face face = Face::Normal);

    bool SetText(const std::wstring& text) override;
    // Takes over what was typed before the handler of `Changed` runs.
    bool DispatchNotification(int code) override;

    void TakeFocusByKeyboard() override;

    bool IsMultiLine() const;
    // Most characters that can be typed; 0 for no limit.
    void SetLimit(int characters);
    // The caret stands at `end`; (0, -1) selects all.
    void Select(int begin, int end);
    void GetSelection(int& begin, int& end) const;

    // Normal or invalid style: red text and border.
    void SetValidStyle(bool valid);
    bool HasValidStyle() const { return validStyle; }

    const TextBoxStyle& GetStyle() const { return validStyle ? normalStyle : invalidStyle; }
    // The distances of the text from the outer edges of a box of this height: a single line is centred.
    Padding GetTextInset(int height) const;
    Size Measure(std::wstring_view text) const override;
    void ApplyStyle(const StyleTable& table) override;

protected:
    void RedrawHot() override;

private:
    Face face;
    TextBoxStyle normalStyle;
    TextBoxStyle invalidStyle;
    int controlHeight = 0;
    bool validStyle = true;
    bool setting = false;
};

}  // namespace UI::Controls

// A caption and a frame. The frame is four windows, so that what stands inside needs no parent of its own.
#pragma once

#include <array>

#include "ui/control.h"

namespace UI::Controls {

// The control itself is the top edge with the caption. The rectangle that the forms set is the frame's: the top edge
// reaches above it by the top thickness and half the caption's height. The frame's upper line is drawn through the
// middle of the caption.
class GroupBox : public Control {
public:
    static constexpr unsigned CreationStyle = 0xD;

    GroupBox(Window& window, const std::wstring& text);

    // Each is false when any of the four windows refuses.
    bool SetPosition(int x, int y) override;
    bool SetSize(int width, int height) override;
    void SetEnabled(bool enabled) override;
    void SetVisible(bool visible) override;
    void Redraw() override;
    void SetView(const std::optional<Rect>& newView) override;
    bool PlaceAfter(Control& other) override;

    // Normal or invalid style: red caption and frame. Position and size are applied again, for the font may differ.
    void SetValidStyle(bool valid);
    bool HasValidStyle() const { return validStyle; }

    const GroupBoxStyle& GetStyle() const { return validStyle ? normalStyle : invalidStyle; }
    Color GetTextColor() const { return IsEnabled() ? GetStyle().Caption.Text : GetStyle().Caption.DisabledText; }
    Color GetBorderColor() const { return IsEnabled() ? GetStyle().Border : GetStyle().DisabledBorder; }
    // How far the caption reaches above the box's y.
    int GetOverhang() const;
    // What is left for the controls inside.
    Rect GetContentRect() const;
    Size Measure(std::wstring_view text) const override;
    void ApplyStyle(const StyleTable& table) override;

    Control& GetLeftEdge() { return left; }
    Control& GetRightEdge() { return right; }
    Control& GetBottomEdge() { return bottom; }

private:
    std::array<Control*, 3> GetEdges() { return {&left, &right, &bottom}; }
    // Moves all four to where a frame of that rectangle has them.
    bool PlaceEdges(int x, int y, int width, int height);

    GroupBoxStyle normalStyle;
    GroupBoxStyle invalidStyle;
    bool validStyle = true;
    Control left;
    Control right;
    Control bottom;
};

}  // namespace UI::Controls

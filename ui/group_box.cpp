#include "ui/group_box.h"

#include "ui/native.h"

namespace UI::Controls {

GroupBox::GroupBox(Window& window, const std::wstring& text)
    : Control(window, ControlKind::Static, text, CreationStyle),
      left(window, ControlKind::Static, L"", CreationStyle),
      right(window, ControlKind::Static, L"", CreationStyle),
      bottom(window, ControlKind::Static, L"", CreationStyle) {
    Native::Attach(*this);
    GroupBox::ApplyStyle(window.GetStyle());
}

bool GroupBox::PlaceEdges(int x, int y, int width, int height) {
    const Padding& edge = GetStyle().Thickness;
    bool placed = Native::Move(GetHandle(), x, y - GetOverhang());
    placed = left.SetPosition(x, y + edge.Top) && placed;
    placed = right.SetPosition(x + width - edge.Right, y + edge.Top) && placed;
    return bottom.SetPosition(x, y + height - edge.Bottom) && placed;
}

bool GroupBox::SetPosition(int x, int y) {
    if (!PlaceEdges(x, y, GetWidth(), GetHeight())) return false;
    StorePosition(x, y);
    ClipToView();
    return true;
}

bool GroupBox::SetSize(int width, int height) {
    const Padding& edge = GetStyle().Thickness;
    const int side = height - edge.Top - edge.Bottom;
    bool sized = Native::Resize(GetHandle(), width, GetOverhang() + edge.Bottom);
    sized = left.SetSize(edge.Left, side) && sized;
    sized = right.SetSize(edge.Right, side) && sized;
    sized = bottom.SetSize(width, edge.Bottom) && sized;
    sized = PlaceEdges(GetX(), GetY(), width, height) && sized;
    if (sized) StoreSize(width, height);
    ClipToView();
    return sized;
}

void GroupBox::SetEnabled(bool enabled) {
    Control::SetEnabled(enabled);
    for (Control* edge : GetEdges()) edge->SetEnabled(enabled);
}

void GroupBox::SetVisible(bool visible) {
    Control::SetVisible(visible);
    for (Control* edge : GetEdges()) edge->SetVisible(visible);
}

void GroupBox::Redraw() {
    Control::Redraw();
    for (Control* edge : GetEdges()) edge->Redraw();
}

void GroupBox::SetView(const std::optional<Rect>& newView) {
    Control::SetView(newView);
    for (Control* edge : GetEdges()) edge->SetView(newView);
}

bool GroupBox::PlaceAfter(Control& other) {
    return Control::PlaceAfter(other) && left.PlaceAfter(*this) && right.PlaceAfter(left) && bottom.PlaceAfter(right);
}

void GroupBox::SetValidStyle(bool valid) {
    if (valid == validStyle) return;
    validStyle = valid;
    ChangeFont(GetStyle().Caption.Font);
    SetRect(GetX(), GetY(), GetWidth(), GetHeight());
}

int GroupBox::GetOverhang() const { return GetStyle().Thickness.Top + GetFont().GetMetrics().Height / 2; }

Rect GroupBox::GetContentRect() const {
    const Padding& padding = GetStyle().ContentPadding;
    return {GetX() + padding.Left, GetY() + padding.Top, GetRight() - padding.Right, GetBottom() - padding.Bottom};
}

Size GroupBox::Measure(std::wstring_view text) const {
    const Size caption = Control::Measure(text);
    return {caption.Width + 2 * GetStyle().CaptionInset, caption.Height};
}

void GroupBox::ApplyStyle(const StyleTable& table) {
    normalStyle = table.GroupBox;
    invalidStyle = table.InvalidGroupBox;
    ApplyLook(GetStyle().Caption.Font);
}

}  // namespace UI::Controls

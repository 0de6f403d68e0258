// What the user of a window would find wrong with where its controls stand.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "ui/controls.h"
#include "ui/window.h"

namespace VNT::Testing {

// Whether the control's own text is what the user reads on it.
inline bool IsRead(const UI::Control& control) {
    const UI::ControlKind kind = control.GetKind();
    return kind == UI::ControlKind::Button || (kind == UI::ControlKind::Static && !control.GetText().empty());
}

// A group box and its edges stand around others.
inline bool IsFrame(const UI::Control& control) {
    return control.GetKind() == UI::ControlKind::Static && !dynamic_cast<const UI::Controls::Label*>(&control);
}

// In the client area, or in what scrolls there; what does not scroll stands apart from it.
inline bool IsInside(const UI::Control& control, const UI::Window& window) {
    if (control.GetX() < 0 || control.GetRight() > window.GetClientWidth()) return false;
    if (control.GetView()) {
        const int top = control.GetY() + window.GetScrollPosition();
        const bool fits = control.GetRight() <= window.GetView()->Right;
        return fits && top >= 0 && top + control.GetHeight() <= window.GetScrollHeight();
    }
    const int least = window.IsScrolling() ? window.GetView()->Bottom : 0;
    return control.GetY() >= least && control.GetBottom() <= window.GetClientHeight();
}

inline bool IsCutOff(const UI::Control& control) {
    if (const auto* combo = dynamic_cast<const UI::Controls::ComboBox*>(&control))
        return combo->Measure(combo->GetItemText(combo->GetSelection())).Width > combo->GetWidth();
    if (!IsRead(control)) return false;
    const UI::Size size = control.Measure(control.GetText());
    return size.Width > control.GetWidth() || (!IsFrame(control) && size.Height > control.GetHeight());
}

inline bool Overlap(const UI::Control& a, const UI::Control& b) {
    return a.GetX() < b.GetRight() && b.GetX() < a.GetRight() && a.GetY() < b.GetBottom() && b.GetY() < a.GetBottom();
}

// Whether it stands neither within the box nor apart from it, caption and all.
inline bool Crosses(const UI::Control& control, const UI::Controls::GroupBox& box) {
    if (control.GetX() >= box.GetRight() || control.GetRight() <= box.GetX() || control.GetY() >= box.GetBottom() ||
        control.GetBottom() <= box.GetY() - box.GetOverhang())
        return false;
    const UI::Rect content = box.GetContentRect();
    return control.GetX() < content.Left || control.GetRight() > content.Right || control.GetY() < content.Top ||
           control.GetBottom() > content.Bottom;
}

// The group box that a control stands in; null for one below the groups.
inline const UI::Controls::GroupBox* FindGroup(const UI::Window& window, const UI::Control& control) {
    for (const UI::Control* other : window.GetControls()) {
        const auto* box = dynamic_cast<const UI::Controls::GroupBox*>(other);
        if (box && box->IsVisible() && Overlap(*box, control)) return box;
    }
    return nullptr;
}

// Whether the group of `b` stands in a column to the right of that of `a`.
inline bool IsInNextColumn(const UI::Window& window, const UI::Control& a, const UI::Control& b) {
    const auto* left = FindGroup(window, a);
    const auto* right = FindGroup(window, b);
    return left && right && right->GetX() >= left->GetRight();
}

inline std::wstring Named(const UI::Control& control) { return L"\"" + control.GetText() + L"\""; }

// A visible control that stands outside the window, is cut off, covers another or the frame of a group, or that Tab
// comes to from below; or nothing.
inline std::wstring FindMisplaced(const UI::Window& window) {
    std::vector<const UI::Control*> seen;
    std::vector<const UI::Controls::GroupBox*> boxes;
    const UI::Control* last = nullptr;
    for (const UI::Control* control : window.GetControls()) {
        if (!control->IsVisible()) continue;
        if (!IsInside(*control, window)) return Named(*control) + L" stands outside its window";
        if (IsCutOff(*control)) return Named(*control) + L" is cut off";
        if (const auto* box = dynamic_cast<const UI::Controls::GroupBox*>(control)) boxes.push_back(box);
        if (IsFrame(*control)) continue;
        for (const auto* box : boxes) {
            if (!control->GetView() && box->GetView()) continue;
            if (Crosses(*control, *box)) return Named(*control) + L" covers the frame of " + Named(*box);
        }
        for (const UI::Control* other : seen) {
            if (control->GetView().has_value() != other->GetView().has_value()) continue;
            if (Overlap(*control, *other)) return Named(*control) + L" covers " + Named(*other);
        }
        seen.push_back(control);
        if (!control->IsTabStop()) continue;
        const bool scrolled = last && last->GetView() && !control->GetView();
        if (last && !scrolled && control->GetBottom() <= last->GetY() && control->GetX() <= last->GetX())
            return L"Tab goes up from " + Named(*last) + L" to " + Named(*control);
        last = control;
    }
    return {};
}

// What shows beside the buttons below a view and is of no control that stands there, or nothing. `at` tells what the
// client area shows; its lower left corner is empty in each form.
inline std::wstring FindStray(const UI::Window& window, const std::function<UI::Color(int x, int y)>& at) {
    if (!window.IsScrolling()) return {};
    const UI::Color background = at(0, window.GetClientHeight() - 1);
    for (int y = window.GetView()->Bottom; y < window.GetClientHeight(); ++y) {
        for (int x = 0; x < window.GetClientWidth(); ++x) {
            if (at(x, y) == background) continue;
            const auto& controls = window.GetControls();
            const bool isKnown = std::any_of(controls.begin(), controls.end(), [x, y](const UI::Control* control) {
                return !control->GetView() && control->IsVisible() && x >= control->GetX() && x < control->GetRight() &&
                       y >= control->GetY() && y < control->GetBottom();
            });
            if (!isKnown) return L"something at " + std::to_wstring(x) + L", " + std::to_wstring(y);
        }
    }
    return {};
}

}  // namespace VNT::Testing

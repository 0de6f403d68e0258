// Whether a form that can't be confirmed shows why.
#pragma once

#include <algorithm>
#include <string>

#include "ui/controls.h"
#include "ui/window.h"

namespace VNT::Testing {

// Null where there is none.
inline UI::Controls::Button* FindOk(const UI::Window& window) {
    // It stands at the end.
    const auto& controls = window.GetControls();
    const auto isOk = [](const UI::Control* control) {
        return control->GetKind() == UI::ControlKind::Button && control->GetText() == L"OK";
    };
    const auto found = std::find_if(controls.rbegin(), controls.rend(), isOk);
    return found == controls.rend() ? nullptr : dynamic_cast<UI::Controls::Button*>(*found);
}

// The control is red, or says that there is no room.
inline bool IsReason(const UI::Control& control) {
    if (control.GetText().find(L"(no space left)") != std::wstring::npos) return true;
    if (const auto* box = dynamic_cast<const UI::Controls::TextBox*>(&control)) return !box->HasValidStyle();
    const auto* group = dynamic_cast<const UI::Controls::GroupBox*>(&control);
    return group && !group->HasValidStyle();
}

// A new resolution of two or three bytes is none as long as nothing but blanks is typed.
inline bool HasToBeFilled(const UI::Window& form) {
    const std::wstring& name = form.GetName();
    if (name != L"EdidStandardResolutionWindow" && name != L"EdidCvtResolutionWindow") return false;
    return std::all_of(form.GetControls().begin(), form.GetControls().end(), [](const UI::Control* control) {
        return control->GetKind() != UI::ControlKind::Edit ||
               control->GetText().find_first_not_of(L' ') == std::wstring::npos;
    });
}

// OK is closed, and nothing that is seen says why.
inline bool IsClosedForNoReason(const UI::Window& form) {
    const UI::Controls::Button* ok = FindOk(form);
    if (!ok || ok->IsEnabled() || HasToBeFilled(form)) return false;
    return std::none_of(form.GetControls().begin(), form.GetControls().end(),
                        [](const UI::Control* control) { return control->IsVisible() && IsReason(*control); });
}

}  // namespace VNT::Testing

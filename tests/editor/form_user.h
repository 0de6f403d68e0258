// A user who knows no form: sees the controls of whatever form is in front, and puts something into each.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "editor/any_window.h"
#include "ui/headless/driver.h"

namespace VNT::Testing {

// What stands in no box: no number, no hexadecimal bytes, no character of an EDID's texts.
inline constexpr const wchar_t* Rubbish = L"\u20AC";

class FormUser {
public:
    UI::Headless::Driver driver;

    AnyWindow& Form() const { return dynamic_cast<AnyWindow&>(driver.GetWindow()); }
    UI::Controls::Button& Ok() const { return driver.Find<UI::Controls::Button>(L"OK"); }

    // The controls of a class that can be used now, in Tab order.
    template <class Control>
    std::vector<Control*> Open() const {
        std::vector<Control*> found;
        for (UI::Control* control : driver.GetWindow().GetControls()) {
            auto* wanted = dynamic_cast<Control*>(control);
            if (wanted && wanted->IsVisible() && wanted->IsEnabled()) found.push_back(wanted);
        }
        return found;
    }
    // Shows what the form opens without, and the boxes of "Other" numbers.
    void ShowAll();
    // The name of the field that a box shows; empty for none.
    std::string FieldOf(const UI::Controls::TextBox& box) const;
    // Whether it is the only box of its field.
    bool IsOnlyBox(const UI::Controls::TextBox& box) const;
    // What the box takes as the least of its field: by the field's limits, or by trying where it has none.
    std::optional<std::wstring> FindLeast(UI::Controls::TextBox& box);
    // The texts at the edges of a number's limits that a box of it takes, and those that are one step beyond.
    struct Edges {
        std::vector<std::wstring> within, beyond;
    };
    std::optional<Edges> FindEdges(UI::Controls::TextBox& box);
    // Something else than now in every control that takes input.
    void ChangeAll();

private:
    std::optional<FieldLimits> LimitsOf(const UI::Controls::TextBox& box) const;
    bool Takes(UI::Controls::TextBox& box, const std::wstring& text);
};

}  // namespace VNT::Testing

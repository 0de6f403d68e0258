// A tour through every form that can be reached from a window, on any backend: each row of each list is edited, each
// button that opens something is pressed, and each kind of each chooser is added.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "editor/add_window.h"
#include "ui/controls.h"
#include "ui/window.h"

namespace Testing {

class FormTour {
public:
    // Has `step` run once inside the next modal loop, before all else that waits.
    using Post = std::function<void(std::function<void()> step)>;
    // Looks at a form: as it opened, and again with nonsense in all its texts.
    using Look = std::function<void(UI::Window& form, const std::string& name)>;

    FormTour(Post post, Look look) : post(std::move(post)), look(std::move(look)) {}

    // From within the loop of a window, which runs on.
    void Begin(UI::Window& window, const std::string& name) {
        look(window, name);
        PressAll(window);
    }

    // The same with each of the main window's displays.
    void BeginWithEachDisplay(UI::Window& window) {
        UI::Controls::ComboBox* choice = nullptr;
        for (UI::Control* control : window.GetControls()) {
            if (!choice) choice = dynamic_cast<UI::Controls::ComboBox*>(control);
        }
        for (int i = 0; i < choice->GetCount(); ++i) {
            choice->SetSelection(i);
            choice->DispatchNotification(UI::Controls::ComboBox::SelectionChanged);
            Begin(window, "MainWindow-" + std::to_string(i));
        }
    }

    // The next form that opens, unless its class was seen; it is cancelled.
    void BeginNext() {
        post([this] {
            UI::Window& window = *UI::Window::GetRunning();
            if (!seen.contains(window.GetName())) Visit(window);
            UI::EndRun(UI::IdCancel);
        });
    }

    // The class names of all forms that were open.
    const std::set<std::wstring>& GetSeen() const { return seen; }

private:
    void Visit(UI::Window& window) {
        if (auto* chooser = dynamic_cast<AddWindow*>(&window)) return Choose(*chooser);
        const bool hadMoreKinds = hasMoreKinds;
        const std::string name = GetName(window);
        seen.insert(window.GetName());
        if (!toured.insert(name).second) return;
        look(window, name);
        PressAll(window);
        if (Unfold(window)) look(window, name + ", unfolded");
        if (FillWithNonsense(window)) look(window, name + ", invalid");
        hasMoreKinds = hadMoreKinds;
    }

    // With the way in: one class may be the form of more than one kind.
    std::string GetName(const UI::Window& window) const {
        std::wstring name = window.GetName();
        if (!kind.empty()) name += L", " + kind;
        std::replace(name.begin(), name.end(), L'/', L'-');
        return {name.begin(), name.end()};
    }

    void PressAll(UI::Window& window) {
        UI::Controls::ListBox* list = nullptr;
        UI::Controls::ComboBox* choice = nullptr;
        const auto controls = window.GetControls();
        for (UI::Control* control : controls) {
            if (auto* box = dynamic_cast<UI::Controls::ListBox*>(control)) list = box;
            if (auto* box = dynamic_cast<UI::Controls::ComboBox*>(control)) choice = box;
            auto* button = dynamic_cast<UI::Controls::Button*>(control);
            if (!button || !Opens(*button)) continue;
            if (!list && choice && !button->IsEnabled())
                PressForEach(*choice, *button);
            else
                Press(*button, list);
        }
    }

    // Shows the rest of a form that has more than it opens with.
    static bool Unfold(UI::Window& window) {
        UI::Controls::Button* unfold = nullptr;
        for (UI::Control* control : window.GetControls()) {
            if (dynamic_cast<UI::Controls::ListBox*>(control)) return false;  // where the arrow moves a row
            auto* button = dynamic_cast<UI::Controls::Button*>(control);
            if (button && button->IsVisible() && button->GetText() == L"\u25BC") unfold = button;
        }
        if (unfold) unfold->DispatchNotification(UI::Controls::Button::Clicked);
        return unfold != nullptr;
    }

    // Only as far as a form that is cancelled then.
    static bool FillWithNonsense(UI::Window& window) {
        bool hasText = false;
        for (UI::Control* control : window.GetControls()) {
            auto* box = dynamic_cast<UI::Controls::TextBox*>(control);
            if (!box || !box->IsEnabled() || !box->IsVisible()) continue;
            hasText = true;
            box->SetText(L"?");
            box->DispatchNotification(UI::Controls::TextBox::Changed);
        }
        return hasText;
    }

    static bool Opens(const UI::Controls::Button& button) {
        const std::wstring& text = button.GetText();
        return text.ends_with(L"...") && text != L"Import..." && text != L"Export...";
    }

    // A button that is in force for some of the choices only.
    void PressForEach(UI::Controls::ComboBox& choice, UI::Controls::Button& button) {
        for (int row = 0; row < choice.GetCount(); ++row) {
            choice.SetSelection(row);
            choice.DispatchNotification(UI::Controls::ComboBox::SelectionChanged);
            Press(button, nullptr);
        }
    }

    void Press(UI::Controls::Button& button, UI::Controls::ListBox* list) {
        const std::wstring outerKind = kind;
        if (button.GetText() == L"Edit..." && list) {
            for (int row = 0; row < list->GetCount(); ++row) {
                list->SetSelection(row);
                list->DispatchNotification(UI::Controls::ListBox::SelectionChanged);
                kind.clear();
                Open(button);
            }
        } else {
            do {
                hasMoreKinds = false;
                kind = button.GetText() == L"Add..." ? L"new" : L"";
                Open(button);
            } while (hasMoreKinds);
        }
        kind = outerKind;
    }

    void Open(UI::Controls::Button& button) {
        if (!button.IsEnabled()) return;
        const std::size_t before = awaited.size();
        AwaitForm();
        button.DispatchNotification(UI::Controls::Button::Clicked);
        for (; awaited.size() > before; awaited.pop_back()) *awaited.back() = false;
    }

    // Visits the next form that opens, and cancels it; what is left waiting when nothing opened does nothing.
    void AwaitForm() {
        const auto isAwaited = std::make_shared<bool>(true);
        awaited.push_back(isAwaited);
        post([this, isAwaited] {
            if (!std::exchange(*isAwaited, false)) return;
            isConfirmed = false;
            Visit(*UI::Window::GetRunning());
            if (!std::exchange(isConfirmed, false)) UI::EndRun(UI::IdCancel);
        });
    }

    // Takes the next kind that can be chosen; its form opens when the chooser has ended.
    void Choose(AddWindow& chooser) {
        std::vector<UI::Controls::RadioButton*> kinds;
        UI::Controls::Button* ok = nullptr;
        for (UI::Control* control : chooser.GetControls()) {
            auto* radio = dynamic_cast<UI::Controls::RadioButton*>(control);
            if (radio && radio->IsEnabled()) kinds.push_back(radio);
            auto* button = dynamic_cast<UI::Controls::Button*>(control);
            if (button && button->GetText() == L"OK") ok = button;
        }
        std::size_t& next = nextKind[chooser.GetName()];
        if (seen.insert(chooser.GetName()).second) look(chooser, GetName(chooser));
        if (next >= kinds.size()) return;
        kind = kinds[next]->GetText();
        kinds[next++]->DispatchNotification(UI::Controls::RadioButton::Clicked);
        hasMoreKinds = next < kinds.size();
        isConfirmed = ok->IsEnabled();
        AwaitForm();
        ok->DispatchNotification(UI::Controls::Button::Clicked);
    }

    Post post;
    Look look;
    std::set<std::wstring> seen;
    std::set<std::string> toured;
    std::map<std::wstring, std::size_t> nextKind;
    std::vector<std::shared_ptr<bool>> awaited;
    std::wstring kind;  // that was chosen to add, "new" where there is no choice, empty for what stood in a list
    bool hasMoreKinds = false;
    bool isConfirmed = false;
};

}  // namespace Testing

#include "tests/editor/put_back.h"

#include <algorithm>

#include "editor/add_window.h"
#include "tests/support/closed_ok.h"
#include "tests/support/window_layout.h"

namespace VNT::Testing {

using namespace UI;
using namespace UI::Controls;

namespace {

// The buttons stand behind their list: Add, Edit, Delete, Delete all, up, down.
enum ListButton { Add = 1, Edit, Delete, DeleteAll, Up, Down };

template <class T>
T* As(Control* control) {
    return dynamic_cast<T*>(control);
}

bool IsUsable(const Control& control) { return control.IsVisible() && control.IsEnabled(); }

}  // namespace

std::vector<std::wstring> PutBack::Look() const {
    std::vector<std::wstring> seen;
    const ListBox* list = nullptr;
    for (Control* control : driver.GetWindow().GetControls()) {
        if (!control->IsVisible()) {
            seen.push_back(L"hidden");
            continue;
        }
        std::wstring text = control->GetText() + L"|";
        const auto* button = As<Button>(control);
        // The buttons of a list hang on the chosen row.
        if (!list || !button || button->GetText() == L"OK") text += control->IsEnabled() ? L"" : L"|closed";
        if (const auto* box = As<AnyCheckControl>(control)) text += box->IsChecked() ? L"|on" : L"|off";
        if (const auto* box = As<TextBox>(control)) text += box->HasValidStyle() ? L"" : L"|red";
        if (const auto* box = As<GroupBox>(control)) text += box->HasValidStyle() ? L"" : L"|red";
        if (const auto* box = As<ComboBox>(control)) text += std::to_wstring(box->GetSelection());
        if (auto* box = As<ListBox>(control)) {
            list = box;
            for (int i = 0; i < box->GetCount(); ++i) text += L"|" + box->GetItemText(i);
        }
        seen.push_back(std::move(text));
    }
    return seen;
}

void PutBack::Fault(const std::wstring& text) {
    std::wstring whole;
    for (const std::wstring& step : path) whole += step + L" / ";
    faults.push_back(String(whole + text).ToUtf8());
}

void PutBack::ExpectReason(const std::wstring& what) {
    if (IsClosedForNoReason(driver.GetWindow())) Fault(what + L": OK is closed, and nothing says why");
}

void PutBack::Try(const std::wstring& what, const std::function<void()>& change, const std::function<void()>& putBack) {
    ++inputs;
    const std::vector<std::wstring> before = Look();
    change();
    ExpectReason(what);
    putBack();
    const std::vector<std::wstring> after = Look();
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != after[i]) return Fault(what + L" changes \"" + before[i] + L"\" to \"" + after[i] + L"\"");
    }
}

void PutBack::Touch(TextBox& box) {
    const std::wstring text = box.GetText();
    const std::wstring name = L"box \"" + text + L"\" of " + Named(box);
    Try(
        name + L", emptied", [&] { driver.Enter(box, L""); }, [&] { driver.Enter(box, text); });
    if (text.empty()) return;
    Try(
        name + L", last character",
        [&] {
            driver.Click(box);
            driver.Press(Key::End);
            driver.Press(Key::Back);
        },
        [&] { driver.Type(text.substr(text.size() - 1)); });
}

void PutBack::Touch(CheckBox& box) {
    Try(
        L"check box " + Named(box), [&] { driver.Click(box); }, [&] { driver.Click(box); });
}

void PutBack::Touch(RadioButton& button) {
    if (button.IsChecked()) return;
    RadioButton* chosen = nullptr;
    std::vector<RadioButton*> on;
    for (Control* control : driver.GetWindow().GetControls()) {
        auto* radio = As<RadioButton>(control);
        if (radio && radio->IsChecked()) on.push_back(radio);
    }
    Try(
        L"radio button " + Named(button), [&] { driver.Click(button); },
        [&] {
            for (RadioButton* radio : on) chosen = radio->IsChecked() ? chosen : radio;
            if (chosen && IsUsable(*chosen)) driver.Click(*chosen);
        });
}

void PutBack::Touch(ComboBox& box) {
    const int before = box.GetSelection();
    if (before < 0) return;
    for (const int row : std::set<int>{0, (before + 1) % box.GetCount(), box.GetCount() - 1}) {
        if (row == before) continue;
        Try(
            L"combo box " + Named(box) + L" to \"" + box.GetItemText(row) + L"\"", [&] { driver.Choose(box, row); },
            [&] { driver.Choose(box, before); });
    }
}

void PutBack::Touch(ListBox& list) {
    const auto& controls = driver.GetWindow().GetControls();
    const auto at = std::find(controls.begin(), controls.end(), &list);
    const auto get = [&at](ListButton which) -> Button& { return *As<Button>(*(at + which)); };
    if (get(DeleteAll).IsEnabled() && list.GetCount() > 1) {
        driver.Click(list, 0);
        Try(
            L"first row down and up", [&] { driver.Click(get(Down)); }, [&] { driver.Click(get(Up)); });
    }
    if (!get(Add).IsEnabled()) return;
    const int count = get(DeleteAll).IsEnabled() ? list.GetCount() : 0;
    Try(
        L"row added and deleted",
        [&] {
            const auto confirm = [this] {
                Button* ok = FindOk(driver.GetWindow());
                if (ok && ok->IsEnabled()) return driver.Click(*ok);
                driver.Press(Key::Escape);
            };
            const std::size_t waiting = driver.CountStepsLeft();
            driver.Then([this, confirm] {
                if (dynamic_cast<AddWindow*>(&driver.GetWindow())) driver.Then(confirm);
                confirm();
            });
            driver.Click(get(Add));
            auto& script = Headless::GetDesktop().Script;
            while (script.size() > waiting) script.pop_back();
        },
        [&] {
            const bool isAdded = get(DeleteAll).IsEnabled() && list.GetCount() > count;
            if (isAdded && get(Delete).IsEnabled()) driver.Click(get(Delete));
        });
}

void PutBack::TouchOne(Control& control) {
    if (!IsUsable(control)) return;
    if (auto* box = As<TextBox>(&control)) Touch(*box);
    if (auto* combo = As<ComboBox>(&control)) Touch(*combo);
    if (auto* radio = As<RadioButton>(&control)) {
        Touch(*radio);
    } else if (auto* box = As<CheckBox>(&control)) {
        Touch(*box);
    }
}

void PutBack::TouchAll() {
    const std::vector<Control*> controls = driver.GetWindow().GetControls();
    for (Control* control : controls) {
        TouchOne(*control);
        auto* list = As<ListBox>(control);
        if (list && IsUsable(*list)) Touch(*list);
    }
}

bool PutBack::IsNewState() {
    std::wstring all = driver.GetWindow().GetName();
    for (const std::wstring& text : Look()) all += text;
    return states.insert(std::hash<std::wstring>()(all)).second;
}

void PutBack::Open(Button& button, const std::function<std::wstring()>& check) {
    const std::size_t waiting = driver.CountStepsLeft();
    const std::vector<std::wstring> before = Look();
    driver.Then([this] { Visit(); });
    driver.Click(button);
    auto& script = Headless::GetDesktop().Script;
    while (script.size() > waiting) script.pop_back();
    const std::vector<std::wstring> after = Look();
    if (before != after) Fault(L"a form that was confirmed changes what is seen");
    if (const std::wstring fault = check(); !fault.empty()) Fault(fault);
}

void PutBack::OpenAll(const std::function<std::wstring()>& check) {
    const std::vector<Control*> controls = driver.GetWindow().GetControls();
    ListBox* list = nullptr;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (auto* box = As<ListBox>(controls[i])) list = box;
        auto* button = As<Button>(controls[i]);
        if (!button || button->GetText() != L"Edit...") continue;
        if (list) {
            for (int row = 0; row < list->GetCount() && list->IsEnabled(); ++row) {
                driver.Click(*list, row);
                if (!button->IsEnabled()) continue;
                path.push_back(list->GetItemText(row));
                Open(*button, check);
                path.pop_back();
            }
        } else if (IsUsable(*button)) {
            path.push_back(button->GetText());
            Open(*button, check);
            path.pop_back();
        }
    }
}

// Where the arrow moves no row.
void PutBack::ShowMore() {
    Button* more = nullptr;
    for (Control* control : driver.GetWindow().GetControls()) {
        if (As<ListBox>(control)) return;
        auto* button = As<Button>(control);
        if (button && button->GetText() == L"\u25BC" && IsUsable(*button)) more = button;
    }
    if (more) driver.Click(*more);
}

void PutBack::Leave() {
    Button* ok = FindOk(driver.GetWindow());
    if (ok && ok->IsEnabled()) {
        driver.Click(*ok);
    } else {
        driver.Press(Key::Escape);
    }
}

void PutBack::Visit() {
    ++forms;
    const std::wstring name = driver.GetWindow().GetName();
    path.push_back(name);
    ExpectReason(L"opened");
    if (IsNewState() && touched[name] < mostStates) {
        ++touched[name];
        ShowMore();
        TouchAll();
    }
    OpenAll([] { return std::wstring(); });
    Leave();
    path.pop_back();
}

void PutBack::Walk(const std::function<std::wstring()>& check) {
    OpenAll(check);
    if (IsNewState() && touched[driver.GetWindow().GetName()]++ < mostStates) {
        TouchAll();
        if (const std::wstring fault = check(); !fault.empty()) Fault(fault);
    }
}

}  // namespace VNT::Testing

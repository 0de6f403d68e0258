#include "tests/guide/player.h"

#include <algorithm>
#include <map>

#include "editor/main_window.h"
#include "store/entry.h"

namespace Guide {

using namespace UI;
using namespace UI::Controls;

namespace {

// What is wrong, without the place in the guide.
class Finding : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::wstring Join(const std::vector<std::wstring>& words) {
    std::wstring all;
    for (const std::wstring& word : words) all += L" \"" + word + L"\"";
    return all;
}

// A caption may tell besides how much room is left, and a label ends with a colon.
bool Reads(const std::wstring& shown, const std::wstring& text) {
    return shown == text || shown == text + L":" || (shown.starts_with(text + L" (") && shown.ends_with(L")"));
}

bool ReadsAs(const Control& control, const std::wstring& text) {
    return control.GetKind() != ControlKind::Edit && Reads(control.GetText(), text);
}

std::vector<Control*> GetVisible() {
    const Window* window = Window::GetRunning();
    if (!window) throw Finding("no window is open");
    std::vector<Control*> visible;
    std::copy_if(window->GetControls().begin(), window->GetControls().end(), std::back_inserter(visible),
                 [](const Control* control) { return control->IsVisible(); });
    return visible;
}

// The control of this kind that the words lead to: it reads the last, or stands behind what reads it.
template <class T>
T& Find(const std::vector<std::wstring>& path, int nth = 0) {
    const std::vector<Control*> visible = GetVisible();
    auto from = visible.begin();
    const auto goTo = [&](const std::wstring& text) {
        from = std::find_if(from, visible.end(), [&](Control* control) { return ReadsAs(*control, text); });
        if (from == visible.end()) throw Finding("nothing reads" + ToUtf8(Join({text})));
    };
    for (std::size_t i = 0; i + 1 < path.size(); ++i) goTo(path[i]);
    std::vector<T*> found;
    for (auto it = from; it != visible.end(); ++it) {
        T* control = dynamic_cast<T*>(*it);
        if (control && ReadsAs(**it, path.back())) found.push_back(control);
    }
    if (found.empty()) {
        goTo(path.back());
        for (; from != visible.end(); ++from) {
            if (T* control = dynamic_cast<T*>(*from)) found.push_back(control);
        }
    }
    if (nth >= static_cast<int>(found.size())) throw Finding("no such control at" + ToUtf8(Join(path)));
    return *found[static_cast<std::size_t>(nth)];
}

int FindRow(const AnyItemList& list, const std::wstring& text) {
    for (int row = 0; row < list.GetCount(); ++row) {
        if (list.GetItemText(row) == text) return row;
    }
    throw Finding("no row" + ToUtf8(Join({text})));
}

void Require(bool isSo, const std::string& what) {
    if (!isSo) throw Finding(what);
}

std::vector<std::wstring> WithoutLast(std::vector<std::wstring> words) {
    Require(words.size() > 1, "too few words");
    words.pop_back();
    return words;
}

// Every text that can be read now, in the lists that drop down, too.
std::set<std::wstring> GetTexts() {
    std::set<std::wstring> texts{Window::GetRunning()->GetTitle()};
    for (Control* control : GetVisible()) {
        if (!control->GetText().empty()) texts.insert(control->GetText());
        const auto* list = dynamic_cast<AnyItemList*>(control);
        for (int row = 0; list && row < list->GetCount(); ++row) texts.insert(list->GetItemText(row));
    }
    return texts;
}

bool IsAmong(const std::set<std::wstring>& texts, const std::wstring& text) {
    return std::any_of(texts.begin(), texts.end(), [&](const std::wstring& shown) { return Reads(shown, text); });
}

void RequireText(const std::wstring& text) {
    const std::set<std::wstring> texts = GetTexts();
    if (IsAmong(texts, text)) return;
    std::string similar;
    for (const std::wstring& shown : texts) {
        if (shown.front() == text.front()) similar += ToUtf8(Join({shown}));
    }
    throw Finding("the screen does not show it, but" + similar);
}

}  // namespace

void Player::LookAround() {
    if (Window::GetRunning()) seen_.merge(GetTexts());
}

void Player::CheckShown(const Step& step) {
    LookAround();
    for (const std::wstring& text : step.shown) {
        if (!IsAmong(seen_, text)) throw PlayError(step.place + ": the screen shows no" + ToUtf8(Join({text})));
    }
    seen_.clear();
}

void Player::TakePicture(const Command& command) {
    const std::string name = ToUtf8(command.words.at(0));
    std::vector<Control*> marked;
    for (std::size_t i = 1; i < command.words.size(); ++i) {
        Control& control = Find<Control>({command.words[i]});
        // What a label stands before is meant, not the label.
        const std::vector<Control*> visible = GetVisible();
        const auto at = std::find(visible.begin(), visible.end(), &control);
        const bool isLabel = control.GetText().ends_with(L":") && at + 1 != visible.end();
        marked.push_back(isLabel ? at[1] : &control);
    }
    hands_.TakePicture(name, *Window::GetRunning(), marked);
    pictures_.insert(name);
}

void Player::Run(const Command& command) {
    using Words = std::vector<std::wstring>;
    const auto press = [this](Control& control) {
        Require(control.IsEnabled(), "it can't be used");
        hands_.Click(control);
    };
    const auto box = [&](const Words& path) -> TextBox& { return Find<TextBox>(path, command.nth); };
    const auto state = [&](bool isSo) { Require(isSo, "it is not"); };
    const std::map<std::string, std::function<void(const Words&)>> verbs{
        {"choose",
         [&](const Words& words) {
             auto& choice = Find<ComboBox>(WithoutLast(words), command.nth);
             Require(choice.IsEnabled(), "it can't be used");
             hands_.Choose(choice, FindRow(choice, words.back()));
         }},
        {"select",
         [&](const Words& words) {
             auto& list = Find<ListBox>(WithoutLast(words));
             hands_.Select(list, FindRow(list, words.back()));
         }},
        {"click", [&](const Words& words) { press(Find<AnyHotControl>(words, command.nth)); }},
        {"enter",
         [&](const Words& words) {
             auto& entered = box(WithoutLast(words));
             Require(entered.IsEnabled(), "it can't be used");
             hands_.Enter(entered, words.back());
         }},
        {"see", [](const Words& words) { RequireText(words.at(0)); }},
        {"gone", [](const Words& words) { Require(!IsAmong(GetTexts(), words.at(0)), "the screen shows it"); }},
        {"checked", [&](const Words& words) { state(Find<AnyCheckControl>(words).IsChecked()); }},
        {"unchecked", [&](const Words& words) { state(!Find<AnyCheckControl>(words).IsChecked()); }},
        {"red", [&](const Words& words) { state(!box(words).HasValidStyle()); }},
        {"good", [&](const Words& words) { state(box(words).HasValidStyle()); }},
        {"on", [&](const Words& words) { state(Find<Button>(words).IsEnabled()); }},
        {"off", [&](const Words& words) { state(!Find<Button>(words).IsEnabled()); }},
        {"picture", [&](const Words&) { TakePicture(command); }},
        {"file", [&](const Words& words) { hands_.AnswerFile(words.at(0)); }},
    };
    const auto verb = verbs.find(command.verb);
    const std::string all = command.place + ": " + command.verb + ToUtf8(Join(command.words));
    if (verb == verbs.end() || command.words.empty()) throw PlayError(all + ": there is no such command");
    try {
        LookAround();
        verb->second(command.words);
    } catch (const Finding& error) {
        throw PlayError(all + ": " + error.what());
    }
}

void Player::Play(const Task& task) {
    // One list for each time that the program runs.
    std::vector<std::vector<std::function<void()>>> runs(1);
    for (std::size_t i = 0; i < task.steps.size(); ++i) {
        const Step& step = task.steps[i];
        for (const Command& command : step.commands) {
            if (command.verb == "again") {
                runs.emplace_back();
            } else {
                runs.back().push_back([this, &command] { Run(command); });
            }
        }
        const bool ends = i + 1 == task.steps.size() || task.steps[i + 1].commands.front().verb == "again";
        // Behind what ends the program there is nothing to look at.
        auto& steps = runs.back();
        steps.insert(ends && !steps.empty() ? steps.end() - 1 : steps.end(), [this, &step] { CheckShown(step); });
    }
    for (auto& steps : runs) {
        std::string failure;
        hands_.Play(std::move(steps), [&] {
            const auto showError = [&failure](const wchar_t* text) { failure = ToUtf8(text); };
            VNT::RunEntry(platform_, {[] { return 0; }, EditDisplays, showError});
        });
        if (!failure.empty()) throw PlayError(task.name + ": the program says: " + failure);
    }
}

Task CutBehindLastPicture(const Task& task) {
    Task cut{task.name, {}};
    std::size_t commands = 0;
    std::vector<Step> steps = task.steps;
    while (!steps.empty()) {
        auto& last = steps.back().commands;
        while (!last.empty() && last.back().verb != "picture") last.pop_back();
        commands += last.size();
        if (!last.empty()) break;
        steps.pop_back();
    }
    if (commands == 0) return cut;
    steps.back().shown.clear();  // some of it may come behind the picture
    cut.steps = std::move(steps);
    return cut;
}

}  // namespace Guide

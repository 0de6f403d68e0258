#include "tests/monkey/monkey.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <unordered_set>

#include "model/edid/file_formats.h"
#include "samples/displays.h"
#include "store/entry.h"
#include "store/load.h"
#include "tests/support/closed_ok.h"
#include "tests/support/window_layout.h"

namespace fs = std::filesystem;

namespace Testing {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;

namespace {

constexpr std::size_t MostNotes = 24;

std::wstring FromAscii(const std::string& text) { return {text.begin(), text.end()}; }

fs::path GetFile(const fs::path& folder, int index) { return folder / ("file" + std::to_string(index)); }

void WriteFile(const fs::path& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.View().data()), static_cast<std::streamsize>(bytes.Size()));
}

// All that changes the store.
int CountWrites(const MemoryPlatform& platform) {
    return platform.Count("SetValue") + platform.Count("CreateKey") + platform.Count("DeleteKey") +
           platform.Count("DeleteValue");
}

// A header, and behind it anything: of one block, or with extension blocks that say what they are.
Bytes MakeWildEdid(unsigned seed) {
    std::mt19937 random(seed);
    constexpr int tags[] = {0x02, 0x02, 0x70, 0x10, 0xC0};
    const int extensions = static_cast<int>(random() % 4);
    Bytes bytes = Bytes{0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};
    while (bytes.Size() < (1 + extensions) * Edid::BlockSize) {
        const bool isTag = bytes.Size() % Edid::BlockSize == 0;
        bytes.Append(Bytes{isTag ? tags[random() % 5] : static_cast<int>(random() % 256)});
    }
    bytes.At(126) = static_cast<std::uint8_t>(extensions);
    return bytes;
}

// Ends a form; the main window must not end too often.
bool EndsForm(const Control& control) { return control.GetText() == L"OK" || control.GetText() == L"Cancel"; }

}  // namespace

Monkey::Monkey(Dice& dice, int displays, fs::path folder) : dice(dice), folder(std::move(folder)) {
    static const std::vector<Samples::Display> samples = Samples::MakeDisplays();
    for (const Samples::Display& sample : samples) {
        if (static_cast<int>(platform.devices.size()) == displays) break;
        MemoryDevice& device = platform.devices.emplace_back();
        device.instanceId = UpperAscii(FromAscii(sample.instanceId));
        device.present = true;
        device.description = FromAscii(sample.description);
        device.hardwareKey->values.Put(L"EDID", Bytes(sample.edid));
    }
}

fs::path Monkey::PutFile(int index) {
    static const std::vector<Bytes> known = [] {
        Edid edid;
        edid.Read(Bytes(Samples::MakeDisplays()[2].edid));
        return std::vector<Bytes>{WriteBin(edid), WriteDat(edid), WriteTxt(edid), {}, Bytes(127, 0)};
    }();
    const fs::path path = GetFile(folder, index);
    if (!put.insert(index).second) return path;
    fs::create_directories(folder);
    const auto at = static_cast<std::size_t>(index);
    if (at < known.size()) WriteFile(path, known[at]);
    if (index >= WildFile) WriteFile(path, MakeWildEdid(wildSeeds[index - WildFile]));
    return path;
}

void Monkey::Work() {
    fs::remove_all(folder);
    while (dice.HasMore()) RunProgram();
    if (!put.empty()) fs::remove_all(folder);
}

void Monkey::WorkOn(const std::function<void()>& open) {
    while (dice.HasMore()) {
        user->Then([this] { Step(); });
        open();
        front = nullptr;
        user->Forget();
    }
}

void Monkey::RunProgram() {
    ++sessions;
    constexpr int scales[] = {96, 120, 144, 192};
    user->SetScale(scales[dice.Roll(4)]);
    writes = CountWrites(platform);
    for (int wild = 0; wild < WildFiles; ++wild) {
        wildSeeds[wild] = static_cast<unsigned>(dice.Roll(256));
        put.erase(WildFile + wild);
    }
    int result = 0;
    DisplayList edited;
    const auto edit = [&](DisplayList& displays) {
        result = Edit(displays);
        edited = displays;
        return result;
    };
    const auto fail = [this](const wchar_t* text) { Report(std::wstring(L"the program fails: ") + text); };
    if (RunEntry(platform, {[] { return 0; }, edit, fail}) != 0) Report(L"the program does not end well");
    CheckSaved(result, edited);
    if (platform.OpenHandles() != 0) Report(L"a key stays open");
}

int Monkey::Edit(DisplayList& displays) {
    MainWindow window(displays);
    view = std::make_unique<MainWindowView>(window);
    mainWindow = &window;
    user->Then([this] { Step(); });
    const int result = window.Run();
    view.reset();
    mainWindow = nullptr;
    front = nullptr;
    user->Forget();
    if (result == IdOk) displays = window.GetDisplays();
    return result;
}

void Monkey::CheckSaved(int result, const DisplayList& edited) {
    if (result != IdOk && CountWrites(platform) != writes) Report(L"a cancelled session wrote to the store");
    if (result != IdOk) return;
    DisplayList loaded;
    LoadDisplays(platform, loaded, false);
    if (loaded.size() != edited.size()) Report(L"the store has other displays than were saved");
    for (std::size_t i = 0; i < loaded.size(); ++i) {
        // Blocks of zeros are left out of an override: what it shows is what counts.
        Edid before;
        Edid after;
        before.Read(edited[i].CurrentData);
        after.Read(loaded[i].CurrentData);
        if (!(before == after)) Report(L"\"" + loaded[i].InstanceId + L"\" comes back otherwise than it was saved");
    }
}

void Monkey::Step() {
    user->Then([this] { Step(); });
    const Window& window = user->GetWindow();
    if (front != window.GetHandle()) {
        ++seen[window.GetName()];
        touched = nullptr;
    }
    front = window.GetHandle();
    // Asked for each time: a form may come to the front with the handle of the one before it.
    LookAt(window);
    if (dice.HasMore()) {
        Act();
    } else {
        user->ClickCloseBox();
    }
    Check();
}

void Monkey::LookAt(const Window& window) {
    std::map<int, std::vector<Control*>> byKind;
    for (Control* control : window.GetControls()) {
        // Check boxes and buttons are one kind to the system.
        const bool isButton = dynamic_cast<UI::Controls::Button*>(control) != nullptr;
        if (control->GetKind() != ControlKind::Static)
            byKind[isButton ? -1 : static_cast<int>(control->GetKind())].push_back(control);
    }
    // A kind of many controls is not that much likelier than one of few.
    constexpr std::size_t mostChances = 6;
    kinds.clear();
    for (const auto& [kind, controls] : byKind) {
        for (std::size_t chance = 0; chance < std::min(controls.size(), mostChances); ++chance)
            kinds.push_back(controls);
    }
}

void Monkey::Act() {
    if (view) AnswerDialogs();
    if (IsOneIn(5)) return PressAnyKey();
    Control& control = Pick();
    if (IsOneIn(24)) return PutBack(control);
    if (EndsForm(control) && !IsOneIn(IsMain() ? 8 : 2)) return;
    touched = &control;
    ActOn(control);
}

UI::Control& Monkey::Pick() {
    // So that most actions do something.
    constexpr int mostTries = 8;
    Control* control = nullptr;
    for (int tries = 0; tries < mostTries; ++tries) {
        const auto& kind = kinds[static_cast<std::size_t>(dice.Roll(static_cast<int>(kinds.size())))];
        control = kind[static_cast<std::size_t>(dice.Roll(static_cast<int>(kind.size())))];
        if (control->IsVisible() && control->IsEnabled()) break;
    }
    return *control;
}

namespace {

// What a control holds, of those that hold something; of a list that is its rows.
std::wstring GetHeld(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->GetText();
    if (const auto* box = dynamic_cast<const AnyCheckControl*>(&control)) return box->IsChecked() ? L"on" : L"off";
    if (const auto* box = dynamic_cast<const ComboBox*>(&control)) return box->GetItemText(box->GetSelection());
    if (const auto* box = dynamic_cast<const ListBox*>(&control)) {
        std::wstring rows;
        for (int i = 0; i < box->GetCount(); ++i) rows += box->GetItemText(i) + L"; ";
        return rows;
    }
    if (control.GetText() == L"OK") return control.IsEnabled() ? L"open" : L"closed";
    return {};
}

// Of those that are seen; a form may show more of itself for good.
std::map<const Control*, std::wstring> GetAllHeld(const Window& window) {
    std::map<const Control*, std::wstring> all;
    for (const Control* control : window.GetControls()) {
        if (control->IsVisible()) all[control] = GetHeld(*control);
    }
    return all;
}

// The first button of that text behind `control`, or null.
Button* FindBehind(const Control& control, std::wstring_view text) {
    const std::vector<Control*>& all = control.GetWindow().GetControls();
    const auto isIt = [text](const Control* other) { return other->GetText() == text; };
    const auto found = std::find_if(std::find(all.begin(), all.end(), &control), all.end(), isIt);
    return found == all.end() ? nullptr : dynamic_cast<Button*>(*found);
}

}  // namespace

void Monkey::PutBack(Control& control) {
    // What was in a box before is remembered while that is the one that is worked in.
    if (&control == touched || !control.IsVisible() || !control.IsEnabled()) return;
    control.SetFocus();
    if (!control.HasFocus()) return;
    const Window& window = user->GetWindow();
    const auto before = GetAllHeld(window);
    // A form that can't be confirmed may say so at whatever was touched last.
    const auto isOpen = [](const auto& each) { return each.second == L"open"; };
    if (std::none_of(before.begin(), before.end(), isOpen)) return;
    const DisplayList displays = mainWindow ? mainWindow->GetDisplays() : DisplayList();
    const std::wstring name = control.GetName();
    Note(L"put back", name);
    touched = &control;
    if (!ChangeAndBack(control)) return;
    ++putBacks[control.GetKind()];
    const auto after = GetAllHeld(window);
    for (const auto& [each, held] : before) {
        const auto found = after.find(each);
        const std::wstring now = found == after.end() ? L"nothing" : found->second;
        if (now != held) Report(L"putting back \"" + name + L"\" makes \"" + now + L"\" of \"" + held + L"\"");
    }
    for (std::size_t i = 0; i < displays.size(); ++i) {
        const Bytes& now = mainWindow->GetDisplays()[i].CurrentData;
        if (!(now == displays[i].CurrentData)) Report(L"the bytes of a display change");
    }
}

bool Monkey::ChangeAndBack(Control& control) {
    if (auto* box = dynamic_cast<TextBox*>(&control)) {
        const std::wstring text = box->GetText();
        // A text that is none is nothing that anybody put there, and some characters no key types.
        const bool isTyped = std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L' '; });
        if (box->IsMultiLine() || !box->HasValidStyle() || !isTyped) return false;
        user->Enter(*box, dice.Roll(2) == 0 ? std::wstring() : MakeText());
        user->Enter(*box, text);
        return true;
    }
    if (dynamic_cast<CheckBox*>(&control)) {
        user->Click(control);
        user->Click(control);
        return true;
    }
    // That of the main window is no field: another display has rows of its own to choose.
    auto* combo = dynamic_cast<ComboBox*>(&control);
    if (combo && !IsMain() && combo->GetSelection() != ComboBox::NoSelection) {
        const int selected = combo->GetSelection();
        user->Choose(*combo, dice.Roll(combo->GetCount()));
        user->Choose(*combo, selected);
        return true;
    }
    auto* list = dynamic_cast<ListBox*>(&control);
    Button* up = list ? FindBehind(control, L"\u25B2") : nullptr;
    Button* down = list ? FindBehind(control, L"\u25BC") : nullptr;
    if (!up || !down) return false;
    user->Click(*list, 0);
    if (!down->IsEnabled()) return false;
    user->Click(*down);
    user->Click(*up);
    return true;
}

void Monkey::ActOn(Control& control) {
    if (auto* box = dynamic_cast<TextBox*>(&control)) return ActOnText(*box);
    if (auto* list = dynamic_cast<ListBox*>(&control)) return ActOnList(*list);
    auto* combo = dynamic_cast<ComboBox*>(&control);
    if (combo && combo->GetCount() > 0 && combo->IsVisible() && !IsOneIn(4)) {
        Note(L"choose", combo->GetText());
        return user->Choose(*combo, dice.Roll(combo->GetCount()));
    }
    if (IsOneIn(16)) {
        Note(L"double click", control.GetText());
        user->DoubleClick(control);
    } else {
        Note(L"click", control.GetText());
        user->Click(control);
    }
}

void Monkey::ActOnText(TextBox& box) {
    const std::wstring text = MakeText();
    Note(L"type", text);
    user->Click(box);
    if (IsOneIn(3)) {
        user->Type(text.substr(0, 1));
    } else {
        user->Enter(box, text);
    }
}

void Monkey::ActOnList(ListBox& list) {
    const int row = dice.Roll(list.GetCount() + 2);
    Note(L"list row", std::to_wstring(row));
    if (IsOneIn(4)) {
        user->DoubleClick(list, row);
    } else {
        user->Click(list, row);
    }
}

void Monkey::PressAnyKey() {
    constexpr Key keys[] = {Key::Tab,    Key::Tab,      Key::Tab,  Key::Space, Key::Up, Key::Down,
                            Key::Left,   Key::Right,    Key::Home, Key::End,   Key::F4, Key::Return,
                            Key::Escape, Key::PageDown, Key::Back, Key::Delete};
    const Key key = keys[dice.Roll(static_cast<int>(std::size(keys)))];
    if (IsMain() && (key == Key::Return || key == Key::Escape) && !IsOneIn(8)) return;
    Note(L"press", std::to_wstring(static_cast<int>(key)));
    const auto& controls = user->GetWindow().GetControls();
    const auto focused = std::find_if(controls.begin(), controls.end(), [](Control* each) { return each->HasFocus(); });
    touched = focused == controls.end() ? nullptr : *focused;
    user->Press(key, IsOneIn(4));
}

std::wstring Monkey::MakeText() {
    static const wchar_t* const texts[] = {
        L"",       L"0",          L"1",           L"60",     L"007", L"-1",
        L"59.94",  L"1920",       L"1080",        L"640",    L"480", L"255",
        L"x",      L"1.2.3.4",    L"00 FF 1",     L" 42 ",   L".5",  L"4294967295",
        L"\u00E9", L"2147483648", L"-2147483647", L"{text}", L"ABC", L"99999999999999999999"};
    constexpr int count = static_cast<int>(std::size(texts));
    const int choice = dice.Roll(2 * count);
    if (choice < count) return texts[choice];
    std::wstring digits;
    for (int length = choice % 4 + 1; length > 0; --length) digits += static_cast<wchar_t>(L'0' + dice.Roll(10));
    return digits;
}

// A file dialog finds an answer: a file, Cancel, or a failure of the system. A double click may ask twice.
void Monkey::AnswerDialogs() {
    while (user->CountAnswers() < 2) {
        const int choice = dice.Roll(2 * FileCount);
        if (choice < FileCount) {
            user->Answer(ChosenFile{PutFile(choice), dice.Roll(4)});
        } else if (choice == FileCount) {
            user->AnswerWithFailure(L"CoInitializeEx failed.");
        } else {
            user->Answer(std::nullopt);
        }
    }
}

void Monkey::Check() {
    if (view) Expect(view->FindDifference());
    if (user->IsLeaving()) return;
    Window& window = user->GetWindow();
    auto* form = dynamic_cast<AnyWindow*>(&window);
    constexpr int often = 8;
    if (form && ++checks % often == 0) Expect(FindRestless(*form));
    if (VNT::Testing::IsClosedForNoReason(window)) Report(L"OK is closed, and nothing that is seen says why");
    Expect(user->FindUndrawn(window));
    // What was seen in its place once need not be looked at again, by whichever monkey.
    static std::unordered_set<std::size_t> layouts;
    if (layouts.insert(GetLayoutDigest(window)).second) Expect(VNT::Testing::FindMisplaced(window));
}

void Monkey::Note(const wchar_t* what, const std::wstring& where) {
    dice.Pass();
    notes.push_back({user->GetWindow().GetName(), what, where});
    if (notes.size() > MostNotes) notes.pop_front();
}

void Monkey::Report(const std::wstring& what) const {
    std::string text = String(what).ToUtf8() + "\nafter\n";
    for (const Action& note : notes)
        text += "    " + String(note.window + L": " + note.what + L" \"" + note.where + L"\"\n").ToUtf8();
    throw Finding(text);
}

}  // namespace Testing

#include "tests/monkey/monkey.h"

#include <fstream>
#include <random>

#include "model/edid/file_formats.h"
#include "samples/displays.h"
#include "store/entry.h"
#include "store/load.h"
#include "tests/support/window_layout.h"

namespace fs = std::filesystem;

namespace Testing {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;

namespace {

constexpr std::size_t MostNotes = 24;
constexpr int FileCount = 8;
constexpr int WildFile = 6;  // and the next

std::wstring FromAscii(const std::string& text) { return {text.begin(), text.end()}; }

fs::path GetFile(const fs::path& folder, int index) { return folder / ("file" + std::to_string(index)); }

void WriteFile(const fs::path& path, const Bytes& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.Vector().data()), static_cast<std::streamsize>(bytes.Size()));
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
    for (const Samples::Display& sample : Samples::MakeDisplays()) {
        if (static_cast<int>(platform.devices.size()) == displays) break;
        MemoryDevice& device = platform.devices.emplace_back();
        device.instanceId = UpperAscii(FromAscii(sample.instanceId));
        device.present = true;
        device.description = FromAscii(sample.description);
        device.hardwareKey->values.Put(L"EDID", Bytes(sample.edid));
    }
}

void Monkey::PutFiles() {
    fs::create_directories(folder);
    Edid edid;
    edid.Read(Bytes(Samples::MakeDisplays()[2].edid));
    const Bytes files[] = {WriteBin(edid), WriteDat(edid), WriteTxt(edid), {}, Bytes(127, 0)};
    int index = 0;
    for (const Bytes& file : files) WriteFile(GetFile(folder, index++), file);
    while (index < FileCount) fs::remove(GetFile(folder, index++));
}

void Monkey::Work() {
    PutFiles();
    while (dice.HasMore()) RunProgram();
    fs::remove_all(folder);
}

void Monkey::RunProgram() {
    ++sessions;
    constexpr int scales[] = {96, 120, 144, 192};
    user->SetScale(scales[dice.Roll(4)]);
    writes = CountWrites(platform);
    for (const int wild : {WildFile, WildFile + 1})
        WriteFile(GetFile(folder, wild), MakeWildEdid(static_cast<unsigned>(dice.Roll(256))));
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
    user->Then([this] { Step(); });
    const int result = window.Run();
    view.reset();
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
    if (front != window.GetHandle()) ++seen[window.GetName()];
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
    AnswerDialogs();
    if (IsOneIn(5)) return PressAnyKey();
    // A few tries for a control that can be used, so that most actions do something.
    Control* control = nullptr;
    for (int tries = 0; tries < 8; ++tries) {
        const auto& kind = kinds[static_cast<std::size_t>(dice.Roll(static_cast<int>(kinds.size())))];
        control = kind[static_cast<std::size_t>(dice.Roll(static_cast<int>(kind.size())))];
        if (control->IsVisible() && control->IsEnabled()) break;
    }
    const bool isMain = user->GetWindow().GetParent() == nullptr;
    if (EndsForm(*control) && !IsOneIn(isMain ? 8 : 2)) return;
    ActOn(*control);
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
    const bool isMain = user->GetWindow().GetParent() == nullptr;
    if (isMain && (key == Key::Return || key == Key::Escape) && !IsOneIn(8)) return;
    Note(L"press", std::to_wstring(static_cast<int>(key)));
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
            user->Answer(ChosenFile{GetFile(folder, choice), dice.Roll(4)});
        } else if (choice == FileCount) {
            user->AnswerWithFailure(L"CoInitializeEx failed.");
        } else {
            user->Answer(std::nullopt);
        }
    }
}

void Monkey::Check() {
    if (!view) return;
    Expect(view->FindDifference());
    if (user->IsLeaving()) return;
    Window& window = user->GetWindow();
    auto* form = dynamic_cast<AnyWindow*>(&window);
    constexpr int often = 8;
    if (form && ++checks % often == 0) Expect(FindRestless(*form));
    Expect(user->FindUndrawn(window));
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

// What the forms and the choosers say: by their controls, as they open and in the order of their creation.
#include <map>
#include <sstream>

#include "editor/main_window.h"
#include "tests/editor/form_case.h"
#include "tests/editor/form_user.h"
#include "tests/editor/small_screens.h"
#include "tests/golden/facts.h"
#include "ui/headless/driver.h"

namespace VNT::Testing {
namespace {

using namespace UI::Controls;

std::string Quoted(const std::wstring& text) {
    std::string quoted = "\"";
    for (const char c : String(text).ToUtf8()) quoted += c == '\n' ? std::string("\\n") : std::string(1, c);
    return quoted + "\"";
}

std::string Quoted(const std::vector<std::wstring>& texts) {
    std::string all;
    for (const std::wstring& text : texts) all += " " + Quoted(text);
    return all;
}

// The texts that size the control stand behind those that it shows, where they are others.
template <class Control>
std::string Sizing(const Forms::TControlCell<Control>& cell) {
    const bool isOwn = cell.Sizing.size() == 1 && cell.Sizing.front() == cell.Control.GetText();
    std::string text = isOwn ? "" : ", sized by" + Quoted(cell.Sizing);
    if (cell.Lines != 1) text += ", " + std::to_string(cell.Lines) + " lines";
    return text;
}

// Long lists of choices stand once: a further one of the same rows names the first.
std::string Rows(const ComboBox& box) {
    constexpr int many = 12;
    static std::map<std::string, std::string> first;
    std::string rows;
    for (int i = 0; i < box.GetCount(); ++i) rows += "\n        " + Quoted(box.GetItemText(i));
    if (box.GetCount() < many) return rows;
    const std::string name = String(box.GetWindow().GetName()).ToUtf8();
    const std::string owner = first.emplace(rows, name).first->second;
    return owner == name ? rows : ", rows as in " + owner;
}

// Prints the cell if it is of the class.
template <class Control>
bool PrintIf(std::ostream& out, const Forms::Cell& cell, const char* kind) {
    const auto* found = dynamic_cast<const Forms::TControlCell<Control>*>(&cell);
    if (found == nullptr) return false;
    out << kind << " " << Quoted(found->Control.GetText());
    if (!cell.Field.empty()) out << ", " << cell.Field;
    out << (cell.IsVisible ? "" : ", hidden") << (cell.State.IsAvailable ? "" : ", closed");
    if constexpr (std::is_same_v<Control, ComboBox>) {
        out << Rows(found->Control);
    } else {
        out << Sizing(*found);
    }
    out << "\n";
    return true;
}

void PrintCell(std::ostream& out, const Forms::Cell& cell, const char* indent) {
    out << indent;
    const bool isControl = PrintIf<Label>(out, cell, "label") || PrintIf<TextBox>(out, cell, "box") ||
                           PrintIf<ComboBox>(out, cell, "combo") || PrintIf<CheckBox>(out, cell, "check") ||
                           PrintIf<RadioButton>(out, cell, "radio") || PrintIf<Button>(out, cell, "button");
    if (isControl) return;
    out << "list, " << cell.Field << "\n";
}

void PrintForm(std::ostream& out, const std::string& name, AnyWindow& form) {
    out << name << ": " << String(form.GetName()).ToUtf8() << " " << Quoted(form.GetTitle()) << "\n";
    for (const auto& group : form.GetGroups()) {
        out << "  group " << Quoted(group->Box.GetText());
        if (group->Sizing.size() != 1 || group->Sizing.front() != group->Box.GetText())
            out << ", sized by" << Quoted(group->Sizing);
        out << (group->IsVisible ? "" : ", hidden") << "\n";
        for (const auto& row : group->Rows) {
            if (row->Labels.empty()) out << "    row\n";
            for (const auto& cell : row->Labels) PrintCell(out, *cell, "    ");
            for (const auto& cell : row->Cells) PrintCell(out, *cell, "      ");
        }
    }
    // What stands in no group: the buttons of its lists and those at the bottom, and what its lists hold.
    for (UI::Control* control : form.GetControls()) {
        if (const auto* list = dynamic_cast<ListBox*>(control)) {
            out << "  list";
            for (int i = 0; i < list->GetCount(); ++i) out << " " << Quoted(list->GetItemText(i));
            out << "\n";
        }
    }
    out << "  buttons";
    for (UI::Control* control : form.GetControls()) {
        if (const auto* button = dynamic_cast<Button*>(control)) out << " " << Quoted(button->GetText());
    }
    out << "\n";
}

// Opens each and prints it.
std::string PrintAll(const FormCases& cases) {
    std::ostringstream out;
    for (const auto& form : cases) {
        UI::Headless::Driver driver;
        driver.Then([&] {
            PrintForm(out, form->name, dynamic_cast<AnyWindow&>(driver.GetWindow()));
            driver.Press(UI::Key::Escape);
        });
        form->Renew();
        form->Edit();
    }
    return out.str();
}

// The window on two displays, one without any data.
std::string PrintMainWindow() {
    Display display;
    display.InstanceId = L"DISPLAY\\A\\1";
    display.CurrentData = display.EdidData = Edid(EdidFields()).GetBytes();
    std::ostringstream out;
    UI::Headless::Driver driver;
    MainWindow window({display, Display()});
    driver.Then([&] {
        PrintForm(out, "Main window", window);
        driver.Press(UI::Key::Escape);
    });
    window.Run();
    return out.str();
}

// Which forms scroll on which small screen, and which of them once they are unfolded.
std::string PrintScrollingForms() {
    std::ostringstream out;
    for (const ::Testing::SmallScreenCase& screen : ::Testing::SmallScreens) {
        PrintTo(screen, &out);
        out << "\n";
        for (const auto& form : AllForms()) {
            FormUser user;
            user.driver.GetSystem().CharacterWidth = screen.CharacterWidth;
            user.driver.GetSystem().Dpi = screen.Dpi;
            const UI::Rect& area = screen.WorkArea;
            user.driver.GetSystem().WorkArea = UI::Rect{0, 0, area.Right - area.Left, area.Bottom - area.Top};
            user.driver.Then([&] {
                const bool scrolls = user.Form().IsScrolling();
                user.ShowAll();
                if (user.Form().IsScrolling()) out << "  " << form->name << (scrolls ? "" : ", unfolded") << "\n";
                user.driver.Press(UI::Key::Escape);
            });
            form->Renew();
            form->Edit();
        }
    }
    return out.str();
}

std::string PrintForms() { return PrintMainWindow() + PrintAll(AllForms()); }
std::string PrintChoosers() { return PrintAll(AllChoosers()); }

}  // namespace

const Facts& GetFacts() {
    static const Facts facts{
        "tests/golden/forms",
        {{"choosers.txt", &PrintChoosers}, {"forms.txt", &PrintForms}, {"scrolling_forms.txt", &PrintScrollingForms}}};
    return facts;
}

}  // namespace VNT::Testing

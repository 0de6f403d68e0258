#include "ui/gallery/gallery_window.h"

using namespace UI;
using namespace UI::Controls;

namespace {

struct StateName {
    ControlState State;
    const wchar_t* Name;
};

constexpr StateName States[] = {{ControlState::Normal, L"Normal"},   {ControlState::Focused, L"Focused"},
                                {ControlState::Hot, L"Hot"},         {ControlState::HotFocused, L"Hot, focused"},
                                {ControlState::Pressed, L"Pressed"}, {ControlState::Disabled, L"Disabled"}};

constexpr int Columns = static_cast<int>(std::size(States));

}  // namespace

GalleryWindow::GalleryWindow(int dpi, Theme theme) : Window(nullptr, L"GalleryWindow", L"Vantelle gallery") {
    ApplyTheme(*this, BuildStyleTable(dpi, theme));
    const LayoutMetrics& metrics = GetStyle().Metrics;
    cellWidth = metrics.OkButtonWidth + metrics.Spacing;
    captionWidth = MeasureText(GetStyle().NormalFont, L"Check box, checked").Width + metrics.Spacing;
    y = metrics.WindowPadding.Top;
    for (int column = 0; column < Columns; ++column) {
        Add<Label>(States[column].Name)->SetRect(GetColumn(column), y, cellWidth, metrics.ControlHeight);
    }
    y += metrics.ControlHeight;
    AddSection(L"Buttons", [this] { AddButtons(); });
    AddSection(L"Check boxes and radio buttons", [this] { AddChecks(); });
    AddSection(L"Combo boxes and text boxes", [this] { AddBoxes(); });
    AddSection(L"Lists and texts of several lines", [this] { AddLists(); });
    AddGroups();
    SetClientSize(GetColumn(Columns) + metrics.WindowPadding.Right, y);
    Center();
}

int GalleryWindow::GetColumn(int index) const {
    const LayoutMetrics& metrics = GetStyle().Metrics;
    return metrics.WindowPadding.Left + metrics.Spacing + captionWidth + index * (cellWidth + metrics.Spacing);
}

template <class T, class... Arguments>
T* GalleryWindow::Add(Arguments&&... arguments) {
    auto control = std::make_unique<T>(*this, std::forward<Arguments>(arguments)...);
    T* added = control.get();
    controls.push_back(std::move(control));
    return added;
}

void GalleryWindow::AddSection(const std::wstring& caption, const std::function<void()>& fill) {
    const LayoutMetrics& metrics = GetStyle().Metrics;
    auto* group = Add<GroupBox>(caption);
    const int left = metrics.WindowPadding.Left;
    const int top = y + group->GetOverhang();
    const Padding& padding = group->GetStyle().ContentPadding;
    y = top + padding.Top;
    fill();
    group->SetRect(left, top, GetColumn(Columns) - left, y + padding.Bottom - metrics.SmallSpacing - top);
    y = group->GetBottom() + metrics.SmallSpacing;
}

void GalleryWindow::AddRow(const std::wstring& caption, int height, const Maker& make) {
    const LayoutMetrics& metrics = GetStyle().Metrics;
    Add<Label>(caption)->SetRect(metrics.WindowPadding.Left + metrics.Spacing, y, captionWidth, metrics.ControlHeight);
    for (int column = 0; column < Columns; ++column) {
        Control* control = make(States[column].State);
        if (!control) continue;
        control->SetRect(GetColumn(column), y, cellWidth, height);
    }
    y += height + metrics.SmallSpacing;
}

void GalleryWindow::AddButtons() {
    for (bool isDefault : {false, true}) {
        AddRow(isDefault ? L"Default" : L"Button", GetStyle().Metrics.OkButtonHeight, [&](ControlState state) {
            auto* button = Add<Shown<Button>>(state, L"Import...");
            // A disabled button is never the default.
            if (state != ControlState::Disabled) button->SetDefault(isDefault);
            return button;
        });
    }
}

void GalleryWindow::AddChecks() {
    const int height = GetStyle().Metrics.ControlHeight;
    for (bool checked : {false, true}) {
        const std::wstring suffix = checked ? L", checked" : L"";
        const auto finish = [checked](AnyCheckControl* control) {
            control->SetChecked(checked);
            return control;
        };
        AddRow(L"Check box" + suffix, height,
               [&](ControlState state) { return finish(Add<Shown<CheckBox>>(state, L"Interlaced")); });
        AddRow(L"Radio" + suffix, height,
               [&](ControlState state) { return finish(Add<Shown<RadioButton>>(state, L"Manual")); });
    }
}

void GalleryWindow::AddBoxes() {
    const int height = GetStyle().Metrics.ControlHeight;
    AddRow(L"Combo box", height, [this](ControlState state) {
        auto* box = Add<Shown<ComboBox>>(state);
        for (const wchar_t* item : {L"Manual", L"CVT-RB", L"GTF"}) box->AddItem(item);
        box->SetSelection(0);
        return box;
    });
    for (bool valid : {true, false}) {
        for (TextBox::Face face : {TextBox::Face::Normal, TextBox::Face::Monospace}) {
            const std::wstring caption = face == TextBox::Face::Normal ? L"Text box" : L"Monospace";
            AddRow(valid ? caption : caption + L", invalid", height, [&](ControlState state) -> Control* {
                if (state == ControlState::Pressed) return nullptr;
                auto* box = Add<Shown<TextBox>>(state, TextBox::SingleLine, face);
                box->SetText(valid ? L"2560" : L"25x60");
                box->SetValidStyle(valid);
                return box;
            });
        }
    }
}

void GalleryWindow::AddLists() {
    const LayoutMetrics& metrics = GetStyle().Metrics;
    const ListBoxStyle& listStyle = GetStyle().ListBox;
    const Padding& border = listStyle.BorderPadding;
    const int listHeight = 4 * listStyle.ItemHeight + border.Top + border.Bottom;
    AddRow(L"List", listHeight, [&](ControlState state) -> Control* {
        if (state == ControlState::Pressed) return nullptr;
        auto* list = Add<Shown<ListBox>>(state);
        list->AddItem(L"1920x1080 at 60 Hz and more");
        list->AddItem(L"Range limits");
        list->AddItem(L"FF 00 1A", GetStyle().MonospaceFont);
        list->AddItem(L"Name", GetStyle().BoldFont);
        // Some with a scroll bar, some without.
        if (state == ControlState::Normal || state == ControlState::Disabled) {
            list->AddItem(L"Serial number");
            list->AddItem(L"Standard timings");
        }
        list->SetSize(cellWidth, listHeight);
        list->SetSelection(1);
        return list;
    });
    for (bool valid : {true, false}) {
        AddRow(valid ? L"Lines" : L"Lines, invalid", 2 * metrics.ControlHeight, [&](ControlState state) -> Control* {
            if (state == ControlState::Pressed) return nullptr;
            auto* box = Add<Shown<TextBox>>(state, TextBox::MultiLine, TextBox::Face::Monospace);
            box->SetText(L"00 FF FF FF\nFF FF FF 00\n56 41 01 10");
            box->SetValidStyle(valid);
            return box;
        });
    }
}

void GalleryWindow::AddGroups() {
    const LayoutMetrics& metrics = GetStyle().Metrics;
    constexpr int groups = 4;
    const int left = metrics.WindowPadding.Left;
    const int width = (GetColumn(Columns) - left - (groups - 1) * metrics.Spacing) / groups;
    for (int i = 0; i < groups; ++i) {
        const bool enabled = i % 2 == 0;
        const bool valid = i < 2;
        auto* group = Add<GroupBox>(std::wstring(valid ? L"Group box" : L"Invalid") + (enabled ? L"" : L", disabled"));
        group->SetValidStyle(valid);
        group->SetRect(left + i * (width + metrics.Spacing), y + group->GetOverhang(), width,
                       metrics.ControlHeight + 2 * metrics.Spacing);
        group->SetEnabled(enabled);
        const Rect inside = group->GetContentRect();
        const int third = (inside.Right - inside.Left) / 3;
        int x = inside.Left;
        for (unsigned format : {Label::Left, Label::Center, Label::Right}) {
            const wchar_t* text = format == Label::Left ? L"Left" : format == Label::Center ? L"Centre" : L"Right";
            auto* label = Add<Label>(text, format);
            label->SetRect(x, inside.Top, third, metrics.ControlHeight);
            label->SetEnabled(enabled);
            x = label->GetRight();
        }
        if (i == groups - 1) y = group->GetBottom() + metrics.WindowPadding.Bottom;
    }
}

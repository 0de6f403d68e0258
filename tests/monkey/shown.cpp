#include "tests/monkey/shown.h"

#include "model/edid/edid.h"
#include "store/display_row.h"
#include "ui/headless/desktop.h"

namespace Testing {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;

namespace {

template <class T>
const T* As(const Control* control) {
    return dynamic_cast<const T*>(control);
}

// All that the user sees of a control.
std::wstring Describe(const Control& control) {
    std::wstring text = control.GetText() + L"\n";
    for (const bool state : {control.IsEnabled(), control.IsVisible(), control.IsTabStop()}) text += state ? L'1' : L'0';
    if (const auto* box = As<AnyCheckControl>(&control)) text += box->IsChecked() ? L'1' : L'0';
    if (const auto* box = As<TextBox>(&control)) text += box->HasValidStyle() ? L'1' : L'0';
    if (const auto* box = As<GroupBox>(&control)) text += box->HasValidStyle() ? L'1' : L'0';
    if (const auto* list = As<AnyItemList>(&control)) {
        text += std::to_wstring(list->GetSelection());
        for (int i = 0; i < list->GetCount(); ++i) text += L"\n" + list->GetItemText(i);
    }
    for (const int length : {control.GetX(), control.GetY(), control.GetWidth(), control.GetHeight()})
        text += L" " + std::to_wstring(length);
    return text;
}

std::vector<std::wstring> DescribeAll(const Window& window) {
    std::vector<std::wstring> all;
    for (const Control* control : window.GetControls()) all.push_back(Describe(*control));
    return all;
}

std::wstring Differ(const std::wstring& what, const std::wstring& shown, const std::wstring& read) {
    return shown == read ? std::wstring() : what + L" shows \"" + shown + L"\", not \"" + read + L"\"";
}

std::wstring ToUsable(std::initializer_list<bool> usable) {
    std::wstring text;
    for (const bool each : usable) text += each ? L'1' : L'0';
    return text;
}

// Whether the control's own text is what the user reads on it, whole.
bool IsReadWhole(const Control& control) {
    return As<Button>(&control) || As<Label>(&control) || As<AnyCheckControl>(&control) || As<GroupBox>(&control);
}

}  // namespace

MainWindowView::MainWindowView(const MainWindow& window) : window(window) {
    const GroupBox* caption = nullptr;
    for (const Control* control : window.GetControls()) {
        if (const auto* box = As<GroupBox>(control)) caption = box;
        if (!choice) choice = As<ComboBox>(control);
        if (const auto* box = As<CheckBox>(control)) established.push_back(box);
        if (const auto* list = As<ListBox>(control)) lists.push_back({caption, list, {}});
        const auto* button = As<Button>(control);
        if (button && !lists.empty() && lists.back().buttons.size() < 6) lists.back().buttons.push_back(button);
    }
}

template <class List>
std::wstring MainWindowView::FindListDifference(const ListView& view, const List& list, const SlotListLimits& limits,
                                                const ListCaptions& captions) const {
    const std::wstring caption = Forms::GetListCaption(list, limits, captions).ToWide();
    std::wstring rows;
    for (const auto& item : list) {
        String text;
        item.GetText(text);
        rows += text.ToWide() + L"\n";
    }
    if (list.IsEmpty()) rows = String(captions.emptyRow).ToWide() + L"\n";
    std::wstring shown;
    for (int i = 0; i < view.list->GetCount(); ++i) shown += view.list->GetItemText(i) + L"\n";
    const int count = list.GetCount();
    const int selected = view.list->GetSelection();
    const bool isItem = selected >= 0 && selected < count;
    const std::wstring usable = ToUsable({count < limits.slots, isItem, isItem, count > 0, isItem && selected > 0,
                                          isItem && selected < count - 1});
    std::wstring used;
    for (const Button* button : view.buttons) used += ToUsable({button->IsEnabled()});
    std::wstring found = Differ(L"a caption", view.caption->GetText(), caption);
    if (found.empty()) found = Differ(L"the list \"" + caption + L"\"", shown, rows);
    if (found.empty()) found = Differ(L"the buttons of the list \"" + caption + L"\"", used, usable);
    return found;
}

std::wstring MainWindowView::FindDisplayDifference() {
    const DisplayList& displays = window.GetDisplays();
    const auto chosen = static_cast<std::size_t>(choice->GetSelection());
    const bool isFirst = displayRows.empty();
    displayRows.resize(displays.size());
    std::wstring shown;
    std::wstring read;
    for (std::size_t i = 0; i < displays.size(); ++i) {
        if (isFirst || i == chosen) displayRows[i] = GetDisplayRow(displays[i]).ToWide();
        read += displayRows[i] + L"\n";
    }
    for (int i = 0; i < choice->GetCount(); ++i) shown += choice->GetItemText(i) + L"\n";
    return Differ(L"the displays' list", shown, read);
}

std::wstring MainWindowView::FindDifference() {
    const DisplayList& displays = window.GetDisplays();
    const auto chosen = static_cast<std::size_t>(choice->GetSelection());
    if (chosen >= displays.size()) return L"no display is chosen";
    Edid edid;
    edid.Read(displays[chosen].CurrentData);
    const EdidLimits limits = edid.GetAllLimits();
    std::wstring found = FindDisplayDifference();
    for (std::size_t i = 0; i < established.size(); ++i) {
        const auto flag = static_cast<EdidEstablishedResolutionFlagEnum::Enum>(i);
        if (established[i]->IsChecked() != edid.established.Test(flag) && found.empty())
            found = L"the established resolution \"" + established[i]->GetText() + L"\" is not that of the bytes";
    }
    if (found.empty())
        found = FindListDifference(lists[0], edid.descriptors, limits.descriptors, DescriptorCaptions);
    if (found.empty()) {
        found = FindListDifference(lists[1], edid.standardResolutions, limits.standardResolutions,
                                   StandardResolutionCaptions);
    }
    if (found.empty())
        found = FindListDifference(lists[2], edid.extensionBlocks, limits.extensionBlocks, ExtensionBlockCaptions);
    return found;
}

std::wstring FindRestless(AnyWindow& window) {
    const std::vector<std::wstring> before = DescribeAll(window);
    window.Update();
    const std::vector<std::wstring> after = DescribeAll(window);
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != after[i]) return L"a refresh turns \"" + before[i] + L"\" into \"" + after[i] + L"\"";
    }
    return {};
}

std::wstring FindUnseen(const Window& window) {
    for (const Control* control : window.GetControls()) {
        if (!control->IsVisible()) continue;
        const std::wstring name = L"\"" + control->GetText() + L"\"";
        const bool isInside = control->GetX() >= 0 && control->GetY() >= 0 &&
                              control->GetRight() <= window.GetClientWidth() &&
                              control->GetBottom() <= window.GetClientHeight();
        if (!isInside) return name + L" stands outside its window";
        if (!IsReadWhole(*control)) continue;
        if (control->Measure(control->GetText()).Width > control->GetWidth()) return name + L" is cut off";
        const auto& drawn = control->GetHandle()->Drawn;
        if (!drawn) return name + L" was never drawn";
        if (drawn->Caption != control->GetText()) return name + L" is drawn as \"" + drawn->Caption + L"\"";
    }
    return {};
}

}  // namespace Testing

#include "tests/monkey/shown.h"

#include <algorithm>
#include <functional>
#include <string_view>

#include "model/edid/edid.h"
#include "store/display_row.h"
#include "tests/support/window_layout.h"

namespace Testing {

using namespace VNT;
using namespace VNT::Testing;
using namespace UI;
using namespace UI::Controls;

namespace {

template <class T>
const T* As(const Control* control) {
    return dynamic_cast<const T*>(control);
}

// A number that stands for all that the user sees of a control, or for part of it.
class Digest {
public:
    Digest() = default;
    explicit Digest(const Control& control) {
        // Where something stands that nobody sees, and what would be on it, is nothing.
        if (!control.IsVisible()) return;
        Add(control.GetText());
        AddPlace(control);
        for (const bool state : {control.IsEnabled(), control.IsTabStop()}) Add(state);
        AddOwn(control);
    }
    void Add(int number) { sum = sum * 31 + static_cast<std::size_t>(number); }
    void Add(std::wstring_view text) { sum = sum * 31 + std::hash<std::wstring_view>()(text); }
    // In what scrolls, as if it did not.
    void AddPlace(const Control& control) {
        const int y = control.GetY() + (control.GetView() ? control.GetWindow().GetScrollPosition() : 0);
        for (const int part : {control.GetX(), y, control.GetWidth(), control.GetHeight()}) Add(part);
    }
    std::size_t Get() const { return sum; }

private:
    void AddOwn(const Control& control) {
        switch (control.GetKind()) {
            case ControlKind::Edit:
                return Add(static_cast<const TextBox&>(control).HasValidStyle());
            case ControlKind::ListBox:
            case ControlKind::ComboBox:
                return AddItems(static_cast<const AnyItemList&>(control));
            case ControlKind::Button:
                if (const auto* box = As<AnyCheckControl>(&control)) Add(box->IsChecked());
                return;
            case ControlKind::Static:
                if (const auto* box = As<GroupBox>(&control)) Add(box->HasValidStyle());
        }
    }
    void AddItems(const AnyItemList& list) {
        Add(list.GetSelection());
        for (int i = 0; i < list.GetCount(); ++i) Add(list.GetItemText(i));
    }

    std::size_t sum = 0;
};

std::wstring Differ(const std::wstring& what, const std::wstring& shown, const std::wstring& read) {
    return what + L" shows \"" + shown + L"\", not \"" + read + L"\"";
}

std::wstring FindRowDifference(const AnyItemList& list, const std::vector<std::wstring>& rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::wstring& shown = list.GetItemText(static_cast<int>(i));
        if (shown != rows[i]) return Differ(L"row " + std::to_wstring(i), shown, rows[i]);
    }
    return list.GetCount() == static_cast<int>(rows.size()) ? std::wstring() : L"a list has rows too many";
}

// The bytes don't tell how many of the unused slots behind the last item are listed.
template <class List>
void AddUnused(List& read, const typename List::ItemType& unused, const ListBox& shown, const SlotListLimits& limits) {
    String text;
    unused.GetText(text);
    const int most = std::min(shown.GetCount(), limits.slots);
    while (read.GetCount() < most && shown.GetItemText(read.GetCount()) == text.ToWide()) read.Add(unused);
}

}  // namespace

MainWindowView::MainWindowView(const MainWindow& window) : window(window) {
    const GroupBox* caption = nullptr;
    for (const Control* control : window.GetControls()) {
        if (const auto* box = As<GroupBox>(control)) caption = box;
        if (!choice) choice = As<ComboBox>(control);
        if (const auto* box = As<CheckBox>(control)) established.push_back(box);
        if (const auto* list = As<ListBox>(control)) {
            lists.emplace_back();
            lists.back().caption = caption;
            lists.back().list = list;
        }
        const auto* button = As<Button>(control);
        if (button && !lists.empty() && lists.back().buttons.size() < 6) lists.back().buttons.push_back(button);
    }
    for (const Display& display : window.GetDisplays()) displayRows.push_back(GetDisplayRow(display).ToWide());
}

template <class List>
void MainWindowView::ReadList(ListView& view, const List& list, const SlotListLimits& limits,
                              const ListCaptions& captions) {
    view.count = list.GetCount();
    view.hasRoom = view.count < limits.slots;
    view.captionText = Forms::GetListCaption(list, limits, captions).ToWide();
    view.rows.clear();
    for (const auto& item : list) {
        String text;
        item.GetText(text);
        view.rows.push_back(text.ToWide());
    }
    if (list.IsEmpty()) view.rows.push_back(String(captions.emptyRow).ToWide());
}

int MainWindowView::CountRows() const {
    int rows = 0;
    for (const ListView& view : lists) rows += view.list->GetCount();
    return rows;
}

void MainWindowView::Read(std::size_t chosen) {
    const Display& display = window.GetDisplays()[chosen];
    const int rows = CountRows();
    if (chosen == lastChosen && rows == lastRows && display.CurrentData == lastBytes) return;
    lastChosen = chosen;
    lastRows = rows;
    lastBytes = display.CurrentData;
    displayRows[chosen] = GetDisplayRow(display).ToWide();
    Edid edid;
    edid.Read(lastBytes);
    lastEstablished = edid.established;
    const EdidLimits limits = edid.GetAllLimits();
    AddUnused(edid.descriptors, EdidDescriptor(EdidEmptyDescriptor().Clone()), *lists[0].list, limits.descriptors);
    AddUnused(edid.standardResolutions, EdidStandardResolution(), *lists[1].list, limits.standardResolutions);
    ReadList(lists[0], edid.descriptors, limits.descriptors, DescriptorCaptions);
    ReadList(lists[1], edid.standardResolutions, limits.standardResolutions, StandardResolutionCaptions);
    ReadList(lists[2], edid.extensionBlocks, limits.extensionBlocks, ExtensionBlockCaptions);
}

std::wstring MainWindowView::FindDifference(const ListView& view) {
    if (view.caption->GetText() != view.captionText)
        return Differ(L"a caption", view.caption->GetText(), view.captionText);
    if (const std::wstring found = FindRowDifference(*view.list, view.rows); !found.empty()) return found;
    const int selected = view.list->GetSelection();
    const bool isItem = selected >= 0 && selected < view.count;
    const bool usable[] = {
        view.hasRoom, isItem, isItem, view.count > 0, isItem && selected > 0, isItem && selected < view.count - 1};
    for (std::size_t i = 0; i < view.buttons.size(); ++i) {
        if (view.buttons[i]->IsEnabled() != usable[i])
            return L"\"" + view.buttons[i]->GetText() + L"\" of \"" + view.captionText +
                   L"\" is wrongly enabled or not";
    }
    return {};
}

std::wstring MainWindowView::FindDifference() {
    const auto chosen = static_cast<std::size_t>(choice->GetSelection());
    if (chosen >= window.GetDisplays().size()) return L"no display is chosen";
    Read(chosen);
    if (const std::wstring found = FindRowDifference(*choice, displayRows); !found.empty()) return found;
    for (std::size_t i = 0; i < established.size(); ++i) {
        const auto flag = static_cast<EdidEstablishedResolutionFlagEnum::Enum>(i);
        if (established[i]->IsChecked() != lastEstablished.Test(flag))
            return L"\"" + established[i]->GetText() + L"\" is not that of the bytes";
    }
    for (const ListView& view : lists) {
        if (const std::wstring found = FindDifference(view); !found.empty()) return found;
    }
    return {};
}

std::vector<std::size_t> DigestAll(const Window& window) {
    std::vector<std::size_t> all;
    all.reserve(window.GetControls().size());
    for (const Control* control : window.GetControls()) all.push_back(Digest(*control).Get());
    return all;
}

std::wstring FindChanged(const Window& window, const std::vector<std::size_t>& before) {
    const std::vector<Control*>& controls = window.GetControls();
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] != Digest(*controls[i]).Get())
            return L" changes control " + std::to_wstring(i) + L", now \"" + controls[i]->GetText() + L"\"";
    }
    return {};
}

std::wstring FindRestless(AnyWindow& window) {
    const std::vector<std::size_t> before = DigestAll(window);
    window.Update();
    const std::wstring changed = FindChanged(window, before);
    return changed.empty() ? changed : L"a refresh" + changed;
}

std::size_t GetLayoutDigest(const Window& window) {
    Digest digest;
    for (const Control* control : window.GetControls()) {
        digest.AddPlace(*control);
        digest.Add(control->IsVisible());
        // What has been seen whole in this place once need not be measured again.
        if (IsRead(*control)) digest.Add(control->GetText());
    }
    return digest.Get();
}

}  // namespace Testing

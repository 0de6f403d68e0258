#include "ui/win32/accessible.h"

#include <atomic>
#include <oleacc.h>
#include <oleauto.h>
#include <utility>

#include "ui/win32/system.h"

namespace UI {

namespace Win32 {

namespace {

using namespace Controls;

bool hasJoined = false;  // the object library, by `AnswerReader`

long GetRole(const Control& control) {
    if (dynamic_cast<const CheckBox*>(&control)) return ROLE_SYSTEM_CHECKBUTTON;
    if (dynamic_cast<const RadioButton*>(&control)) return ROLE_SYSTEM_RADIOBUTTON;
    if (dynamic_cast<const GroupBox*>(&control)) return ROLE_SYSTEM_GROUPING;
    switch (control.GetKind()) {
        case ControlKind::Button:
            return ROLE_SYSTEM_PUSHBUTTON;
        case ControlKind::ComboBox:
            return ROLE_SYSTEM_COMBOBOX;
        case ControlKind::Edit:
            return ROLE_SYSTEM_TEXT;
        case ControlKind::ListBox:
            return ROLE_SYSTEM_LIST;
        case ControlKind::Static:
            break;
    }
    // What has no text is an edge of a group box.
    return dynamic_cast<const Label*>(&control) ? ROLE_SYSTEM_STATICTEXT : ROLE_SYSTEM_BORDER;
}

long GetState(const Control& control) {
    long state = 0;
    const auto add = [&state](bool applies, long flag) { state += applies ? flag : 0; };
    const auto* check = dynamic_cast<const AnyCheckControl*>(&control);
    const auto* button = dynamic_cast<const Button*>(&control);
    const auto* combo = dynamic_cast<const ComboBox*>(&control);
    const bool takesFocus = control.GetKind() != ControlKind::Static;
    add(!control.IsEnabled(), STATE_SYSTEM_UNAVAILABLE);
    add(!control.IsVisible(), STATE_SYSTEM_INVISIBLE);
    add(takesFocus && control.IsEnabled(), STATE_SYSTEM_FOCUSABLE);
    add(control.HasFocus(), STATE_SYSTEM_FOCUSED);
    add(check && check->IsChecked(), STATE_SYSTEM_CHECKED);
    add(button && button->IsDefault(), STATE_SYSTEM_DEFAULT);
    add(combo, STATE_SYSTEM_HASPOPUP);
    add(combo, combo && combo->IsDroppedDown() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    add(!takesFocus, STATE_SYSTEM_READONLY);
    return state;
}

const wchar_t* GetAction(const Control& control) {
    if (!control.IsEnabled()) return L"";
    if (const auto* check = dynamic_cast<const CheckBox*>(&control)) return check->IsChecked() ? L"Uncheck" : L"Check";
    if (dynamic_cast<const RadioButton*>(&control)) return L"Check";
    if (control.GetKind() == ControlKind::Button) return L"Press";
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return combo->IsDroppedDown() ? L"Close" : L"Open";
    return L"";
}

// The rows of a list are its children, and have numbers instead of objects. The system's own object knows the way to
// the neighbours.
class Accessible final : public IAccessible, public IOleWindow {
public:
    // Takes the reference on the system's own object.
    Accessible(HWND window, IAccessible* system) : window(window), system(system) {}
    Accessible(const Accessible&) = delete;
    Accessible& operator=(const Accessible&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible)
            *object = static_cast<IAccessible*>(this);
        else if (id == IID_IOleWindow)
            *object = static_cast<IOleWindow*>(this);
        else
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* found) override {
        if (!found) return E_POINTER;
        *found = window;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }

    // Readers call the functions below directly.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override { return system->get_accParent(parent); }

    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return Answer([&](const Control& control) {
            if (const auto* list = dynamic_cast<const ListBox*>(&control)) *count = list->GetCount();
            return S_OK;
        });
    }

    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        return AnswerOf(child, [](const Control&, int) { return S_FALSE; });
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
        return Tell(
            child, name, [](const Control& control) { return control.GetName(); },
            [](const ListBox& list, int row) { return list.GetItemText(row); });
    }

    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
        return Tell(
            child, value,
            [](const Control& control) {
                const auto* combo = dynamic_cast<const ComboBox*>(&control);
                if (combo) return combo->GetItemText(combo->GetSelection());
                return control.GetKind() == ControlKind::Edit ? control.GetText() : std::wstring();
            },
            [](const ListBox&, int) { return std::wstring(); });
    }

    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override {
        return Tell(
            child, description, [](const Control& control) { return control.GetHint(); },
            [](const ListBox&, int) { return std::wstring(); });
    }

    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
        return Count(child, role, GetRole, [](const ListBox&, int) -> long { return ROLE_SYSTEM_LISTITEM; });
    }

    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
        return Count(child, state, GetState, [](const ListBox& list, int row) {
            long flags = 0;
            const auto add = [&flags](bool applies, long flag) { flags += applies ? flag : 0; };
            const bool isSelected = list.GetSelection() == row;
            add(list.IsEnabled(), STATE_SYSTEM_SELECTABLE + STATE_SYSTEM_FOCUSABLE);
            add(!list.IsEnabled(), STATE_SYSTEM_UNAVAILABLE);
            add(isSelected, STATE_SYSTEM_SELECTED);
            add(isSelected && list.HasFocus(), STATE_SYSTEM_FOCUSED);
            return flags;
        });
    }

    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* help) override { return TellNothing(help); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT, LONG*) override { return TellNothing(file); }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT, BSTR* keys) override { return TellNothing(keys); }

    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
        if (!child) return E_POINTER;
        VariantInit(child);
        return Answer([&](const Control& control) {
            if (!control.HasFocus()) return S_FALSE;
            const auto* list = dynamic_cast<const ListBox*>(&control);
            return Set(*child, list ? list->GetSelection() + 1 : CHILDID_SELF);
        });
    }

    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* child) override {
        if (!child) return E_POINTER;
        VariantInit(child);
        return Answer([&](const Control& control) {
            const auto* list = dynamic_cast<const ListBox*>(&control);
            if (!list || list->GetSelection() == ListBox::NoSelection) return S_FALSE;
            return Set(*child, list->GetSelection() + 1);
        });
    }

    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override {
        return Tell(
            child, action, [](const Control& control) { return std::wstring(GetAction(control)); },
            [](const ListBox& list, int) { return std::wstring(list.IsEnabled() ? L"Select" : L""); });
    }

    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) override {
        return AnswerOf(child, [&](const Control& control, int row) -> HRESULT {
            const auto wanted = static_cast<unsigned>(flags);
            if (!control.IsEnabled() || !control.IsVisible()) return S_FALSE;
            if (HasFlag(wanted, SELFLAG_TAKEFOCUS)) ::SetFocus(window);
            if (row >= 0 && HasFlag(wanted, SELFLAG_TAKESELECTION)) SelectRow(row);
            return S_OK;
        });
    }

    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override {
        if (!left || !top || !width || !height) return E_POINTER;
        return AnswerOf(child, [&](const Control&, int row) -> HRESULT {
            RECT place{};
            if (row < 0) {
                GetWindowRect(window, &place);
            } else {
                SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
                MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
            }
            *left = place.left;
            *top = place.top;
            *width = place.right - place.left;
            *height = place.bottom - place.top;
            return S_OK;
        });
    }

    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT from, VARIANT* to) override {
        if (!to) return E_POINTER;
        VariantInit(to);
        return AnswerOf(from, [&](const Control& control, int row) -> HRESULT {
            const auto* list = dynamic_cast<const ListBox*>(&control);
            const bool goesInside = direction == NAVDIR_FIRSTCHILD || direction == NAVDIR_LASTCHILD;
            if (row < 0 && !goesInside) return system->accNavigate(direction, from, to);
            if (!list) return S_FALSE;
            int next = -1;
            if (row < 0) next = direction == NAVDIR_FIRSTCHILD ? 0 : list->GetCount() - 1;
            if (row >= 0 && (direction == NAVDIR_NEXT || direction == NAVDIR_DOWN)) next = row + 1;
            if (row >= 0 && (direction == NAVDIR_PREVIOUS || direction == NAVDIR_UP)) next = row - 1;
            if (next < 0 || next >= list->GetCount()) return S_FALSE;
            return Set(*to, next + 1);
        });
    }

    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) override {
        if (!child) return E_POINTER;
        VariantInit(child);
        return Answer([&](const Control& control) -> HRESULT {
            RECT place{};
            GetWindowRect(window, &place);
            if (!PtInRect(&place, {x, y})) return S_FALSE;
            if (!dynamic_cast<const ListBox*>(&control)) return Set(*child, CHILDID_SELF);
            POINT at{x, y};
            ScreenToClient(window, &at);
            const LRESULT found = SendMessageW(window, LB_ITEMFROMPOINT, 0, MAKELPARAM(at.x, at.y));
            return Set(*child, HIWORD(found) == 0 ? LOWORD(found) + 1 : CHILDID_SELF);
        });
    }

    // Only posted: what it opens may stay open for long.
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override {
        return AnswerOf(child, [&](const Control& control, int row) -> HRESULT {
            if (!control.IsEnabled() || !control.IsVisible()) return DISP_E_MEMBERNOTFOUND;
            if (row >= 0) {
                SelectRow(row);
            } else if (control.GetKind() == ControlKind::Button) {
                PostMessageW(window, BM_CLICK, 0, 0);
            } else if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
                PostMessageW(window, CB_SHOWDROPDOWN, !combo->IsDroppedDown(), 0);
            } else {
                return DISP_E_MEMBERNOTFOUND;
            }
            return S_OK;
        });
    }

    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
        return AnswerOf(child, [&](const Control& control, int) -> HRESULT {
            if (control.GetKind() != ControlKind::Edit || !control.IsEnabled()) return DISP_E_MEMBERNOTFOUND;
            // The edit tells its window, as of what is typed.
            return SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(value ? value : L"")) ? S_OK : E_FAIL;
        });
    }

private:
    ~Accessible() { system->Release(); }

    // Objects outlive their windows, and no C++ exception may reach who calls.
    template <class Function>
    HRESULT Answer(Function function) const {
        const Control* control = Native::FindControl(ToHandle(window));
        if (!control) return CO_E_OBJNOTCONNECTED;
        try {
            return function(*control);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
    }

    // Of the control itself, with -1, or of a row.
    template <class Function>
    HRESULT AnswerOf(const VARIANT& child, Function function) const {
        return Answer([&](const Control& control) -> HRESULT {
            if (child.vt != VT_I4) return E_INVALIDARG;
            const auto* list = dynamic_cast<const ListBox*>(&control);
            if (child.lVal < CHILDID_SELF || child.lVal > (list ? list->GetCount() : CHILDID_SELF)) return E_INVALIDARG;
            return function(control, static_cast<int>(child.lVal) - 1);
        });
    }

    template <class OfControl, class OfRow>
    HRESULT Tell(const VARIANT& child, BSTR* out, OfControl ofControl, OfRow ofRow) const {
        if (!out) return E_POINTER;
        *out = nullptr;
        return AnswerOf(child, [&](const Control& control, int row) -> HRESULT {
            const std::wstring text = row < 0 ? ofControl(control) : ofRow(static_cast<const ListBox&>(control), row);
            if (text.empty()) return S_FALSE;
            *out = SysAllocStringLen(text.c_str(), static_cast<UINT>(text.size()));
            return *out ? S_OK : E_OUTOFMEMORY;
        });
    }

    template <class OfControl, class OfRow>
    HRESULT Count(const VARIANT& child, VARIANT* out, OfControl ofControl, OfRow ofRow) const {
        if (!out) return E_POINTER;
        VariantInit(out);
        return AnswerOf(child, [&](const Control& control, int row) {
            return Set(*out, row < 0 ? ofControl(control) : ofRow(static_cast<const ListBox&>(control), row));
        });
    }

    static HRESULT TellNothing(BSTR* text) {
        if (!text) return E_POINTER;
        *text = nullptr;
        return S_FALSE;
    }

    static HRESULT Set(VARIANT& variant, long number) {
        variant.vt = VT_I4;
        variant.lVal = number;
        return S_OK;
    }

    // As the user does.
    void SelectRow(int row) const {
        SendMessageW(window, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        PostMessageW(GetParent(window), WM_COMMAND, MAKEWPARAM(0, LBN_SELCHANGE), reinterpret_cast<LPARAM>(window));
    }

    LiveResource live{Resource::SystemObject};
    std::atomic<ULONG> references = 1;
    HWND window;
    IAccessible* system;
};

}  // namespace

LRESULT AnswerReader(const Control& control, WPARAM wParam, LPARAM lParam) {
    if (static_cast<LONG>(lParam) != OBJID_CLIENT) return 0;
    const Oleacc& oleacc = GetOleacc();
    if (!oleacc.CreateStdAccessibleObject || !oleacc.LresultFromObject) return 0;
    if (!hasJoined) hasJoined = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    if (!hasJoined) return 0;
    HWND window = ToWindow(control.GetHandle());
    void* system = nullptr;
    if (FAILED(oleacc.CreateStdAccessibleObject(window, OBJID_CLIENT, IID_IAccessible, &system))) return 0;
    auto* object = new Accessible(window, static_cast<IAccessible*>(system));
    const LRESULT answer = oleacc.LresultFromObject(IID_IAccessible, wParam, static_cast<IAccessible*>(object));
    object->Release();
    return answer > 0 ? answer : 0;
}

void DismissReaders() {
    if (std::exchange(hasJoined, false)) CoUninitialize();
}

}  // namespace Win32

void Native::Announce(const Control& control, Change change) {
    using namespace Win32;
    HWND window = ToWindow(control.GetHandle());
    const auto tell = [window](DWORD event, LONG child = CHILDID_SELF) {
        NotifyWinEvent(event, window, OBJID_CLIENT, child);
    };
    switch (change) {
        case Change::Name:
            return tell(EVENT_OBJECT_NAMECHANGE);
        case Change::Hint:
            ShowNewHint(control);
            return tell(EVENT_OBJECT_DESCRIPTIONCHANGE);
        case Change::State:
            return tell(EVENT_OBJECT_STATECHANGE);
        case Change::Value:
            return tell(EVENT_OBJECT_VALUECHANGE);
        case Change::Selection:
            return tell(EVENT_OBJECT_SELECTION, static_cast<const Controls::ListBox&>(control).GetSelection() + 1);
    }
}

}  // namespace UI

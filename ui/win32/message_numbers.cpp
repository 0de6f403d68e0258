// The numbers of `ui/message.h` and of the creation styles are those of the system.
#include "ui/message.h"
#include "ui/win32/platform.h"

namespace UI {

using namespace Controls;

static_assert(Message::Destroy == WM_DESTROY && Message::SetFocus == WM_SETFOCUS && Message::KillFocus == WM_KILLFOCUS);
static_assert(Message::SetText == WM_SETTEXT && Message::Paint == WM_PAINT && Message::Close == WM_CLOSE);
static_assert(Message::GetMinMaxInfo == WM_GETMINMAXINFO && Message::DrawItem == WM_DRAWITEM);
static_assert(Message::WindowPosChanged == WM_WINDOWPOSCHANGED && Message::GetDialogCode == WM_GETDLGCODE);
static_assert(Message::SystemColorsChanged == WM_SYSCOLORCHANGE && Message::SettingsChanged == WM_SETTINGCHANGE);
static_assert(Message::ThemeChanged == WM_THEMECHANGED);
static_assert(Message::KeyDown == WM_KEYDOWN && Message::KeyUp == WM_KEYUP && Message::Char == WM_CHAR);
static_assert(Message::Command == WM_COMMAND && Message::User == WM_USER && Message::DpiChanged == WM_DPICHANGED);
static_assert(Message::ColorEdit == WM_CTLCOLOREDIT && Message::ColorListBox == WM_CTLCOLORLISTBOX);
static_assert(Message::ColorButton == WM_CTLCOLORBTN && Message::ColorStatic == WM_CTLCOLORSTATIC);
static_assert(Message::MouseMove == WM_MOUSEMOVE && Message::MouseLeave == WM_MOUSELEAVE);
static_assert(Message::LeftButtonDown == WM_LBUTTONDOWN && Message::LeftButtonUp == WM_LBUTTONUP);
static_assert(Message::LeftButtonDoubleClick == WM_LBUTTONDBLCLK);

constexpr bool Is(Key key, int code) { return static_cast<int>(key) == code; }
static_assert(Is(Key::Back, VK_BACK) && Is(Key::Tab, VK_TAB) && Is(Key::Return, VK_RETURN));
static_assert(Is(Key::Escape, VK_ESCAPE) && Is(Key::Space, VK_SPACE) && Is(Key::PageUp, VK_PRIOR));
static_assert(Is(Key::PageDown, VK_NEXT) && Is(Key::End, VK_END) && Is(Key::Home, VK_HOME));
static_assert(Is(Key::Left, VK_LEFT) && Is(Key::Up, VK_UP) && Is(Key::Right, VK_RIGHT) && Is(Key::Down, VK_DOWN));
static_assert(Is(Key::Delete, VK_DELETE) && Is(Key::F4, VK_F4));

static_assert(DialogCode::WantArrows == DLGC_WANTARROWS && DialogCode::WantTab == DLGC_WANTTAB);
static_assert(DialogCode::WantAllKeys == DLGC_WANTALLKEYS && DialogCode::WantChars == DLGC_WANTCHARS);
static_assert(IdOk == IDOK && IdCancel == IDCANCEL);
static_assert(static_cast<unsigned>(MessageKind::Error) == MB_ICONERROR);

static_assert(Window::DefaultStyle == (WS_CAPTION | WS_SYSMENU) && Window::DialogFrame == WS_EX_DLGMODALFRAME);
static_assert(Button::CreationStyle == (BS_OWNERDRAW | WS_TABSTOP) && CheckBox::CreationStyle == Button::CreationStyle);
static_assert(RadioButton::CreationStyle == BS_OWNERDRAW);
static_assert(ComboBox::CreationStyle == (WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED));
static_assert(GroupBox::CreationStyle == SS_OWNERDRAW && Label::CreationStyle == SS_OWNERDRAW);
static_assert(ListBox::CreationStyle ==
              (WS_VSCROLL | WS_TABSTOP | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT));
static_assert(TextBox::SingleLine == (WS_TABSTOP | ES_AUTOHSCROLL));
static_assert(TextBox::MultiLine == (WS_VSCROLL | WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN));

static_assert(Button::Clicked == BN_CLICKED && AnyCheckControl::Clicked == BN_CLICKED);
static_assert(AnyItemList::SelectionChanged == LBN_SELCHANGE && AnyItemList::SelectionChanged == CBN_SELCHANGE);
static_assert(Native::DroppedDown == CBN_DROPDOWN && ComboBox::Closed == CBN_CLOSEUP);
static_assert(ListBox::DoubleClicked == LBN_DBLCLK && AnyItemList::NoSelection == LB_ERR);
static_assert(TextBox::Changed == EN_CHANGE && TextBox::FocusLost == EN_KILLFOCUS);
static_assert(Label::Left == (DT_LEFT | DT_VCENTER | DT_SINGLELINE) && Label::Center == (Label::Left | DT_CENTER));
static_assert(Label::Right == (Label::Left | DT_RIGHT));

static_assert(static_cast<int>(SystemColor::Window) == COLOR_WINDOW);
static_assert(static_cast<int>(SystemColor::WindowText) == COLOR_WINDOWTEXT);
static_assert(static_cast<int>(SystemColor::Highlight) == COLOR_HIGHLIGHT);
static_assert(static_cast<int>(SystemColor::HighlightText) == COLOR_HIGHLIGHTTEXT);
static_assert(static_cast<int>(SystemColor::ButtonFace) == COLOR_BTNFACE);
static_assert(static_cast<int>(SystemColor::GrayText) == COLOR_GRAYTEXT);
static_assert(static_cast<int>(SystemColor::ButtonText) == COLOR_BTNTEXT);
static_assert(static_cast<int>(SystemColor::HotLight) == COLOR_HOTLIGHT);

}  // namespace UI

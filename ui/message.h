// The numbers that keys, messages, notifications and commands travel under. They are those of the platform, so that no
// backend translates them; `ui/win32` asserts each of them against its own headers.
#pragma once

#include "ui/types.h"

namespace UI {

namespace Message {
constexpr int Destroy = 0x02;
constexpr int SetFocus = 0x07;
constexpr int KillFocus = 0x08;
constexpr int SetText = 0x0C;
constexpr int Paint = 0x0F;
constexpr int Close = 0x10;
constexpr int SystemColorsChanged = 0x15;
constexpr int SettingsChanged = 0x1A;
constexpr int GetMinMaxInfo = 0x24;
constexpr int DrawItem = 0x2B;
constexpr int WindowPosChanged = 0x47;
constexpr int GetDialogCode = 0x87;
constexpr int KeyDown = 0x100;
constexpr int KeyUp = 0x101;
constexpr int Char = 0x102;
constexpr int Command = 0x111;
constexpr int ColorEdit = 0x133;
constexpr int ColorListBox = 0x134;
constexpr int ColorButton = 0x135;
constexpr int ColorStatic = 0x138;
constexpr int MouseMove = 0x200;
constexpr int LeftButtonDown = 0x201;
constexpr int LeftButtonUp = 0x202;
constexpr int LeftButtonDoubleClick = 0x203;
constexpr int MouseLeave = 0x2A3;
constexpr int DpiChanged = 0x2E0;
constexpr int ThemeChanged = 0x31A;
constexpr int User = 0x400;  // first number that no system message has
}  // namespace Message

// First parameter of `KeyDown`, `KeyUp` and `GetDialogCode`.
enum class Key : int {
    Back = 0x08,
    Tab = 0x09,
    Return = 0x0D,
    Escape = 0x1B,
    Space = 0x20,
    PageUp = 0x21,
    PageDown = 0x22,
    End = 0x23,
    Home = 0x24,
    Left = 0x25,
    Up = 0x26,
    Right = 0x27,
    Down = 0x28,
    Delete = 0x2E,
    F4 = 0x73,
};

// Whether a `KeyDown` with this second parameter comes of a key that was down already.
constexpr bool IsHeld(LParam lParam) {
    constexpr unsigned wasDown = 0x40000000;
    return HasFlag(static_cast<unsigned>(lParam), wasDown);
}

// Answers to `GetDialogCode`: which keys the control wants for itself.
namespace DialogCode {
constexpr int WantArrows = 0x01;
constexpr int WantTab = 0x02;
constexpr int WantAllKeys = 0x04;
constexpr int WantChars = 0x80;
}  // namespace DialogCode

// The modal results, and the command IDs that Enter and Esc give.
constexpr int IdOk = 1;
constexpr int IdCancel = 2;

}  // namespace UI

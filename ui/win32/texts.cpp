// Texts of windows and edits. The system's edit ends its lines with "\r\n", the interface with "\n".
#include <algorithm>

#include "ui/message.h"
#include "ui/win32/platform.h"

namespace UI {

std::wstring Win32::ReadSystemText(Handle handle) {
    std::wstring text(static_cast<std::size_t>(Tell(handle, WM_GETTEXTLENGTH)), L'\0');
    const auto length = Tell(handle, WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

namespace Native {

using namespace Win32;

namespace {

bool HasLines(Handle handle) {
    const auto* box = dynamic_cast<Controls::TextBox*>(FindControl(handle));
    return box && box->IsMultiLine();
}

std::wstring ToSystemLines(const std::wstring& text) {
    std::wstring lines;
    for (wchar_t c : text) {
        if (c == L'\n') lines += L'\r';
        lines += c;
    }
    return lines;
}

std::wstring FromSystemLines(std::wstring text) {
    std::erase(text, L'\r');
    return text;
}

// From a position in the interface's text to the same one in the system's, and back.
int ToSystemPosition(Handle handle, int position) {
    if (position <= 0 || !HasLines(handle)) return position;
    const std::wstring text = FromSystemLines(ReadSystemText(handle));
    const auto end = text.begin() + std::min<std::ptrdiff_t>(position, std::ssize(text));
    return position + static_cast<int>(std::count(text.begin(), end, L'\n'));
}

int FromSystemPosition(Handle handle, int position) {
    if (!HasLines(handle)) return position;
    const std::wstring text = ReadSystemText(handle);
    const auto end = text.begin() + std::min<std::ptrdiff_t>(position, std::ssize(text));
    return position - static_cast<int>(std::count(text.begin(), end, L'\r'));
}

}  // namespace

bool SetText(Handle handle, const std::wstring& text) {
    const auto set = [handle](const std::wstring& lines) {
        return Tell(handle, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(lines.c_str())) == 1;
    };
    return HasLines(handle) ? set(ToSystemLines(text)) : set(text);
}

std::wstring GetText(Handle handle) {
    return HasLines(handle) ? FromSystemLines(ReadSystemText(handle)) : ReadSystemText(handle);
}

void SetLimit(Handle handle, int characters) { Tell(handle, EM_SETLIMITTEXT, static_cast<WPARAM>(characters)); }

void Select(Handle handle, int begin, int end) {
    Tell(handle, EM_SETSEL, static_cast<WPARAM>(ToSystemPosition(handle, begin)), ToSystemPosition(handle, end));
}

void GetSelection(Handle handle, int& begin, int& end) {
    DWORD first = 0;
    DWORD last = 0;
    Tell(handle, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    begin = FromSystemPosition(handle, static_cast<int>(first));
    end = FromSystemPosition(handle, static_cast<int>(last));
}

void ResetTextMargins(Handle handle) {
    Tell(handle, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
    Tell(handle, EM_SETRECTNP, 0, 0);
}

}  // namespace Native

}  // namespace UI

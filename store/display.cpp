#include "store/display.h"

#include <algorithm>

namespace VNT {

bool Display::SetData(const Bytes& bytes) {
    if (bytes.Size() % EdidBlockSize != 0) return false;
    if (bytes == CurrentData) return true;
    CurrentData = bytes;
    Saved = false;
    return true;
}

bool DisplayList::Replace(const Display& display) {
    const auto found =
        std::find_if(begin(), end(), [&](const Display& other) { return other.InstanceId == display.InstanceId; });
    if (found == end()) return false;
    *found = display;
    return true;
}

std::wstring UpperAscii(std::wstring text) {
    for (wchar_t& c : text) {
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
    }
    return text;
}

}  // namespace VNT

#include "ui/win32/dc.h"

namespace UI::Win32 {

DC::DC(HDC dc, const wchar_t* failure) : dc(dc) {
    if (!dc) throw failure;
    saved = SaveDC(dc) != 0;
}

HDC DC::Restore() {
    if (saved) RestoreDC(dc, -1);
    return dc;
}

}  // namespace UI::Win32

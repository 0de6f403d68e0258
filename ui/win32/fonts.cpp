// Fonts and icons.
#include "ui/win32/dc.h"
#include "ui/win32/resource.h"
#include "ui/win32/system.h"

namespace UI {

NativeFont::NativeFont(const FontSpec& spec)
    : Object(CreateFontW(spec.Height, 0, 0, 0, spec.Weight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, spec.Face.c_str())) {
    if (!Object) throw L"CreateFontW failed.";
}

namespace Native {

using namespace Win32;

namespace {

void SelectFont(HDC dc, const NativeFont& font) {
    if (!SelectObject(dc, font.Object)) throw L"SelectObject failed.";
}

std::shared_ptr<NativeIcon> LoadIconOf(Handle handle, WPARAM kind, int size) {
    const auto image =
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(VANTELLE_ICON), IMAGE_ICON, size, size, 0);
    if (!image) return nullptr;
    auto icon = std::make_shared<NativeIcon>(static_cast<HICON>(image));
    Tell(handle, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon->Object));
    return icon;
}

}  // namespace

std::shared_ptr<NativeFont> MakeFont(const FontSpec& spec, FontMetrics& metrics) {
    auto font = std::make_shared<NativeFont>(spec);
    const ScreenDC dc;
    SelectFont(dc, *font);
    TEXTMETRICW values{};
    if (!GetTextMetricsW(dc, &values)) throw L"GetTextMetrics failed.";
    metrics = {static_cast<int>(values.tmHeight), static_cast<int>(values.tmAscent), static_cast<int>(values.tmDescent),
               static_cast<int>(values.tmAveCharWidth)};
    return font;
}

int MeasureText(NativeFont& font, std::wstring_view text) {
    const ScreenDC dc;
    SelectFont(dc, font);
    SIZE size{};
    GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
    return static_cast<int>(size.cx);
}

void ApplyFont(Handle handle, const Font& font) {
    Tell(handle, WM_SETFONT, reinterpret_cast<WPARAM>(font.GetNative()->Object), FALSE);
    Control* control = FindControl(handle);
    // What else the classes make of the font, and the frames that the style may have changed.
    if (const auto* list = dynamic_cast<Controls::ListBox*>(control)) {
        Tell(handle, LB_SETITEMHEIGHT, 0, list->GetStyle().ItemHeight);
    } else if (const auto* combo = dynamic_cast<Controls::ComboBox*>(control)) {
        Tell(handle, CB_SETITEMHEIGHT, 0, combo->GetStyle().List.ItemHeight);
    } else if (control && control->GetKind() == ControlKind::Edit) {
        ResetTextMargins(handle);
    } else {
        return;
    }
    SetWindowPos(ToWindow(handle), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void LoadIcons(Handle handle, int dpi, std::shared_ptr<NativeIcon>& icon, std::shared_ptr<NativeIcon>& smallIcon) {
    icon = LoadIconOf(handle, ICON_BIG, GetMetric(SM_CXICON, dpi));
    smallIcon = LoadIconOf(handle, ICON_SMALL, GetMetric(SM_CXSMICON, dpi));
}

}  // namespace Native

}  // namespace UI

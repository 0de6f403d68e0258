// Fonts, shared by all who hold a copy, and the measuring of text.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "ui/types.h"

namespace UI {

struct FontSpec {
    std::wstring Face;
    int Height = 0;  // of a line, in pixels
    int Weight = 0;  // 400 normal, 700 bold
    bool operator==(const FontSpec&) const = default;
};

// Pixels.
struct FontMetrics {
    int Height = 0;
    int Ascent = 0;
    int Descent = 0;
    int AverageWidth = 0;
    bool operator==(const FontMetrics&) const = default;
};

// The backend's font object.
struct NativeFont;

// A font made once and released by its last owner. An empty one stands for none.
class Font {
public:
    Font() = default;
    // Throws "CreateFontW failed.", "GetDC failed.", "SelectObject failed." or "GetTextMetrics failed.".
    explicit Font(const FontSpec& spec);

    const FontSpec& GetSpec() const { return spec; }
    const FontMetrics& GetMetrics() const { return metrics; }
    NativeFont* GetNative() const { return native.get(); }
    explicit operator bool() const { return native != nullptr; }
    bool operator==(const Font& other) const { return native == other.native; }

private:
    FontSpec spec;
    FontMetrics metrics;
    std::shared_ptr<NativeFont> native;
};

// Width of `text` in one line, and the font's height, in pixels.
Size MeasureText(const Font& font, std::wstring_view text);

}  // namespace UI

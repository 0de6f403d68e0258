#include "ui/font.h"

#include "ui/native.h"

namespace UI {

Font::Font(const FontSpec& spec) : spec(spec), native(Native::MakeFont(spec, metrics)) {}

Size MeasureText(const Font& font, std::wstring_view text) {
    return {Native::MeasureText(*font.GetNative(), text), font.GetMetrics().Height};
}

}  // namespace UI

#include "model/displayid/display_interface.h"

#include "model/core/layout_made.h"

namespace VNT {

namespace {

template <class Value, std::size_t count>
String FindText(Value value, const ValueText<Value> (&rows)[count], std::u32string_view other) {
    const auto* found = std::find_if(rows, rows + count, [value](const auto& row) { return row.value == value; });
    return found == rows + count ? String(other) : String(found->text);
}

}  // namespace

bool DisplayId2DisplayInterfaceColorimetry::Read(ByteRange range) {
    if (!range.Limit(FrameSize)) return false;
    TLayout<DisplayId2DisplayInterfaceColorimetry>::Read(*this, range);
    return true;
}

bool DisplayId2DisplayInterfaceColorimetry::Write(ByteRange range) const {
    if (!range.Limit(FrameSize) || !IsValidAll()) return false;
    TLayout<DisplayId2DisplayInterfaceColorimetry>::Write(*this, range);
    return true;
}

void DisplayId2DisplayInterfaceColorimetry::FillTexts(TextTable& table) const {
    table.Set(U"{colorspace}", colorSpace);
    table.Set(U"{colorspacetext}",
              FindText(colorSpace, DisplayId2DisplayInterfaceColorSpaceEnum::Texts, U"Other ({colorspace})"));
    table.Set(U"{eotf}", eotf);
    table.Set(U"{eotftext}", FindText(eotf, DisplayId2DisplayInterfaceEotfEnum::Texts, U"Other ({eotf})"));
}

template struct TMadeItem<DisplayId2DisplayInterfaceColorimetry>;

}  // namespace VNT

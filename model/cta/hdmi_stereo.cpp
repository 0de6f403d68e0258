#include "model/cta/hdmi_stereo.h"

#include <algorithm>

#include "model/core/layout_made.h"

namespace VNT {

namespace {

// The text of a value, or `other` for one that has none.
template <class Value, std::size_t count>
String TextOf(const ValueText<Value> (&rows)[count], Value value, std::u32string_view other) {
    const auto* found = std::find_if(std::begin(rows), std::end(rows),
                                     [value](const ValueText<Value>& row) { return row.value == value; });
    return found != std::end(rows) ? String(found->text) : String(other);
}

}  // namespace

HdmiStereoFormat::HdmiStereoFormat(const HdmiStereoFormatFields& fields) {
    static_cast<HdmiStereoFormatFields&>(*this) = fields;
    if (HasDetail()) return;
    Detail = HdmiStereoFormatDetailEnum::All;
    Reserved = 0;
}

bool HdmiStereoFormat::Read(ByteRange range) {
    HdmiStereoFormat read;
    TLayout<HdmiStereoFormat>::Read(read, range);
    if (range.Size() < read.GetSize()) return false;
    *this = read;
    return true;
}

bool HdmiStereoFormat::Write(ByteRange range) const {
    if (!range.Limit(GetSize()) || !IsValidAll()) return false;
    TLayout<HdmiStereoFormat>::Write(*this, range);
    return true;
}

void HdmiStereoFormat::FillTexts(TextTable& table) const {
    table.Set(U"{order}", Order);
    table.Set(U"{structure}", Structure);
    table.Set(U"{detail}", Detail);
    table.Set(U"{structuretext}", TextOf(HdmiStereoFormatStructureEnum::Texts, Structure, U"Other ({structure})"));
    const String detail = TextOf(HdmiStereoFormatDetailEnum::Texts, Detail, U"Other ({detail})");
    table.Set(U"{detailtext}", HasDetail() ? String(U", ") + detail : String());
}

HdmiStereoFormats::HdmiStereoFormats(const HdmiStereoFormatsFields& fields) {
    static_cast<HdmiStereoFormatsFields&>(*this) = fields;
    if (!HasStructures()) Structures = {};
    if (!HasMask()) Mask = {};
    Size = Measure();
}

bool HdmiStereoFormats::Read(ByteRange range) {
    const auto present = FieldsPresent;
    *this = HdmiStereoFormats();
    FieldsPresent = present;
    Size = range.Size();
    TLayout<HdmiStereoFormats>::Read(*this, range);
    return true;
}

bool HdmiStereoFormats::Write(ByteRange range) const {
    if (!range.Limit(Size) || !IsValidAll()) return false;
    TLayout<HdmiStereoFormats>::Write(*this, range);
    return true;
}

int HdmiStereoFormats::GetPresentLength() const {
    if (Size <= CountLeading()) return Size;
    return Size == CountLeading() + Formats.GetSize() ? 5 : 6;
}

template struct TMadeItem<HdmiStereoFormat>;
template struct TMadeItem<HdmiStereoFormats>;

}  // namespace VNT

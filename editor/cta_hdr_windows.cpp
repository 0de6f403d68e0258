#include "editor/cta_hdr_windows.h"

#include "model/edid/captions.h"

using namespace VNT;

CtaHdrStaticMetadataDataBlockWindow::CtaHdrStaticMetadataDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaHdrStaticMetadataDataBlockWindow", L"HDR Static Metadata") {
    using Flag = CtaHdrStaticMetadataDataBlockFlagEnum;
    Group(L"Colorimetry").Checks(Field<&Fields::Flags>, Flag::TransferTexts);
    Group(L"Metadata").Checks(Field<&Fields::Flags>, Flag::MetadataTexts);
    auto group = Group(L"Luminance").Aligned();
    rows.AddMax(group, fields.RawMode, L"Max luminance:", Field<&Fields::MaxLuminance>,
                Field<&Fields::MaxLuminanceRaw>);
    AddRawRow(group, Forms::LuminanceRow, fields.RawMode, L"Max frame-avg:", Field<&Fields::MaxFrameAverage>,
              Field<&Fields::MaxFrameAverageRaw>);
    rows.AddMin(group, fields.RawMode, L"Min luminance:", Field<&Fields::MinLuminance>,
                Field<&Fields::MinLuminanceRaw>);
}

Forms::FieldState CtaHdrStaticMetadataDataBlockWindow::GetFieldState(std::string_view field) const {
    const Forms::FieldState state = TItemWindow::GetFieldState(field);
    if (field == "MaxLuminance") return StateOfSaid(state, fields.MaxLuminance, fields.MaxLuminanceRaw);
    if (field == "MaxFrameAverage") return StateOfSaid(state, fields.MaxFrameAverage, fields.MaxFrameAverageRaw);
    if (field == "MinLuminance") return StateOfSaid(state, fields.MinLuminance, fields.MinLuminanceRaw);
    return state;
}

CtaHdrDynamicMetadataListDataBlockWindow::CtaHdrDynamicMetadataListDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaHdrDynamicMetadataListDataBlockWindow", L"HDR Dynamic Metadata") {
    Group(L"").List(
        Field<&Fields::Types>, HdrDynamicMetadataCaptions, [this] { return Item::GetListLimits(GetBytes()); },
        &EditCtaHdrDynamicMetadata);
}

CtaHdr10PlusDataBlockWindow::CtaHdr10PlusDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaHdr10PlusDataBlockWindow", L"HDR10+") {
    Group(L"Version").Number(Field<&Fields::Version>, L"00");
    Group(L"Full frame luminance index").Number(Field<&Fields::FullFramePeakLuminanceIndex>, L"00");
    Group(L"Peak luminance index").Number(Field<&Fields::PeakLuminanceIndex>, L"00");
}

CtaType2HdrDynamicMetadataWindow::CtaType2HdrDynamicMetadataWindow(UI::Window* parent)
    : TCtaVersionHdrDynamicMetadataWindow(parent, L"CtaType2HdrDynamicMetadataWindow", L"Type 2") {
    Group(L"Flags").Checks(Field<&Fields::Flags>, CtaType2HdrDynamicMetadataFlagEnum::Texts);
}

namespace {

template <class FormWindow>
constexpr auto FormOf() {
    return Forms::FormOf<FormWindow, CtaHdrDynamicMetadata>();
}

// In the order of the chooser.
constexpr Forms::TFormRow<CtaHdrDynamicMetadata> RecordForms[] = {
    FormOf<CtaType1HdrDynamicMetadataWindow>(),
    FormOf<CtaType2HdrDynamicMetadataWindow>(),
    Forms::NoForm<CtaType3HdrDynamicMetadata, CtaHdrDynamicMetadata>(),
    FormOf<CtaType4HdrDynamicMetadataWindow>(),
    FormOf<CtaType0x100HdrDynamicMetadataWindow>(),
};

}  // namespace

std::span<const Forms::TFormRow<CtaHdrDynamicMetadata>> CtaHdrDynamicMetadataForms() { return RecordForms; }

int EditCtaHdrDynamicMetadata(UI::Window* parent, CtaHdrDynamicMetadata& record, int bytes) {
    return Forms::EditHolder<AddCtaHdrDynamicMetadataWindow>(parent, record, bytes, RecordForms,
                                                             CtaHdrDynamicMetadataKinds::All());
}

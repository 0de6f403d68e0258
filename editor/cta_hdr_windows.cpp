#include "editor/cta_hdr_windows.h"

#include "editor/raw_rows.h"
#include "model/edid/captions.h"

using namespace VNT;

CtaHdrStaticMetadataDataBlockWindow::CtaHdrStaticMetadataDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaHdrStaticMetadataDataBlockWindow", L"HDR Static Metadata") {
    using Flag = CtaHdrStaticMetadataDataBlockFlagEnum;
    Group(L"Colorimetry").Checks(Field<&Fields::Flags>, Flag::TransferTexts);
    Group(L"Metadata").Checks(Field<&Fields::Flags>, Flag::MetadataTexts);
    auto group = Group(L"Luminance").Aligned();
    const auto addRow = [&](const wchar_t* label, auto number, auto raw) {
        AddRawRow(group, Forms::LuminanceRow, fields.RawMode, label, number, raw);
    };
    addRow(L"Max luminance:", Field<&Fields::MaxLuminance>, Field<&Fields::MaxLuminanceRaw>);
    addRow(L"Max frame-avg:", Field<&Fields::MaxFrameAverage>, Field<&Fields::MaxFrameAverageRaw>);
    addRow(L"Min luminance:", Field<&Fields::MinLuminance>, Field<&Fields::MinLuminanceRaw>);
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

// The forms of the HDR data blocks.
#pragma once

#include "editor/add_window.h"
#include "editor/raw_rows.h"
#include "model/cta/hdr10_plus.h"
#include "model/cta/hdr_dynamic_metadata_list.h"
#include "model/cta/hdr_static_metadata.h"

class CtaHdrStaticMetadataDataBlockWindow : public TItemWindow<VNT::CtaHdrStaticMetadataDataBlock> {
public:
    explicit CtaHdrStaticMetadataDataBlockWindow(UI::Window* parent);

protected:
    Forms::FieldState GetFieldState(std::string_view field) const override;

private:
    LuminanceRows rows{fields.MaxLuminance, fields.MinLuminance, fields.MinLuminanceRaw};
};

class CtaHdrDynamicMetadataListDataBlockWindow : public TItemWindow<VNT::CtaHdrDynamicMetadataListDataBlock> {
public:
    explicit CtaHdrDynamicMetadataListDataBlockWindow(UI::Window* parent);
};

class CtaHdr10PlusDataBlockWindow : public TItemWindow<VNT::CtaHdr10PlusDataBlock> {
public:
    explicit CtaHdr10PlusDataBlockWindow(UI::Window* parent);
};

template <class X>
class TCtaVersionHdrDynamicMetadataWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TCtaVersionHdrDynamicMetadataWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
        : TItemWindow<X>(parent, className, title) {
        this->Group(L"Version").Number(Field<&Fields::Version>, L"00");
    }
};

class CtaType1HdrDynamicMetadataWindow : public TCtaVersionHdrDynamicMetadataWindow<VNT::CtaType1HdrDynamicMetadata> {
public:
    explicit CtaType1HdrDynamicMetadataWindow(UI::Window* parent)
        : TCtaVersionHdrDynamicMetadataWindow(parent, L"CtaType1HdrDynamicMetadataWindow", L"Type 1") {}
};

class CtaType2HdrDynamicMetadataWindow : public TCtaVersionHdrDynamicMetadataWindow<VNT::CtaType2HdrDynamicMetadata> {
public:
    explicit CtaType2HdrDynamicMetadataWindow(UI::Window* parent);
};

class CtaType4HdrDynamicMetadataWindow : public TCtaVersionHdrDynamicMetadataWindow<VNT::CtaType4HdrDynamicMetadata> {
public:
    explicit CtaType4HdrDynamicMetadataWindow(UI::Window* parent)
        : TCtaVersionHdrDynamicMetadataWindow(parent, L"CtaType4HdrDynamicMetadataWindow", L"Type 4") {}
};

class CtaType0x100HdrDynamicMetadataWindow
    : public TCtaVersionHdrDynamicMetadataWindow<VNT::CtaType0x100HdrDynamicMetadata> {
public:
    explicit CtaType0x100HdrDynamicMetadataWindow(UI::Window* parent)
        : TCtaVersionHdrDynamicMetadataWindow(parent, L"CtaType0x100HdrDynamicMetadataWindow", L"Type 0x100") {}
};

class AddCtaHdrDynamicMetadataWindow : public AddWindow {
public:
    static constexpr bool NeedsRoom = true;

    AddCtaHdrDynamicMetadataWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddCtaHdrDynamicMetadataWindow", L"Add Type", std::move(offered)) {}
};

// In the order of the chooser.
std::span<const Forms::TFormRow<VNT::CtaHdrDynamicMetadata>> CtaHdrDynamicMetadataForms();

// Adds to an empty holder by way of the chooser, edits what a filled one holds. `bytes` is what the record may take.
int EditCtaHdrDynamicMetadata(UI::Window* parent, VNT::CtaHdrDynamicMetadata& record, int bytes);

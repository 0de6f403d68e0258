// The forms of the CTA-861 data blocks.
#pragma once

#include "editor/add_window.h"
#include "model/cta/colorimetry.h"
#include "model/cta/product_info.h"
#include "model/cta/vendor_specific.h"

class CtaColorimetryDataBlockWindow : public TItemWindow<VNT::CtaColorimetryDataBlock> {
public:
    explicit CtaColorimetryDataBlockWindow(UI::Window* parent);
};

class CtaProductInfoDataBlockWindow : public TItemWindow<VNT::CtaProductInfoDataBlock> {
public:
    explicit CtaProductInfoDataBlockWindow(UI::Window* parent);
};

// The vendor's number and what the vendor says.
template <class X>
class TCtaVendorSpecificDataBlockWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TCtaVendorSpecificDataBlockWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title)
        : TItemWindow<X>(parent, className, title) {
        this->Group(L"Vendor ID").Hex(Field<&Fields::VendorId>, L"AAAAAA");
        this->Group(L"Hex data").SizedHex(Field<&Fields::Extra>, [this] { return X::GetExtraRoom(this->GetBytes()); });
    }
};

class CtaVendorSpecificDataBlockWindow : public TCtaVendorSpecificDataBlockWindow<VNT::CtaVendorSpecificDataBlock> {
public:
    explicit CtaVendorSpecificDataBlockWindow(UI::Window* parent)
        : TCtaVendorSpecificDataBlockWindow(parent, L"CtaVendorSpecificDataBlockWindow", L"Vendor-Specific") {}
};

class CtaVendorSpecificVideoDataBlockWindow
    : public TCtaVendorSpecificDataBlockWindow<VNT::CtaVendorSpecificVideoDataBlock> {
public:
    explicit CtaVendorSpecificVideoDataBlockWindow(UI::Window* parent)
        : TCtaVendorSpecificDataBlockWindow(parent, L"CtaVendorSpecificVideoDataBlockWindow",
                                            L"Vendor-Specific Video") {}
};

class CtaVendorSpecificAudioDataBlockWindow
    : public TCtaVendorSpecificDataBlockWindow<VNT::CtaVendorSpecificAudioDataBlock> {
public:
    explicit CtaVendorSpecificAudioDataBlockWindow(UI::Window* parent)
        : TCtaVendorSpecificDataBlockWindow(parent, L"CtaVendorSpecificAudioDataBlockWindow",
                                            L"Vendor-Specific Audio") {}
};

class AddCtaDataBlockWindow : public AddWindow {
public:
    static constexpr bool NeedsRoom = true;

    AddCtaDataBlockWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddCtaDataBlockWindow", L"Add Data Block", std::move(offered)) {}
};

// In the order of the chooser.
std::span<const Forms::TFormRow<VNT::CtaDataBlock>> CtaDataBlockForms();

// Adds to an empty holder by way of the chooser, edits what a filled one holds. `bytes` is what the block may take.
int EditCtaDataBlock(UI::Window* parent, VNT::CtaDataBlock& block, int bytes);

// Puts a new block into the list; the row that it takes.
int InsertCtaDataBlock(VNT::CtaDataBlockList& list, VNT::CtaDataBlock&& block);

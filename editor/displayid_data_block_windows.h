// The choosers of the DisplayID data blocks, and the forms of the kinds that both versions have.
#pragma once

#include "editor/add_window.h"
#include "editor/displayid_data_block_window.h"
#include "model/displayid/cta_data_block_list.h"
#include "model/displayid/vendor_specific.h"

class DisplayId1VendorSpecificDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayId1VendorSpecificDataBlock> {
public:
    explicit DisplayId1VendorSpecificDataBlockWindow(UI::Window* parent);
};

class DisplayId2VendorSpecificDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayId2VendorSpecificDataBlock> {
public:
    explicit DisplayId2VendorSpecificDataBlockWindow(UI::Window* parent);
};

class DisplayIdCtaDataBlockListDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayIdCtaDataBlockListDataBlock> {
public:
    explicit DisplayIdCtaDataBlockListDataBlockWindow(UI::Window* parent);
};

class AddDisplayId1DataBlockWindow : public AddWindow {
public:
    static constexpr bool NeedsRoom = true;

    AddDisplayId1DataBlockWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddDisplayId1DataBlockWindow", L"Add Data Block", std::move(offered)) {}
};

class AddDisplayId2DataBlockWindow : public AddWindow {
public:
    static constexpr bool NeedsRoom = true;

    AddDisplayId2DataBlockWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddDisplayId2DataBlockWindow", L"Add Data Block", std::move(offered)) {}
};

// In the order of the choosers for sections of the two versions.
std::span<const Forms::TFormRow<VNT::DisplayIdDataBlock>> DisplayId1DataBlockForms();
std::span<const Forms::TFormRow<VNT::DisplayIdDataBlock>> DisplayId2DataBlockForms();

// Adds to an empty holder by way of the chooser for sections of that version, edits what a filled one holds, of
// whichever version. `bytes` is what the block may take.
int EditDisplayIdDataBlock(UI::Window* parent, VNT::DisplayIdDataBlock& block, int bytes, int version);

#include "editor/displayid_data_block_windows.h"

#include "editor/cta_data_block_windows.h"
#include "editor/displayid1_data_block_windows.h"
#include "editor/displayid2_data_block_windows.h"
#include "model/edid/captions.h"

using namespace VNT;

DisplayId1VendorSpecificDataBlockWindow::DisplayId1VendorSpecificDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId1VendorSpecificDataBlockWindow", L"Vendor-Specific") {
    AddVendorId();
    AddHexData();
}

DisplayId2VendorSpecificDataBlockWindow::DisplayId2VendorSpecificDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId2VendorSpecificDataBlockWindow", L"Vendor-Specific") {
    AddVendorId();
    AddHexData();
}

DisplayIdCtaDataBlockListDataBlockWindow::DisplayIdCtaDataBlockListDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayIdCtaDataBlockListDataBlockWindow", L"CTA-861 Data Blocks") {
    Group(L"")
        .List(
            Field<&Fields::dataBlocks>, DataBlockCaptions, [this] { return item.GetListLimits(GetBytes()); },
            &EditCtaDataBlock)
        .SetInserter(&InsertCtaDataBlock);
}

namespace {

template <class FormWindow>
constexpr auto FormOf() {
    return Forms::FormOf<FormWindow, DisplayIdDataBlock>();
}

// In the order of the choosers.
constexpr Forms::TFormRow<DisplayIdDataBlock> Forms1[] = {
    FormOf<DisplayId1DetailedResolutionListDataBlockWindow>(), FormOf<DisplayId1ProductIdDataBlockWindow>(),
    FormOf<DisplayId1DisplayParametersDataBlockWindow>(),      FormOf<DisplayId1RangeLimitsDataBlockWindow>(),
    FormOf<DisplayId1SerialNumberDataBlockWindow>(),           FormOf<DisplayId1TextDataBlockWindow>(),
    FormOf<DisplayId1TiledDisplayTopologyDataBlockWindow>(),   FormOf<DisplayId1VendorSpecificDataBlockWindow>(),
    FormOf<DisplayIdCtaDataBlockListDataBlockWindow>(),
};
constexpr Forms::TFormRow<DisplayIdDataBlock> Forms2[] = {
    FormOf<DisplayId2DetailedResolutionListDataBlockWindow>(),
    FormOf<DisplayId2DetailedResolutionListDataBlockWindowR2>(),
    FormOf<DisplayId2ProductIdDataBlockWindow>(),
    FormOf<DisplayId2RangeLimitsDataBlockWindow>(),
    FormOf<DisplayId2DisplayInterfaceDataBlockWindow>(),
    FormOf<DisplayId2TiledDisplayTopologyDataBlockWindow>(),
    FormOf<DisplayId2ContainerIdDataBlockWindow>(),
    FormOf<DisplayId2VendorSpecificDataBlockWindow>(),
    FormOf<DisplayIdCtaDataBlockListDataBlockWindow>(),
};

}  // namespace

std::span<const Forms::TFormRow<DisplayIdDataBlock>> DisplayId1DataBlockForms() { return Forms1; }
std::span<const Forms::TFormRow<DisplayIdDataBlock>> DisplayId2DataBlockForms() { return Forms2; }

int EditDisplayIdDataBlock(UI::Window* parent, DisplayIdDataBlock& block, int bytes, int version) {
    const auto kinds = DisplayIdDataBlockKinds::All();
    const bool isOfVersion1 = block.IsEmpty() ? version < 2 : Forms::FindForm(Forms1, block.GetType()) != nullptr;
    return isOfVersion1 ? Forms::EditHolder<AddDisplayId1DataBlockWindow>(parent, block, bytes, Forms1, kinds)
                        : Forms::EditHolder<AddDisplayId2DataBlockWindow>(parent, block, bytes, Forms2, kinds);
}

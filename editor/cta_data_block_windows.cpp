#include "editor/cta_data_block_windows.h"

#include "editor/cta_audio_windows.h"
#include "editor/cta_hdmi_windows.h"
#include "editor/cta_hdr_windows.h"
#include "editor/cta_sync_windows.h"
#include "editor/cta_video_windows.h"
#include "model/cta/extension_override.h"

using namespace VNT;

CtaColorimetryDataBlockWindow::CtaColorimetryDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaColorimetryDataBlockWindow", L"Colorimetry") {
    Group(L"Colorimetry").Checks(Field<&Fields::Flags>, CtaColorimetryDataBlockFlagEnum::ColorTexts);
    Group(L"Metadata").Checks(Field<&Fields::Flags>, CtaColorimetryDataBlockFlagEnum::MetadataTexts);
}

CtaProductInfoDataBlockWindow::CtaProductInfoDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaProductInfoDataBlockWindow", L"Product Information") {
    Group(L"Vendor ID").Hex(Field<&Fields::VendorId>, L"AAAAAA");
    Group(L"Name").SizedText(Field<&Fields::Name>, [this] { return Item::GetExtraRoom(GetBytes()); });
}

namespace {

template <class FormWindow>
constexpr auto FormOf() {
    return Forms::FormOf<FormWindow, CtaDataBlock>();
}

// In the order of the chooser.
constexpr Forms::TFormRow<CtaDataBlock> DataBlockForms[] = {
    FormOf<CtaAudioFormatListDataBlockWindow>(),
    FormOf<CtaColorimetryDataBlockWindow>(),
    Forms::NoForm<CtaExtensionOverrideDataBlock, CtaDataBlock>(),
    FormOf<CtaFreeSyncDataBlockWindow>(),
    FormOf<CtaGSyncDataBlockWindow>(),
    FormOf<CtaHdmiDataBlockWindow>(),
    FormOf<CtaHdmi2DataBlockWindow>(),
    FormOf<CtaHdrStaticMetadataDataBlockWindow>(),
    FormOf<CtaHdrDynamicMetadataListDataBlockWindow>(),
    FormOf<CtaHdr10PlusDataBlockWindow>(),
    FormOf<CtaMicrosoftDataBlockWindow>(),
    FormOf<CtaNativeVideoResolutionDataBlockWindow>(),
    FormOf<CtaProductInfoDataBlockWindow>(),
    FormOf<CtaSpeakerAllocationDataBlockWindow>(),
    FormOf<CtaVendorSpecificDataBlockWindow>(),
    FormOf<CtaVendorSpecificAudioDataBlockWindow>(),
    FormOf<CtaVendorSpecificVideoDataBlockWindow>(),
    FormOf<CtaVideoCapabilityDataBlockWindow>(),
    FormOf<CtaVideoFormatPreferenceDataBlockWindow>(),
    FormOf<CtaVideoFormatResolutionListDataBlockWindow>(),
    FormOf<CtaVideoResolutionListDataBlockWindow>(),
    FormOf<CtaYcc420VideoResolutionListDataBlockWindow>(),
};

}  // namespace

std::span<const Forms::TFormRow<CtaDataBlock>> CtaDataBlockForms() { return DataBlockForms; }

int EditCtaDataBlock(UI::Window* parent, CtaDataBlock& block, int bytes) {
    return Forms::EditHolder<AddCtaDataBlockWindow>(parent, block, std::min(bytes, AnyCtaDataBlock::MaxSize),
                                                    DataBlockForms, CtaDataBlockKinds::All());
}

int InsertCtaDataBlock(CtaDataBlockList& list, CtaDataBlock&& block) {
    list.Add(block);
    return block.GetType() == CtaDataBlockTypeId::ExtensionOverride ? 0 : list.GetCount() - 1;
}

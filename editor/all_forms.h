// Every form of an item, reached through the tables of forms, for those who open forms without knowing them: tests,
// pictures and benchmarks. A new row of a family's table is met here as it stands; a new family is a line below.
#pragma once

#include <string>

#include "editor/cta_audio_format_windows.h"
#include "editor/cta_data_block_windows.h"
#include "editor/cta_hdmi_windows.h"
#include "editor/cta_hdr_windows.h"
#include "editor/cta_video_windows.h"
#include "editor/descriptor_windows.h"
#include "editor/displayid2_data_block_windows.h"
#include "editor/displayid_data_block_windows.h"
#include "editor/extension_block_windows.h"
#include "editor/properties_windows.h"
#include "editor/range_limits_windows.h"
#include "editor/resolution_windows.h"
#include "editor/short_resolution_windows.h"

namespace Forms {

// A new item, or a holder of one, and its form. `bytes` is what the item may take.
template <class X>
struct TFormSample {
    std::string name;
    X item;
    int (*edit)(UI::Window* parent, X& item, int bytes);
    int bytes;
};

template <class Visitor, class Holder, class AnyX>
void VisitFamily(const Visitor& visit, std::span<const TFormRow<Holder>> forms, std::span<const VNT::TKind<AnyX>> kinds,
                 int bytes) {
    for (const TFormRow<Holder>& form : forms) {
        const VNT::TKind<AnyX>* kind = FindKind(kinds, form.type);
        if (form.edit && kind) visit(TFormSample<Holder>{kind->title, Holder(kind->make()), form.edit, bytes});
    }
}

template <class FormWindow, class Visitor>
void VisitForm(const Visitor& visit, const char* name, int bytes) {
    using X = typename FormWindow::Item;
    visit(TFormSample<X>{name, X(), &EditItem<FormWindow>, bytes});
}

// Calls `visit` with the `TFormSample` of each form.
template <class Visitor>
void ForEachForm(const Visitor& visit) {
    using namespace VNT;
    VisitForm<EdidPropertiesWindow>(visit, "Properties", EdidProperties::FrameSize);
    VisitForm<EdidColorCoordinatesWindow>(visit, "Color coordinates", EdidColorCoordinates::FrameSize);
    VisitForm<EdidStandardResolutionWindow>(visit, "Standard resolution", EdidStandardResolution::FrameSize);
    VisitForm<EdidCvtResolutionWindow>(visit, "CVT resolution", EdidCvtResolution::FrameSize);
    VisitForm<DisplayId1DetailedResolutionWindow>(visit, "DisplayID v1 detailed resolution",
                                                  DisplayId1DetailedResolution::MinSize);
    VisitForm<DisplayId2DetailedResolutionWindow>(visit, "DisplayID v2 detailed resolution",
                                                  DisplayId2DetailedResolution::MinSize);
    VisitForm<DisplayId2DetailedResolutionWindowR2>(visit, "DisplayID v2 detailed resolution r2",
                                                    DisplayId2DetailedResolutionR2::MinSize);
    VisitForm<DisplayId2DisplayInterfaceColorimetryWindow>(visit, "Display interface colorimetry",
                                                           DisplayId2DisplayInterfaceColorimetry::FrameSize);
    VisitForm<HdmiResolutionWindow>(visit, "HDMI resolution", HdmiResolution::FrameSize);
    VisitForm<HdmiStereoFormatWindow>(visit, "HDMI 3D format", HdmiStereoFormat::MaxSize);
    VisitForm<HdmiStereoFormatsWindow>(visit, "HDMI 3D formats", HdmiStereoFormats::MaxSize);
    VisitForm<CtaVideoResolutionWindow>(visit, "CTA video resolution", CtaVideoResolution::FrameSize);
    VisitForm<CtaYcc420VideoResolutionWindow>(visit, "CTA 4:2:0 video resolution", CtaVideoResolution::FrameSize);
    VisitForm<CtaVideoReferenceWindow>(visit, "CTA video reference", CtaVideoReference::FrameSize);
    VisitForm<CtaVideoFormatResolutionWindow>(visit, "CTA video format resolution",
                                              CtaVideoFormatResolution::FrameSize);
    VisitFamily(visit, EdidDescriptorForms(), EdidDescriptorKinds::All(), AnyEdidDescriptor::FrameSize);
    VisitFamily(visit, EdidRangeLimitsTimingForms(), EdidRangeLimitsTimingKinds::All(),
                AnyEdidRangeLimitsTiming::FrameSize);
    VisitFamily(visit, EdidExtensionBlockForms(), EdidExtensionBlockKinds::All(), AnyEdidExtensionBlock::FrameSize);
    VisitFamily(visit, CtaDataBlockForms(), CtaDataBlockKinds::All(), AnyCtaDataBlock::MaxSize);
    VisitFamily(visit, CtaAudioFormatForms(), CtaAudioFormatKinds::All(), AnyCtaAudioFormat::FrameSize);
    VisitFamily(visit, CtaHdrDynamicMetadataForms(), CtaHdrDynamicMetadataKinds::All(),
                AnyCtaHdrDynamicMetadata::MaxSize);
    VisitFamily(visit, DisplayId1DataBlockForms(), DisplayIdDataBlockKinds::All(), AnyDisplayIdDataBlock::MaxSize);
    VisitFamily(visit, DisplayId2DataBlockForms(), DisplayIdDataBlockKinds::All(), AnyDisplayIdDataBlock::MaxSize);
}

template <int version>
int EditNewBlock(UI::Window* parent, VNT::DisplayIdDataBlock& block, int bytes) {
    return EditDisplayIdDataBlock(parent, block, bytes, version);
}

// Calls `visit` with the `TFormSample` of each chooser, whose form is that of an empty holder.
template <class Visitor>
void ForEachChooser(const Visitor& visit) {
    using namespace VNT;
    visit(TFormSample<EdidDescriptor>{"Add descriptor", {}, &EditEdidDescriptor, AnyEdidDescriptor::FrameSize});
    visit(TFormSample<EdidExtensionBlock>{
        "Add extension block", {}, &EditEdidExtensionBlock, AnyEdidExtensionBlock::FrameSize});
    visit(TFormSample<CtaDataBlock>{"Add CTA data block", {}, &EditCtaDataBlock, AnyCtaDataBlock::MaxSize});
    visit(TFormSample<CtaAudioFormat>{"Add audio format", {}, &EditCtaAudioFormat, AnyCtaAudioFormat::FrameSize});
    visit(TFormSample<CtaHdrDynamicMetadata>{
        "Add HDR dynamic metadata", {}, &EditCtaHdrDynamicMetadata, AnyCtaHdrDynamicMetadata::MaxSize});
    visit(TFormSample<DisplayIdDataBlock>{
        "Add DisplayID v1 data block", {}, &EditNewBlock<1>, AnyDisplayIdDataBlock::MaxSize});
    visit(TFormSample<DisplayIdDataBlock>{
        "Add DisplayID v2 data block", {}, &EditNewBlock<2>, AnyDisplayIdDataBlock::MaxSize});
}

}  // namespace Forms

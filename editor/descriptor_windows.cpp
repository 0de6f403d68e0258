#include "editor/descriptor_windows.h"

#include "editor/color_descriptor_windows.h"
#include "editor/range_limits_windows.h"
#include "editor/resolution_windows.h"
#include "editor/short_resolution_windows.h"
#include "model/edid/captions.h"

using namespace VNT;
using Forms::FormOf;

namespace {

constexpr Forms::TFormRow<EdidDescriptor> DescriptorForms[] = {
    FormOf<EdidDetailedResolutionWindow, EdidDescriptor>(),
    FormOf<EdidStandardResolutionListDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidCvtResolutionListDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidEstablished3ResolutionFlagsDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidRangeLimitsDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidNameDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidSerialNumberDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidTextDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidColorPointDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidColorManagementDescriptorWindow, EdidDescriptor>(),
};

}  // namespace

EdidStandardResolutionListDescriptorWindow::EdidStandardResolutionListDescriptorWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidStandardResolutionListDescriptorWindow", L"Standard Resolutions") {
    Group(L"").List(
        Field<&Fields::resolutions>, StandardResolutionCaptions, [] { return Item::ListLimits; },
        &EditEdidStandardResolution);
}

EdidCvtResolutionListDescriptorWindow::EdidCvtResolutionListDescriptorWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidCvtResolutionListDescriptorWindow", L"CVT Resolutions") {
    Group(L"Version").Number(Field<&Fields::version>, L"000");
    Group(L"").List(
        Field<&Fields::resolutions>, CvtResolutionCaptions, [] { return Item::ListLimits; }, &EditEdidCvtResolution);
}

EdidEstablished3ResolutionFlagsDescriptorWindow::EdidEstablished3ResolutionFlagsDescriptorWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidEstablished3ResolutionFlagsDescriptorWindow", L"Established III Resolutions") {
    Group(L"Revision").Number(Field<&Fields::revision>, L"000");
    Group(L"Resolutions").Checks(Field<&Fields::resolutions>, EdidEstablished3ResolutionFlagEnum::Texts);
}

std::span<const Forms::TFormRow<EdidDescriptor>> EdidDescriptorForms() { return DescriptorForms; }

int EditEdidDescriptor(UI::Window* parent, EdidDescriptor& descriptor, int bytes) {
    return Forms::EditHolder<AddEdidDescriptorWindow>(parent, descriptor, bytes, EdidDescriptorForms(),
                                                      EdidDescriptorKinds::All());
}

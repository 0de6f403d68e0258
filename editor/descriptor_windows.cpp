#include "editor/descriptor_windows.h"

#include "editor/resolution_windows.h"

namespace {

using namespace VNT;
using Forms::FormOf;

constexpr Forms::TFormRow<EdidDescriptor> DescriptorForms[] = {
    FormOf<EdidDetailedResolutionWindow, EdidDescriptor>(),
    FormOf<EdidNameDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidSerialNumberDescriptorWindow, EdidDescriptor>(),
    FormOf<EdidTextDescriptorWindow, EdidDescriptor>(),
};

}  // namespace

int EditEdidDescriptor(UI::Window* parent, EdidDescriptor& descriptor, int bytes) {
    return Forms::EditHolder<AddEdidDescriptorWindow>(parent, descriptor, bytes, DescriptorForms,
                                                      EdidDescriptorKinds::All());
}

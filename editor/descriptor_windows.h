// The forms of the descriptors in the 18-byte slots of the base block and of CTA-861 extension blocks.
#pragma once

#include "editor/add_window.h"
#include "model/edid/established3_descriptor.h"
#include "model/edid/resolution_list_descriptors.h"
#include "model/edid/text_descriptor.h"

// The descriptors that are one line of text.
template <class X>
class TEdidTextDescriptorWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TEdidTextDescriptorWindow(UI::Window* parent, const std::wstring& className, const std::wstring& title,
                              const std::wstring& caption)
        : TItemWindow<X>(parent, className, title) {
        this->Group(caption).SizedText(Field<&Fields::text>, [] { return X::MaxLength; });
    }
};

class EdidNameDescriptorWindow : public TEdidTextDescriptorWindow<VNT::EdidNameDescriptor> {
public:
    explicit EdidNameDescriptorWindow(UI::Window* parent)
        : TEdidTextDescriptorWindow(parent, L"EdidNameDescriptorWindow", L"Name", L"Name") {}
};

class EdidSerialNumberDescriptorWindow : public TEdidTextDescriptorWindow<VNT::EdidSerialNumberDescriptor> {
public:
    explicit EdidSerialNumberDescriptorWindow(UI::Window* parent)
        : TEdidTextDescriptorWindow(parent, L"EdidSerialNumberDescriptorWindow", L"Serial Number", L"Serial number") {}
};

class EdidTextDescriptorWindow : public TEdidTextDescriptorWindow<VNT::EdidTextDescriptor> {
public:
    explicit EdidTextDescriptorWindow(UI::Window* parent)
        : TEdidTextDescriptorWindow(parent, L"EdidTextDescriptorWindow", L"Text", L"Text") {}
};

class EdidStandardResolutionListDescriptorWindow : public TItemWindow<VNT::EdidStandardResolutionListDescriptor> {
public:
    explicit EdidStandardResolutionListDescriptorWindow(UI::Window* parent);
};

class EdidCvtResolutionListDescriptorWindow : public TItemWindow<VNT::EdidCvtResolutionListDescriptor> {
public:
    explicit EdidCvtResolutionListDescriptorWindow(UI::Window* parent);
};

class EdidEstablished3ResolutionFlagsDescriptorWindow
    : public TItemWindow<VNT::EdidEstablished3ResolutionFlagsDescriptor> {
public:
    explicit EdidEstablished3ResolutionFlagsDescriptorWindow(UI::Window* parent);
};

class AddEdidDescriptorWindow : public AddWindow {
public:
    AddEdidDescriptorWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddEdidDescriptorWindow", L"Add Descriptor", std::move(offered)) {}
};

// The descriptors that have a form, in the order of the chooser.
std::span<const Forms::TFormRow<VNT::EdidDescriptor>> EdidDescriptorForms();

// Adds to an empty slot by way of the chooser, edits what stands in a filled one.
int EditEdidDescriptor(UI::Window* parent, VNT::EdidDescriptor& descriptor, int bytes);

// The forms of the descriptors that tell of colors.
#pragma once

#include "editor/item_window.h"
#include "model/edid/color_management_descriptor.h"
#include "model/edid/color_point_descriptor.h"

class EdidColorPointDescriptorWindow : public TItemWindow<VNT::EdidColorPointDescriptor> {
public:
    explicit EdidColorPointDescriptorWindow(UI::Window* parent);

private:
    void AddPoint(const std::wstring& caption, std::size_t index);
};

class EdidColorManagementDescriptorWindow : public TItemWindow<VNT::EdidColorManagementDescriptor> {
public:
    explicit EdidColorManagementDescriptorWindow(UI::Window* parent);
};

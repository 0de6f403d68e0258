// The forms of the base block's record of properties, and of its color coordinates.
#pragma once

#include "editor/item_window.h"
#include "model/edid/properties.h"

class EdidColorCoordinatesWindow : public TItemWindow<VNT::EdidColorCoordinates, VNT::EdidColorCoordinatesFields> {
public:
    explicit EdidColorCoordinatesWindow(UI::Window* parent);

private:
    void AddPoint(const std::wstring& caption, Fields::Coordinate x);
};

class EdidPropertiesWindow : public TItemWindow<VNT::EdidProperties, VNT::EdidPropertiesFields> {
public:
    explicit EdidPropertiesWindow(UI::Window* parent);

private:
    void EditColors();
};

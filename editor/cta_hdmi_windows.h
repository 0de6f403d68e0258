// The forms of the HDMI data blocks.
#pragma once

#include "editor/item_window.h"
#include "model/cta/hdmi2.h"

class CtaHdmi2DataBlockWindow : public TItemWindow<VNT::CtaHdmi2DataBlock> {
public:
    explicit CtaHdmi2DataBlockWindow(UI::Window* parent);
};

// The forms of the data blocks of DisplayID version 1.
#pragma once

#include "editor/displayid_data_block_window.h"
#include "model/displayid/detailed_resolutions.h"
#include "model/displayid/display_parameters.h"
#include "model/displayid/product_id.h"
#include "model/displayid/range_limits.h"
#include "model/displayid/text_data_block.h"
#include "model/displayid/tiled_display_topology.h"

class DisplayId1DetailedResolutionListDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayId1DetailedResolutionListDataBlock> {
public:
    explicit DisplayId1DetailedResolutionListDataBlockWindow(UI::Window* parent);
};

class DisplayId1ProductIdDataBlockWindow
    : public TDisplayIdProductIdDataBlockWindow<VNT::DisplayId1ProductIdDataBlock> {
public:
    explicit DisplayId1ProductIdDataBlockWindow(UI::Window* parent)
        : TDisplayIdProductIdDataBlockWindow(parent, L"DisplayId1ProductIdDataBlockWindow") {}
};

class DisplayId1DisplayParametersDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayId1DisplayParametersDataBlock> {
public:
    explicit DisplayId1DisplayParametersDataBlockWindow(UI::Window* parent);
};

class DisplayId1RangeLimitsDataBlockWindow : public TDisplayIdDataBlockWindow<VNT::DisplayId1RangeLimitsDataBlock> {
public:
    explicit DisplayId1RangeLimitsDataBlockWindow(UI::Window* parent);
};

class DisplayId1SerialNumberDataBlockWindow : public TDisplayIdDataBlockWindow<VNT::DisplayId1SerialNumberDataBlock> {
public:
    explicit DisplayId1SerialNumberDataBlockWindow(UI::Window* parent);
};

class DisplayId1TextDataBlockWindow : public TDisplayIdDataBlockWindow<VNT::DisplayId1TextDataBlock> {
public:
    explicit DisplayId1TextDataBlockWindow(UI::Window* parent);
};

class DisplayId1TiledDisplayTopologyDataBlockWindow
    : public TDisplayIdTiledDisplayTopologyDataBlockWindow<VNT::DisplayId1TiledDisplayTopologyDataBlock> {
public:
    explicit DisplayId1TiledDisplayTopologyDataBlockWindow(UI::Window* parent)
        : TDisplayIdTiledDisplayTopologyDataBlockWindow(parent, L"DisplayId1TiledDisplayTopologyDataBlockWindow") {}
};

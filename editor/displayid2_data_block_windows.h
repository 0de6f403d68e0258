// The forms of the data blocks of DisplayID version 2.
#pragma once

#include "editor/displayid_data_block_window.h"
#include "model/displayid/container_id.h"
#include "model/displayid/detailed_resolutions.h"
#include "model/displayid/display_interface.h"
#include "model/displayid/product_id.h"
#include "model/displayid/range_limits.h"
#include "model/displayid/tiled_display_topology.h"

class DisplayId2DetailedResolutionListDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayId2DetailedResolutionListDataBlock> {
public:
    explicit DisplayId2DetailedResolutionListDataBlockWindow(UI::Window* parent);
};

class DisplayId2DetailedResolutionListDataBlockWindowR2
    : public TDisplayIdDataBlockWindow<VNT::DisplayId2DetailedResolutionListDataBlockR2> {
public:
    explicit DisplayId2DetailedResolutionListDataBlockWindowR2(UI::Window* parent);
};

class DisplayId2ProductIdDataBlockWindow
    : public TDisplayIdProductIdDataBlockWindow<VNT::DisplayId2ProductIdDataBlock> {
public:
    explicit DisplayId2ProductIdDataBlockWindow(UI::Window* parent)
        : TDisplayIdProductIdDataBlockWindow(parent, L"DisplayId2ProductIdDataBlockWindow") {}
};

class DisplayId2RangeLimitsDataBlockWindow : public TDisplayIdDataBlockWindow<VNT::DisplayId2RangeLimitsDataBlock> {
public:
    explicit DisplayId2RangeLimitsDataBlockWindow(UI::Window* parent);
};

class DisplayId2DisplayInterfaceDataBlockWindow
    : public TDisplayIdDataBlockWindow<VNT::DisplayId2DisplayInterfaceDataBlock> {
public:
    explicit DisplayId2DisplayInterfaceDataBlockWindow(UI::Window* parent);
};

class DisplayId2DisplayInterfaceColorimetryWindow : public TItemWindow<VNT::DisplayId2DisplayInterfaceColorimetry> {
public:
    explicit DisplayId2DisplayInterfaceColorimetryWindow(UI::Window* parent);
};

class DisplayId2TiledDisplayTopologyDataBlockWindow
    : public TDisplayIdTiledDisplayTopologyDataBlockWindow<VNT::DisplayId2TiledDisplayTopologyDataBlock> {
public:
    explicit DisplayId2TiledDisplayTopologyDataBlockWindow(UI::Window* parent)
        : TDisplayIdTiledDisplayTopologyDataBlockWindow(parent, L"DisplayId2TiledDisplayTopologyDataBlockWindow") {}
};

class DisplayId2ContainerIdDataBlockWindow : public TDisplayIdDataBlockWindow<VNT::DisplayId2ContainerIdDataBlock> {
public:
    explicit DisplayId2ContainerIdDataBlockWindow(UI::Window* parent);
};

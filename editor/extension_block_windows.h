// The forms of the 128-byte blocks behind the base block.
#pragma once

#include "editor/add_window.h"
#include "model/edid/cta_extension_block.h"
#include "model/edid/displayid_extension_block.h"
#include "model/edid/vtb_extension_block.h"

class EdidCtaExtensionBlockWindow : public TItemWindow<VNT::EdidCtaExtensionBlock> {
public:
    explicit EdidCtaExtensionBlockWindow(UI::Window* parent);
};

class EdidVtbExtensionBlockWindow : public TItemWindow<VNT::EdidVtbExtensionBlock> {
public:
    explicit EdidVtbExtensionBlockWindow(UI::Window* parent);
};

// It edits the section; the block around it has nothing of its own.
class EdidDisplayIdSectionExtensionBlockWindow : public TItemWindow<VNT::DisplayIdSection> {
public:
    explicit EdidDisplayIdSectionExtensionBlockWindow(UI::Window* parent);
};

class AddEdidExtensionBlockWindow : public AddWindow {
public:
    AddEdidExtensionBlockWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddEdidExtensionBlockWindow", L"Add Extension Block", std::move(offered)) {}
};

// In the order of the chooser, which offers the versions of DisplayID apart.
std::span<const Forms::TFormRow<VNT::EdidExtensionBlock>> EdidExtensionBlockForms();

// Adds to an empty holder by way of the chooser, edits what a filled one holds.
int EditEdidExtensionBlock(UI::Window* parent, VNT::EdidExtensionBlock& block, int bytes);

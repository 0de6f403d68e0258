// The forms of the vendors' data blocks on variable refresh and on the use of a display.
#pragma once

#include "editor/add_window.h"
#include "editor/raw_rows.h"
#include "model/cta/freesync.h"
#include "model/cta/gsync.h"
#include "model/cta/microsoft.h"

class CtaFreeSyncDataBlockWindow : public TItemWindow<VNT::CtaFreeSyncDataBlock> {
public:
    explicit CtaFreeSyncDataBlockWindow(UI::Window* parent);

protected:
    Forms::FieldState GetFieldState(std::string_view field) const override;

private:
    LuminanceRows rows1{fields.Profile1MaxLuminance, fields.Profile1MinLuminance, fields.Profile1MinRaw};
    LuminanceRows rows2{fields.Profile2MaxLuminance, fields.Profile2MinLuminance, fields.Profile2MinRaw};
};

class CtaGSyncDataBlockWindow : public TItemWindow<VNT::CtaGSyncDataBlock> {
public:
    explicit CtaGSyncDataBlockWindow(UI::Window* parent);
};

class CtaMicrosoftDataBlockWindow : public TItemWindow<VNT::CtaMicrosoftDataBlock> {
public:
    explicit CtaMicrosoftDataBlockWindow(UI::Window* parent);
};

#include "model/timing/detailed_resolution.h"

namespace VNT {

namespace {

DetailedResolutionFields NoTiming() {
    DetailedResolutionFields f;
    f.timing = DetailedResolutionTimingEnum::None;
    f.parameterType = DetailedResolutionParameterTypeEnum::None;
    f.frequencyType = DetailedResolutionFrequencyTypeEnum::None;
    f.qftSource = DetailedResolutionQftSourceEnum::None;
    f.hactive = f.hfront = f.hsync = f.hback = f.hblank = f.htotal = Undefined;
    f.vactive = f.vfront = f.vsync = f.vback = f.vblank = f.vtotal = Undefined;
    f.vrate = f.hrate = f.pixelclock = f.actualvrate = f.actualhrate = f.actualpixelclock = Decimal::Undefined();
    return f;
}

DetailedResolutionFields& SharedNoTiming() {
    static DetailedResolutionFields fields = NoTiming();
    return fields;
}

}  // namespace

void FillTimingTexts(TextTable& table, const DetailedResolutionFields& fields,
                     const DetailedResolutionTextFormat& format) {
    FillResolutionTexts(table, fields.hactive, fields.vactive, fields.interlaced, format);
    FillRefreshRateTexts(table, fields.actualvrate, format.refreshRateNumber, format);
    FillAspectRatioTexts(table, {}, format);
    table.Set(U"{description}", format.description);
    table.Set(U"{modeline}", format.modeline);
    table.Set(U"{hactive}", fields.hactive);
    table.Set(U"{hfront}", fields.hfront);
    table.Set(U"{hsync}", fields.hsync);
    table.Set(U"{hback}", fields.hback);
    table.Set(U"{hblank}", fields.hblank);
    table.Set(U"{htotal}", fields.htotal);
    table.Set(U"{vactive}", fields.vactive);
    table.Set(U"{vfront}", fields.vfront);
    table.Set(U"{vsync}", fields.vsync);
    table.Set(U"{vback}", fields.vback);
    table.Set(U"{vblank}", fields.vblank);
    table.Set(U"{vtotal}", fields.vtotal);
    const auto hsyncstart = static_cast<std::int64_t>(fields.hactive) + fields.hfront;
    const auto vsyncstart = static_cast<std::int64_t>(fields.vactive) + fields.vfront;
    table.Set(U"{hsyncstart}", hsyncstart);
    table.Set(U"{hsyncend}", hsyncstart + fields.hsync);
    table.Set(U"{vsyncstart}", vsyncstart);
    table.Set(U"{vsyncend}", vsyncstart + fields.vsync);
    table.Set(U"{synctext}", format.sync);
    table.Set(U"{modelineflags}", format.modelineFlags);
    table.Set(U"{hpolarity}", fields.hpolarity ? format.positive : format.negative);
    table.Set(U"{vpolarity}", fields.vpolarity ? format.positive : format.negative);
    table.Set(U"{scantext}", fields.interlaced ? format.interlacedScan : format.progressiveScan);
    table.Set(U"{vrate}", fields.actualvrate, format.refreshRateNumber);
    table.Set(U"{hrate}", fields.actualhrate, format.scanRateNumber);
    table.Set(U"{pixelclock}", fields.actualpixelclock, format.pixelClockNumber);
}

int DetailedResolution::GetType() const { return item_ != nullptr ? item_->GetType() : NoType; }

void DetailedResolution::GetText(String& out, const String& format) const {
    out = String();
    if (item_ != nullptr) item_->GetText(out, format);
}

void DetailedResolution::GetText(String& out) const {
    out = String();
    if (item_ != nullptr) item_->GetText(out);
}

void DetailedResolution::GetSummary(ResolutionSummary& out) const {
    out = ResolutionSummary();
    if (item_ != nullptr) item_->GetSummary(out);
}

bool DetailedResolution::IsValid() const { return item_ != nullptr && item_->IsValid(); }

bool DetailedResolution::IsValidAll() const { return item_ != nullptr && item_->IsValidAll(); }

const DetailedResolutionFields& DetailedResolution::GetFields() const {
    const auto* detailed = dynamic_cast<const AnyDetailedResolution*>(item_.get());
    return detailed != nullptr ? detailed->GetFields() : SharedNoTiming();
}

DetailedResolutionFields& DetailedResolution::GetAllFields() {
    auto* detailed = dynamic_cast<AnyDetailedResolution*>(item_.get());
    return detailed != nullptr ? detailed->GetAllFields() : SharedNoTiming();
}

DetailedResolution& DetailedResolutionClipboard() {
    static DetailedResolution clipboard;
    return clipboard;
}

}  // namespace VNT

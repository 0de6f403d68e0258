#include "editor/range_limits_windows.h"

using namespace VNT;
using Forms::FormOf;

namespace {

constexpr Forms::TFormRow<EdidRangeLimitsTiming> TimingForms[] = {
    FormOf<EdidRangeLimitsSecondaryGtfTimingWindow, EdidRangeLimitsTiming>(),
    FormOf<EdidRangeLimitsCvtTimingWindow, EdidRangeLimitsTiming>(),
};

const Forms::TFormRow<EdidRangeLimitsTiming>* FindTimingForm(const EdidRangeLimitsTiming& timing) {
    return Forms::FindForm(EdidRangeLimitsTimingForms(), timing.GetType());
}

int GetTimingKind(const EdidRangeLimitsTiming& timing) {
    EdidRangeLimitsOtherTiming other;
    return other.Assign(timing) ? other.tag : timing.GetType();
}

}  // namespace

std::span<const Forms::TFormRow<EdidRangeLimitsTiming>> EdidRangeLimitsTimingForms() { return TimingForms; }

EdidRangeLimitsDescriptorWindow::EdidRangeLimitsDescriptorWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidRangeLimitsDescriptorWindow", L"Range Limits") {
    Group(L"Refresh rates").Number(Field<&Fields::minVRate>, L"000").Number(Field<&Fields::maxVRate>, L"000", L"Hz");
    Group(L"Scan rates").Number(Field<&Fields::minHRate>, L"000").Number(Field<&Fields::maxHRate>, L"000", L"kHz");
    Group(L"Max pixel clock").Number(Field<&Fields::maxPixelClock>, L"0000", L"MHz");
    AddTiming();
}

void EdidRangeLimitsDescriptorWindow::AddTiming() {
    auto group = Group(L"Timing");
    group.ComboOther(Forms::TBoundField{timingKind, "timing"}, EdidRangeLimitsTimingTypeId::Texts, L"000");
    group.OnChange([this] { ChooseTiming(); });
    group.Button(L"Edit...", [this] { EditTiming(); });
    group.EnabledIf([this] { return FindTimingForm(fields.timing) != nullptr; });
}

void EdidRangeLimitsDescriptorWindow::Update() {
    timingKind = GetTimingKind(fields.timing);
    other.Assign(fields.timing);
    TItemWindow::Update();
}

void EdidRangeLimitsDescriptorWindow::ChooseTiming() {
    if (timingKind == GetTimingKind(fields.timing)) return;
    const auto isOf = [](int type) { return [type](const auto& timing) { return timing.GetType() == type; }; };
    std::erase_if(timings, isOf(fields.timing.GetType()));
    timings.push_back(fields.timing);
    if (const auto* kind = Forms::FindKind(EdidRangeLimitsTimingKinds::All(), timingKind)) {
        const auto last = std::find_if(timings.begin(), timings.end(), isOf(kind->type));
        fields.timing = last != timings.end() ? *last : EdidRangeLimitsTiming(kind->make());
        return;
    }
    // A number that is typed runs through those of kinds with a class; the bytes behind it outlast that.
    other.tag = timingKind;
    fields.timing.Assign(other);
}

void EdidRangeLimitsDescriptorWindow::EditTiming() {
    EdidRangeLimitsTiming timing = fields.timing;
    const auto* form = FindTimingForm(timing);
    if (!form || form->edit(this, timing, EdidRangeLimitsTiming::FrameSize) != UI::IdOk) return;
    fields.timing = timing;
    Update();
}

EdidRangeLimitsSecondaryGtfTimingWindow::EdidRangeLimitsSecondaryGtfTimingWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidRangeLimitsSecondaryGtfTimingWindow", L"Secondary GTF") {
    Group(L"Start frequency").Number(Field<&Fields::startFrequency>, L"000", L"kHz");
    Group(L"C").Number(Field<&Fields::c>, L"000.0");
    Group(L"M").Number(Field<&Fields::m>, L"00000");
    Group(L"K").Number(Field<&Fields::k>, L"000");
    Group(L"J").Number(Field<&Fields::j>, L"000.0");
}

EdidRangeLimitsCvtTimingWindow::EdidRangeLimitsCvtTimingWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidRangeLimitsCvtTimingWindow", L"CVT") {
    using Ratio = EdidRangeLimitsCvtTimingAspectRatioEnum;
    Group(L"Version").Number(Field<&Fields::versionMajor>, L"00").Number(Field<&Fields::versionMinor>, L"00");
    Group(L"Subtract max pixel clock").Number(Field<&Fields::subtractPixelClock>, L"00.00", L"MHz");
    Group(L"Max width").Number(Field<&Fields::maxWidth>, L"0000", L"pixels");
    Group(L"Supported aspect ratios").Checks(Field<&Fields::aspectRatios>, Ratio::Texts);
    Group(L"Preferred aspect ratio").ComboOther(Field<&Fields::preferredAspectRatio>, Ratio::Texts, L"0");
    Group(L"Supported blanking").Checks(Field<&Fields::blanking>, EdidRangeLimitsCvtTimingBlankingFlagEnum::Texts);
    Group(L"Supported scaling").Checks(Field<&Fields::scaling>, EdidRangeLimitsCvtTimingScalingFlagEnum::Texts);
    Group(L"Preferred refresh rate").Number(Field<&Fields::preferredRefreshRate>, L"000", L"Hz");
}

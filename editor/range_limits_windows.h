// The forms of the range limits and of the two kinds of timing part that have more to tell than their kind.
#pragma once

#include <span>
#include <vector>

#include "editor/add_window.h"
#include "model/edid/range_limits_descriptor.h"

class EdidRangeLimitsDescriptorWindow : public TItemWindow<VNT::EdidRangeLimitsDescriptor> {
public:
    explicit EdidRangeLimitsDescriptorWindow(UI::Window* parent);

    void Update() override;

private:
    void AddTiming();
    // Brings the timing part in line with the chosen kind.
    void ChooseTiming();
    void EditTiming();

    int timingKind = 0;                               // the byte by which the timing part says its kind
    VNT::EdidRangeLimitsOtherTiming other;            // what a kind without a class held last
    std::vector<VNT::EdidRangeLimitsTiming> timings;  // what each kind with a class held last
};

class EdidRangeLimitsSecondaryGtfTimingWindow : public TItemWindow<VNT::EdidRangeLimitsSecondaryGtfTiming> {
public:
    explicit EdidRangeLimitsSecondaryGtfTimingWindow(UI::Window* parent);
};

class EdidRangeLimitsCvtTimingWindow : public TItemWindow<VNT::EdidRangeLimitsCvtTiming> {
public:
    explicit EdidRangeLimitsCvtTimingWindow(UI::Window* parent);
};

// The kinds of timing part that have a form.
std::span<const Forms::TFormRow<VNT::EdidRangeLimitsTiming>> EdidRangeLimitsTimingForms();

// The forms of the HDMI data blocks.
#pragma once

#include "editor/item_window.h"
#include "model/cta/hdmi.h"
#include "model/cta/hdmi2.h"

class HdmiResolutionWindow : public TItemWindow<VNT::HdmiResolution> {
public:
    explicit HdmiResolutionWindow(UI::Window* parent);
};

class HdmiStereoFormatWindow : public TItemWindow<VNT::HdmiStereoFormat> {
public:
    explicit HdmiStereoFormatWindow(UI::Window* parent);
};

class HdmiStereoFormatsWindow : public TItemWindow<VNT::HdmiStereoFormats> {
public:
    explicit HdmiStereoFormatsWindow(UI::Window* parent);
};

class CtaHdmiDataBlockWindow : public TItemWindow<VNT::CtaHdmiDataBlock> {
public:
    explicit CtaHdmiDataBlockWindow(UI::Window* parent);
    void Update() override;

private:
    // A latency, and whether there is nothing to be late.
    struct LatencyRow {
        int& latency;
        bool isNoSignal = false;
        int last = 0;  // what was there before a check box took it away
    };
    void AddLatencies(const std::wstring& text, int flag, LatencyRow& video, LatencyRow& audio);
    void AddLatency(TGroup<Fields>& group, LatencyRow& row, const std::wstring& label, const std::wstring& noSignal,
                    std::string_view name);

    LatencyRow video{fields.VideoLatency};
    LatencyRow audio{fields.AudioLatency};
    LatencyRow interlacedVideo{fields.InterlacedVideoLatency};
    LatencyRow interlacedAudio{fields.InterlacedAudioLatency};
};

class CtaHdmi2DataBlockWindow : public TItemWindow<VNT::CtaHdmi2DataBlock> {
public:
    explicit CtaHdmi2DataBlockWindow(UI::Window* parent);
};

// The forms of the CTA-861 audio formats.
#pragma once

#include <cstddef>
#include <span>

#include "editor/add_window.h"
#include "model/cta/audio_formats.h"

namespace Forms {

// Those of at most so many channels.
std::span<const VNT::ValueText<VNT::CtaAudioFormatChannelPresetEnum::Enum>> GetChannelPresets(int most);

}  // namespace Forms

// The name of a window class that is made by a template.
template <std::size_t size>
struct TWindowName {
    constexpr TWindowName(const wchar_t (&name)[size]) { std::copy_n(name, size, text); }
    wchar_t text[size]{};
};

// What the forms of the formats are put together from.
template <class X>
class TCtaAudioFormatWindow : public TItemWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

protected:
    TCtaAudioFormatWindow(UI::Window* parent, const std::wstring& className)
        : TItemWindow<X>(parent, className, VNT::String(VNT::CtaAudioFormatTypeId::TextOf(X::TypeValue)).ToWide()) {}

    void AddMaxChannels() {
        this->Group(L"Max channels")
            .ComboOther(Field<&Fields::MaxChannels>, Forms::GetChannelPresets(X::MostChannels), L"00");
    }
    void AddSampleRates() {
        this->Group(L"Sample rates")
            .Checks(Field<&Fields::SampleRates>, VNT::CtaAudioFormatSampleRateFlagEnum::Texts, L" kHz");
    }
    void AddFrameLengths() {
        this->Group(L"Frame lengths")
            .Checks(Field<&Fields::FrameLengths>, VNT::CtaAudioFormatFrameLengthFlagEnum::Texts, L" samples");
    }
};

template <class X, TWindowName name>
class TCtaBitRateAudioFormatWindow : public TCtaAudioFormatWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

    explicit TCtaBitRateAudioFormatWindow(UI::Window* parent) : TCtaAudioFormatWindow<X>(parent, name.text) {
        this->AddMaxChannels();
        this->AddSampleRates();
        this->Group(L"Max bit rate").Number(Field<&Fields::MaxBitRate>, L"0000", L"kbit/s");
    }
};

using CtaAc3AudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaAc3AudioFormat, L"CtaAc3AudioFormatWindow">;
using CtaMpeg1AudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaMpeg1AudioFormat, L"CtaMpeg1AudioFormatWindow">;
using CtaMp3AudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaMp3AudioFormat, L"CtaMp3AudioFormatWindow">;
using CtaMpeg2AudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaMpeg2AudioFormat, L"CtaMpeg2AudioFormatWindow">;
using CtaAacLcAudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaAacLcAudioFormat, L"CtaAacLcAudioFormatWindow">;
using CtaDtsAudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaDtsAudioFormat, L"CtaDtsAudioFormatWindow">;
using CtaAtracAudioFormatWindow = TCtaBitRateAudioFormatWindow<VNT::CtaAtracAudioFormat, L"CtaAtracAudioFormatWindow">;

template <class X, TWindowName name>
class TCtaFlagsAudioFormatWindow : public TCtaAudioFormatWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

    explicit TCtaFlagsAudioFormatWindow(UI::Window* parent) : TCtaAudioFormatWindow<X>(parent, name.text) {
        if constexpr (X::HasChannels) this->AddMaxChannels();
        this->AddSampleRates();
        this->Group(L"Flags").Number(Field<&Fields::Flags>, X::MostFlags > 9 ? L"000" : L"0");
    }
};

using CtaDsdAudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaDsdAudioFormat, L"CtaDsdAudioFormatWindow">;
using CtaEAc3AudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaEAc3AudioFormat, L"CtaEAc3AudioFormatWindow">;
using CtaDtsHdAudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaDtsHdAudioFormat, L"CtaDtsHdAudioFormatWindow">;
using CtaMatAudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaMatAudioFormat, L"CtaMatAudioFormatWindow">;
using CtaDstAudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaDstAudioFormat, L"CtaDstAudioFormatWindow">;
using CtaAc4AudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaAc4AudioFormat, L"CtaAc4AudioFormatWindow">;
using CtaAuroCxAudioFormatWindow = TCtaFlagsAudioFormatWindow<VNT::CtaAuroCxAudioFormat, L"CtaAuroCxAudioFormatWindow">;

template <class X, TWindowName name>
class TCtaPcmAudioFormatWindow : public TCtaAudioFormatWindow<X> {
public:
    using Fields = typename TItemWindow<X>::Fields;

    explicit TCtaPcmAudioFormatWindow(UI::Window* parent) : TCtaAudioFormatWindow<X>(parent, name.text) {
        this->AddMaxChannels();
        this->AddSampleRates();
        this->Group(L"Bit depths")
            .Checks(Field<&Fields::BitDepths>, VNT::CtaAudioFormatBitDepthFlagEnum::Texts, L"-bit");
    }
};

using CtaLpcmAudioFormatWindow = TCtaPcmAudioFormatWindow<VNT::CtaLpcmAudioFormat, L"CtaLpcmAudioFormatWindow">;
using CtaLpcm3dAudioFormatWindow = TCtaPcmAudioFormatWindow<VNT::CtaLpcm3dAudioFormat, L"CtaLpcm3dAudioFormatWindow">;

template <class X, TWindowName name>
class TCtaMpeg4AacAudioFormatWindow : public TCtaAudioFormatWindow<X> {
public:
    explicit TCtaMpeg4AacAudioFormatWindow(UI::Window* parent) : TCtaAudioFormatWindow<X>(parent, name.text) {
        this->AddMaxChannels();
        this->AddSampleRates();
        this->AddFrameLengths();
    }
};

using CtaMpeg4HeAacAudioFormatWindow =
    TCtaMpeg4AacAudioFormatWindow<VNT::CtaMpeg4HeAacAudioFormat, L"CtaMpeg4HeAacAudioFormatWindow">;
using CtaMpeg4HeAacV2AudioFormatWindow =
    TCtaMpeg4AacAudioFormatWindow<VNT::CtaMpeg4HeAacV2AudioFormat, L"CtaMpeg4HeAacV2AudioFormatWindow">;

template <class X, TWindowName name>
class TCtaMpeg4AacMpsAudioFormatWindow : public TCtaMpeg4AacAudioFormatWindow<X, name> {
public:
    using Fields = typename TItemWindow<X>::Fields;

    explicit TCtaMpeg4AacMpsAudioFormatWindow(UI::Window* parent) : TCtaMpeg4AacAudioFormatWindow<X, name>(parent) {
        this->Group(L"MPEG Surround")
            .Radio(Field<&Fields::ExplicitMps>, false, L"Implicit only")
            .Radio(Field<&Fields::ExplicitMps>, true, L"Implicit and explicit");
    }
};

using CtaMpeg4HeAacMpsAudioFormatWindow =
    TCtaMpeg4AacMpsAudioFormatWindow<VNT::CtaMpeg4HeAacMpsAudioFormat, L"CtaMpeg4HeAacMpsAudioFormatWindow">;
using CtaMpeg4AacLcMpsAudioFormatWindow =
    TCtaMpeg4AacMpsAudioFormatWindow<VNT::CtaMpeg4AacLcMpsAudioFormat, L"CtaMpeg4AacLcMpsAudioFormatWindow">;

class CtaMpeg4AacLcAudioFormatWindow : public TCtaAudioFormatWindow<VNT::CtaMpeg4AacLcAudioFormat> {
public:
    explicit CtaMpeg4AacLcAudioFormatWindow(UI::Window* parent);
};

class CtaWmaProAudioFormatWindow : public TCtaAudioFormatWindow<VNT::CtaWmaProAudioFormat> {
public:
    explicit CtaWmaProAudioFormatWindow(UI::Window* parent);
};

class CtaMpegDUsacAudioFormatWindow : public TCtaAudioFormatWindow<VNT::CtaMpegDUsacAudioFormat> {
public:
    explicit CtaMpegDUsacAudioFormatWindow(UI::Window* parent);
};

class CtaMpegH3dAudioFormatWindow : public TCtaAudioFormatWindow<VNT::CtaMpegH3dAudioFormat> {
public:
    explicit CtaMpegH3dAudioFormatWindow(UI::Window* parent);
};

class AddCtaAudioFormatWindow : public AddWindow {
public:
    AddCtaAudioFormatWindow(UI::Window* parent, std::vector<AddRow> offered)
        : AddWindow(parent, L"AddCtaAudioFormatWindow", L"Add Audio Format", std::move(offered)) {}
};

// In the order of the chooser.
std::span<const Forms::TFormRow<VNT::CtaAudioFormat>> CtaAudioFormatForms();

// Adds to an empty holder by way of the chooser, edits what a filled one holds.
int EditCtaAudioFormat(UI::Window* parent, VNT::CtaAudioFormat& format, int bytes);

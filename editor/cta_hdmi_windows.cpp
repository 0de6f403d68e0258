#include "editor/cta_hdmi_windows.h"

#include "editor/cta_video_windows.h"

using namespace VNT;

namespace {

constexpr ListCaptions ResolutionCaptions{U"HDMI resolutions ({countlefttext})", U"HDMI resolutions (no space left)",
                                          U"No HDMI resolutions"};
constexpr ListCaptions StereoFormatCaptions{U"3D formats ({sizelefttext})", U"3D formats (no space left)",
                                            U"No 3D formats"};

}  // namespace

HdmiResolutionWindow::HdmiResolutionWindow(UI::Window* parent)
    : TItemWindow(parent, L"HdmiResolutionWindow", L"HDMI Resolution") {
    Group(L"Resolution").Row(L"Format:").ComboOther(Field<&Fields::id>, Forms::GetHdmiFormatRows(), L"000");
}

HdmiStereoFormatWindow::HdmiStereoFormatWindow(UI::Window* parent)
    : TItemWindow(parent, L"HdmiStereoFormatWindow", L"3D Format") {
    Group(L"Order").Number(Field<&Fields::Order>, L"00");
    Group(L"Structure").ComboOther(Field<&Fields::Structure>, HdmiStereoFormatStructureEnum::Texts, L"00");
    Group(L"Detail").ComboOther(Field<&Fields::Detail>, HdmiStereoFormatDetailEnum::Texts, L"00");
}

HdmiStereoFormatsWindow::HdmiStereoFormatsWindow(UI::Window* parent)
    : TItemWindow(parent, L"HdmiStereoFormatsWindow", L"3D Formats") {
    using Flag = HdmiStereoFormatsStructureFlagEnum;
    Group(L"Fields present").Combo(Field<&Fields::FieldsPresent>, HdmiStereoFormatsFieldsPresentEnum::Texts);
    Group(L"Structures").Checks(Field<&Fields::Structures>, Flag::Texts);
    Group(L"Mask").Checks(Field<&Fields::Mask>, Flag::Texts);
    Group(L"").List(
        Field<&Fields::Formats>, StereoFormatCaptions, [this] { return item.GetListLimits(GetBytes()); },
        &Forms::EditItem<HdmiStereoFormatWindow>);
}

CtaHdmiDataBlockWindow::CtaHdmiDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaHdmiDataBlockWindow", L"HDMI v1") {
    using Flag2 = CtaHdmiDataBlockFlag2Enum;
    Group(L"Physical address").Dotted(Field<&Fields::PhysicalAddress>, L"00.00.00.00");
    Group(L"Flags").Checks(Field<&Fields::Flags>, CtaHdmiDataBlockFlagEnum::Texts);
    Group(L"Max TMDS clock").Number(Field<&Fields::MaxTmdsClock>, L"0000", L"MHz");
    Group(L"Content types").Checks(Field<&Fields::Flags2>, Flag2::ContentTexts);
    AddLatencies(L"Latency", Flag2::LatencyPresent, video, audio);
    AddLatencies(L"Interlaced latency", Flag2::InterlacedLatencyPresent, interlacedVideo, interlacedAudio);
    Group(L"Image size").Combo(Field<&Fields::ImageSize>, CtaHdmiDataBlockImageSizeEnum::Texts);
    Group(L"3D support")
        .Check(Field<&Fields::Supports3d>, L"Supports 3D")
        .Button(L"Edit...",
                [this] {
                    HdmiStereoFormatsWindow(this).Run(fields.StereoFormats, item.GetStereoRoom(GetBytes()));
                    Update();
                })
        .EnabledIf([this] { return IsAvailable("StereoFormats"); });
    Group(L"").List(
        Field<&Fields::Resolutions>, ResolutionCaptions, [this] { return item.GetResolutionLimits(GetBytes()); },
        &Forms::EditItem<HdmiResolutionWindow>);
}

void CtaHdmiDataBlockWindow::AddLatencies(const std::wstring& text, int flag, LatencyRow& videoRow,
                                          LatencyRow& audioRow) {
    const bool isInterlaced = flag == CtaHdmiDataBlockFlag2Enum::InterlacedLatencyPresent;
    const std::string_view videoName = isInterlaced ? "InterlacedVideoLatency" : "VideoLatency";
    const std::string_view audioName = isInterlaced ? "InterlacedAudioLatency" : "AudioLatency";
    auto group = Group(L"");
    group.Flag(Forms::TBoundField{fields.Flags2, audioName}, flag, text).OnChange([this, flag, &videoRow, &audioRow] {
        const bool isOn = fields.Flags2.Test(static_cast<CtaHdmiDataBlockFlag2Enum::Enum>(flag));
        for (LatencyRow* row : {&videoRow, &audioRow}) {
            if (!isOn) row->last = row->latency;
            row->latency = isOn ? row->last : Undefined;
        }
        // The flag follows from them.
        if (isOn && videoRow.latency == Undefined && audioRow.latency == Undefined)
            videoRow.latency = audioRow.latency = 0;
    });
    AddLatency(group, videoRow, L"Video:", L"No video", videoName);
    AddLatency(group, audioRow, L"Audio:", L"No audio", audioName);
}

void CtaHdmiDataBlockWindow::AddLatency(TGroup<Fields>& group, LatencyRow& row, const std::wstring& label,
                                        const std::wstring& noSignal, std::string_view name) {
    group.Row(label).Number(Forms::TBoundField<int>{row.latency, name}, L"000", L"ms").VisibleIf([&row] {
        return !row.isNoSignal;
    });
    group.Check(Forms::TBoundField<bool>{row.isNoSignal, name}, noSignal).OnChange([&row] {
        if (row.isNoSignal) row.last = row.latency;
        row.latency = row.isNoSignal ? Fields::NoSignal : row.last == Fields::NoSignal ? 0 : row.last;
    });
}

void CtaHdmiDataBlockWindow::Update() {
    for (LatencyRow* row : {&video, &audio, &interlacedVideo, &interlacedAudio})
        row->isNoSignal = row->latency == Fields::NoSignal;
    TItemWindow::Update();
}

CtaHdmi2DataBlockWindow::CtaHdmi2DataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaHdmi2DataBlockWindow", L"HDMI v2") {
    using Flag = CtaHdmi2DataBlockFlagEnum;
    using Flag3 = CtaHdmi2DataBlockFlag3Enum;
    using FrlRate = CtaHdmi2DataBlockMaxFrlRateEnum;
    Group(L"Version").Number(Field<&Fields::Version>, L"000");
    Group(L"Max TMDS character rate").Number(Field<&Fields::MaxTmdsCharacterRate>, L"0000", L"Mcsc");
    Group(L"Flags").Checks(Field<&Fields::Flags>, Flag::Texts);
    Group(L"3D flags").Checks(Field<&Fields::Flags>, Flag::StereoTexts);
    Group(L"YCbCr 4:2:0 deep color").Checks(Field<&Fields::Flags>, Flag::DepthTexts);
    Group(L"Max FRL rate").ComboOther(Field<&Fields::MaxFrlRate>, FrlRate::Texts, L"00");
    Group(L"Additional flags").Checks(Field<&Fields::Flags2>, CtaHdmi2DataBlockFlag2Enum::Texts);
    Group(L"VRR range").Number(Field<&Fields::VrrMin>, L"00", L"\u2013").Number(Field<&Fields::VrrMax>, L"0000", L"Hz");
    Group(L"QMS flags").Checks(Field<&Fields::Flags3>, Flag3::QmsTexts);
    Group(L"DSC flags").Checks(Field<&Fields::Flags3>, Flag3::DscTexts);
    Group(L"DSC deep color").Checks(Field<&Fields::Flags3>, Flag3::DepthTexts);
    Group(L"DSC max slices").ComboOther(Field<&Fields::DscMaxSlices>, CtaHdmi2DataBlockDscMaxSlicesEnum::Texts, L"00");
    Group(L"DSC max FRL rate").ComboOther(Field<&Fields::DscMaxFrlRate>, FrlRate::DscTexts, L"00");
    Group(L"DSC total chunk size").Number(Field<&Fields::DscTotalChunkSize>, L"00", L"KiB");
}

#include "editor/cta_hdmi_windows.h"

using namespace VNT;

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

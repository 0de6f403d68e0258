#include "editor/cta_sync_windows.h"

#include "editor/raw_rows.h"

using namespace VNT;

CtaFreeSyncDataBlockWindow::CtaFreeSyncDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaFreeSyncDataBlockWindow", L"FreeSync") {
    Group(L"Version").Number(Field<&Fields::Version>, L"000");
    Group(L"Flags").Checks(Field<&Fields::Flags>, CtaFreeSyncDataBlockFlagEnum::Texts);
    Group(L"Refresh rates")
        .Number(Field<&Fields::MinRefreshRate>, L"000", L"–")
        .Number(Field<&Fields::MaxRefreshRate>, L"000", L"Hz");
    Group(L"VCP code").Number(Field<&Fields::VcpCode>, L"000");
    const auto addProfile = [this](const wchar_t* caption, auto max, auto maxRaw, auto min, auto minRaw) {
        auto group = Group(caption).Aligned();
        AddRawRow(group, Forms::LuminanceRow, fields.RawMode, L"Max luminance:", max, maxRaw);
        AddRawRow(group, Forms::LuminanceRow, fields.RawMode, L"Min luminance:", min, minRaw);
    };
    addProfile(L"HDR profile #1", Field<&Fields::Profile1MaxLuminance>, Field<&Fields::Profile1MaxRaw>,
               Field<&Fields::Profile1MinLuminance>, Field<&Fields::Profile1MinRaw>);
    addProfile(L"HDR profile #2", Field<&Fields::Profile2MaxLuminance>, Field<&Fields::Profile2MaxRaw>,
               Field<&Fields::Profile2MinLuminance>, Field<&Fields::Profile2MinRaw>);
    Group(L"V3 max refresh rate").Number(Field<&Fields::V3MaxRefreshRate>, L"0000", L"Hz");
    Group(L"V3 max pixel clock").Number(Field<&Fields::V3MaxPixelClock>, L"00000.000", L"MHz");
}

CtaGSyncDataBlockWindow::CtaGSyncDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaGSyncDataBlockWindow", L"G-SYNC") {
    Group(L"Version").Number(Field<&Fields::Version>, L"000");
    Group(L"Min refresh rate").Number(Field<&Fields::MinRefreshRate>, L"000", L"Hz");
}

CtaMicrosoftDataBlockWindow::CtaMicrosoftDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaMicrosoftDataBlockWindow", L"Microsoft") {
    Group(L"Version").Number(Field<&Fields::Version>, L"000");
    Group(L"Primary use case")
        .ComboOther(Field<&Fields::PrimaryUseCase>, CtaMicrosoftDataBlockPrimaryUseCaseEnum::Texts, L"00");
    Group(L"Flags").Checks(Field<&Fields::Flags>, CtaMicrosoftDataBlockFlagEnum::Texts);
    Group(L"Container ID").HexBytes(Field<&Fields::ContainerId>, L"00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

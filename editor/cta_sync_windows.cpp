#include "editor/cta_sync_windows.h"

using namespace VNT;

CtaFreeSyncDataBlockWindow::CtaFreeSyncDataBlockWindow(UI::Window* parent)
    : TItemWindow(parent, L"CtaFreeSyncDataBlockWindow", L"FreeSync") {
    Group(L"Version").Number(Field<&Fields::Version>, L"000");
    Group(L"Flags").Checks(Field<&Fields::Flags>, CtaFreeSyncDataBlockFlagEnum::Texts);
    Group(L"Refresh rates")
        .Number(Field<&Fields::MinRefreshRate>, L"000", L"–")
        .Number(Field<&Fields::MaxRefreshRate>, L"000", L"Hz");
    Group(L"VCP code").Number(Field<&Fields::VcpCode>, L"000");
    const auto addProfile = [this](const wchar_t* caption, LuminanceRows& rows, auto max, auto maxRaw, auto min,
                                   auto minRaw) {
        auto group = Group(caption).Aligned();
        rows.AddMax(group, fields.RawMode, L"Max luminance:", max, maxRaw);
        rows.AddMin(group, fields.RawMode, L"Min luminance:", min, minRaw);
    };
    addProfile(L"HDR profile #1", rows1, Field<&Fields::Profile1MaxLuminance>, Field<&Fields::Profile1MaxRaw>,
               Field<&Fields::Profile1MinLuminance>, Field<&Fields::Profile1MinRaw>);
    addProfile(L"HDR profile #2", rows2, Field<&Fields::Profile2MaxLuminance>, Field<&Fields::Profile2MaxRaw>,
               Field<&Fields::Profile2MinLuminance>, Field<&Fields::Profile2MinRaw>);
    Group(L"V3 max refresh rate").Number(Field<&Fields::V3MaxRefreshRate>, L"0000", L"Hz");
    Group(L"V3 max pixel clock").Number(Field<&Fields::V3MaxPixelClock>, L"00000.000", L"MHz");
}

Forms::FieldState CtaFreeSyncDataBlockWindow::GetFieldState(std::string_view field) const {
    const Forms::FieldState state = TItemWindow::GetFieldState(field);
    if (field == "Profile1MaxLuminance") return StateOfSaid(state, fields.Profile1MaxLuminance, fields.Profile1MaxRaw);
    if (field == "Profile1MinLuminance") return StateOfSaid(state, fields.Profile1MinLuminance, fields.Profile1MinRaw);
    if (field == "Profile2MaxLuminance") return StateOfSaid(state, fields.Profile2MaxLuminance, fields.Profile2MaxRaw);
    if (field == "Profile2MinLuminance") return StateOfSaid(state, fields.Profile2MinLuminance, fields.Profile2MinRaw);
    return state;
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

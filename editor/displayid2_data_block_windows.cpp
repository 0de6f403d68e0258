#include "editor/displayid2_data_block_windows.h"

using namespace VNT;

DisplayId2DetailedResolutionListDataBlockWindow::DisplayId2DetailedResolutionListDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId2DetailedResolutionListDataBlockWindow", L"Detailed Resolutions") {
    Group(L"Flags").Checks(Field<&Fields::resolutionFlags>, DisplayId2DetailedResolutionListDataBlockFlagEnum::Texts);
    AddResolutions<DisplayId2DetailedResolutionWindow>();
}

DisplayId2DetailedResolutionListDataBlockWindowR2::DisplayId2DetailedResolutionListDataBlockWindowR2(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId2DetailedResolutionListDataBlockWindowR2",
                                L"Detailed Resolutions r2") {
    Group(L"Flags").Checks(Field<&Fields::resolutionFlags>, DisplayId2DetailedResolutionListDataBlockFlagEnum::Texts);
    AddResolutions<DisplayId2DetailedResolutionWindowR2>();
}

DisplayId2RangeLimitsDataBlockWindow::DisplayId2RangeLimitsDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId2RangeLimitsDataBlockWindow", L"Range Limits") {
    Group(L"Pixel clocks")
        .Number(Field<&Fields::minPixelClock>, L"0000.000")
        .Number(Field<&Fields::maxPixelClock>, L"00000.000", L"MHz");
    Group(L"Refresh rates").Number(Field<&Fields::minVRate>, L"000").Number(Field<&Fields::maxVRate>, L"0000", L"Hz");
    Group(L"Flags").Checks(Field<&Fields::rangeFlags>, DisplayId2RangeLimitsDataBlockFlagEnum::Texts);
}

DisplayId2DisplayInterfaceDataBlockWindow::DisplayId2DisplayInterfaceDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId2DisplayInterfaceDataBlockWindow", L"Display Interface") {
    constexpr auto& depths = DisplayId2DisplayInterfaceDataBlockColorDepthFlagEnum::Texts;
    Group(L"RGB color depth").Checks(Field<&Fields::rgbColorDepth>, depths);
    Group(L"YCbCr 4:4:4 color depth").Checks(Field<&Fields::ycc444ColorDepth>, depths);
    Group(L"YCbCr 4:2:2 color depth").Checks(Field<&Fields::ycc422ColorDepth>, depths);
    Group(L"YCbCr 4:2:0 color depth").Checks(Field<&Fields::ycc420ColorDepth>, depths);
    Group(L"YCbCr 4:2:0 min pixel rate").Number(Field<&Fields::ycc420MinPixelRate>, L"00000.00", L"MHz");
    Group(L"Audio sample rates")
        .Checks(Field<&Fields::audioSampleRates>, DisplayId2DisplayInterfaceDataBlockAudioFlagEnum::Texts);
    Group(L"Colorimetry flags")
        .Checks(Field<&Fields::colorimetryFlags>, DisplayId2DisplayInterfaceDataBlockColorimetryFlagEnum::Texts);
    Group(L"").List(
        Field<&Fields::colorimetry>, ColorimetryCaptions, [this] { return item.GetListLimits(GetBytes()); },
        &Forms::EditItem<DisplayId2DisplayInterfaceColorimetryWindow>);
}

DisplayId2DisplayInterfaceColorimetryWindow::DisplayId2DisplayInterfaceColorimetryWindow(UI::Window* parent)
    : TItemWindow(parent, L"DisplayId2DisplayInterfaceColorimetryWindow", L"Colorimetry") {
    Group(L"Color space")
        .ComboOther(Field<&Fields::colorSpace>, DisplayId2DisplayInterfaceColorSpaceEnum::Texts, L"00");
    Group(L"EOTF").ComboOther(Field<&Fields::eotf>, DisplayId2DisplayInterfaceEotfEnum::Texts, L"00");
}

DisplayId2ContainerIdDataBlockWindow::DisplayId2ContainerIdDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId2ContainerIdDataBlockWindow", L"Container ID") {
    Group(L"Container ID").HexBytes(Field<&Fields::containerId>, L"00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

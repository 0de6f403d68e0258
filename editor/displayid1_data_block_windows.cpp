#include "editor/displayid1_data_block_windows.h"

using namespace VNT;

DisplayId1DetailedResolutionListDataBlockWindow::DisplayId1DetailedResolutionListDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId1DetailedResolutionListDataBlockWindow", L"Detailed Resolutions") {
    AddResolutions<DisplayId1DetailedResolutionWindow>();
}

DisplayId1DisplayParametersDataBlockWindow::DisplayId1DisplayParametersDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId1DisplayParametersDataBlockWindow", L"Display Parameters") {
    Group(L"Image size")
        .Number(Field<&Fields::imageWidth>, L"0000.0")
        .Number(Field<&Fields::imageHeight>, L"0000.0", L"mm");
    Group(L"Native resolution")
        .Number(Field<&Fields::nativeWidth>, L"00000")
        .Number(Field<&Fields::nativeHeight>, L"00000");
    Group(L"Flags").Checks(Field<&Fields::featureFlags>, DisplayId1DisplayParametersDataBlockFlagEnum::Texts);
    Group(L"Gamma").Number(Field<&Fields::gamma>, L"0.00");
    Group(L"Aspect ratio").Number(Field<&Fields::aspectRatio>, L"0.00");
    Group(L"Native color depth").Number(Field<&Fields::nativeColorDepth>, L"00", L"bpc");
    Group(L"Overall color depth").Number(Field<&Fields::overallColorDepth>, L"00", L"bpc");
}

DisplayId1RangeLimitsDataBlockWindow::DisplayId1RangeLimitsDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId1RangeLimitsDataBlockWindow", L"Range Limits") {
    Group(L"Pixel clocks")
        .Number(Field<&Fields::minPixelClock>, L"00000.00")
        .Number(Field<&Fields::maxPixelClock>, L"000000.00", L"MHz");
    Group(L"Scan rates").Number(Field<&Fields::minHRate>, L"000").Number(Field<&Fields::maxHRate>, L"000", L"kHz");
    Group(L"Min horizontal blanking").Number(Field<&Fields::minHBlank>, L"00000", L"pixels");
    Group(L"Refresh rates").Number(Field<&Fields::minVRate>, L"000").Number(Field<&Fields::maxVRate>, L"000", L"Hz");
    Group(L"Min vertical blanking").Number(Field<&Fields::minVBlank>, L"00000", L"lines");
    Group(L"Flags").Checks(Field<&Fields::limitFlags>, DisplayId1RangeLimitsDataBlockFlagEnum::Texts);
}

DisplayId1SerialNumberDataBlockWindow::DisplayId1SerialNumberDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId1SerialNumberDataBlockWindow", L"Serial Number") {
    Group(L"Serial number").SizedText(Field<&Fields::text>, [this] { return Item::GetExtraRoom(GetBytes()); });
}

DisplayId1TextDataBlockWindow::DisplayId1TextDataBlockWindow(UI::Window* parent)
    : TDisplayIdDataBlockWindow(parent, L"DisplayId1TextDataBlockWindow", L"Text") {
    Group(L"Text").SizedText(Field<&Fields::text>, [this] { return Item::GetExtraRoom(GetBytes()); });
}

#include "editor/short_resolution_windows.h"

using namespace VNT;

EdidStandardResolutionWindow::EdidStandardResolutionWindow(UI::Window* parent)
    : TShortResolutionWindow(parent, L"EdidStandardResolutionWindow", L"Standard Resolution") {
    Group(L"Refresh rate").Number(Field<&Fields::refreshRate>, L"000", L"Hz");
}

EdidCvtResolutionWindow::EdidCvtResolutionWindow(UI::Window* parent)
    : TShortResolutionWindow(parent, L"EdidCvtResolutionWindow", L"CVT Resolution") {
    Group(L"Refresh rates").Checks(Field<&Fields::refreshRates>, EdidCvtResolutionRefreshRateEnum::Texts);
    Group(L"Preferred refresh rate")
        .Combo(Field<&Fields::preferredRefreshRate>, EdidCvtResolutionRefreshRateEnum::PreferredTexts);
}

int EditEdidStandardResolution(UI::Window* parent, EdidStandardResolution& resolution, int) {
    return EdidStandardResolutionWindow(parent).Run(resolution);
}

int EditEdidCvtResolution(UI::Window* parent, EdidCvtResolution& resolution, int) {
    return EdidCvtResolutionWindow(parent).Run(resolution);
}

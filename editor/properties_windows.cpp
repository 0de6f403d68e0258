#include "editor/properties_windows.h"

#include "editor/raw_rows.h"

using namespace VNT;

EdidColorCoordinatesWindow::EdidColorCoordinatesWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidColorCoordinatesWindow", L"Color Coordinates") {
    AddPoint(L"Red", Fields::RedX);
    AddPoint(L"Green", Fields::GreenX);
    AddPoint(L"Blue", Fields::BlueX);
    AddPoint(L"White", Fields::WhiteX);
}

void EdidColorCoordinatesWindow::AddPoint(const std::wstring& caption, Fields::Coordinate x) {
    auto group = Group(caption).Aligned();
    for (const auto at : {static_cast<std::size_t>(x), static_cast<std::size_t>(x) + 1}) {
        const char* name = EdidColorCoordinates::Names[at];
        AddRawRow(group, Forms::CoordinateRow, fields.useRaw, at == static_cast<std::size_t>(x) ? L"x:" : L"y:",
                  Forms::TBoundField{fields.value[at], name}, Forms::TBoundField{fields.raw[at], name});
    }
}

EdidPropertiesWindow::EdidPropertiesWindow(UI::Window* parent)
    : TItemWindow(parent, L"EdidPropertiesWindow", L"Properties") {
    const auto is14 = [this] { return fields.IsVersion14(); };
    const auto isOlder = [this] { return !fields.IsVersion14(); };
    auto group = Group(L"").Aligned();
    group.Row(L"Vendor ID:").Text(Field<&Fields::vendorId>, L"AAA");
    group.Row(L"Product ID:").Hex(Field<&Fields::productId>, L"0000");
    group.Row(L"Serial number:").Number(Field<&Fields::serialNumber>, L"0000000000");
    group.Row(L"Week:").Number(Field<&Fields::week>, L"000").Check(Field<&Fields::modelYear>, L"Model year");
    group.Row(L"Year:").Number(Field<&Fields::year>, L"0000");
    group.Row(L"Version:").Number(Field<&Fields::version>, L"000").Number(Field<&Fields::revision>, L"000");
    group.Row(L"Signal type:").Combo(Field<&Fields::digital>, EdidSignalTypeTexts);
    group.Row(L"Analog signal level:").Combo(Field<&Fields::analogSignalLevel>, EdidAnalogSignalLevelEnum::Texts);
    group.Row(L"Analog flags:").Checks(Field<&Fields::analogFlags>, EdidAnalogFlagEnum::Texts);
    group.Row(L"Digital interface:").VisibleIf(isOlder);
    group.Checks(Field<&Fields::digitalFlags>, EdidDigitalFlagEnum::Texts);
    group.Row(L"Digital interface:").VisibleIf(is14);
    group.ComboOther(Field<&Fields::digitalInterface>, EdidDigitalInterfaceEnum::Texts, L"00");
    group.Row(L"Digital color depth:")
        .ComboOther(Field<&Fields::digitalColorDepth>, EdidDigitalColorDepthEnum::Texts, L"0");
    group.Row(L"Screen information:").Combo(Field<&Fields::screenFieldsPresent>, EdidScreenFieldsPresentEnum::Texts);
    group.Row(L"Screen size:").Number(Field<&Fields::horizontalSize>, L"000");
    group.Number(Field<&Fields::verticalSize>, L"000", L"cm");
    group.Row(L"Aspect ratio:").Number(Field<&Fields::aspectRatio>, L"0.00");
    group.Row(L"Gamma:").Number(Field<&Fields::gamma>, L"0.00");
    group.Row(L"Power management:").Checks(Field<&Fields::powerFlags>, EdidPowerFlagEnum::Texts);
    group.Row(L"Color type:").Combo(Field<&Fields::colorType>, EdidColorTypeEnum::Texts);
    group.Row(L"Digital color formats:");
    group.Checks(Field<&Fields::digitalColorFormats>, EdidDigitalColorFormatFlagEnum::Texts);
    group.Row(L"Timing:").Flag(Field<&Fields::flags>, EdidFlagEnum::PreferredTiming, L"Preferred timing");
    group.Flag(Field<&Fields::flags>, EdidFlagEnum::ContinuousFrequency, L"Default GTF").VisibleIf(isOlder);
    group.Flag(Field<&Fields::flags>, EdidFlagEnum::ContinuousFrequency, L"Continuous frequency").VisibleIf(is14);
    group.Row(L"Color space:").Flag(Field<&Fields::flags>, EdidFlagEnum::Srgb, L"sRGB");
    group.Button(L"Edit...", [this] { EditColors(); });
}

void EdidPropertiesWindow::EditColors() {
    EdidColorCoordinates colors = fields.colors;
    if (EdidColorCoordinatesWindow(this).Run(colors) != UI::IdOk) return;
    fields.colors = colors;
    Update();
}

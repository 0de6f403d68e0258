#include "editor/properties_windows.h"

#include <gtest/gtest.h>

#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

int RunColors(Driver& driver, EdidColorCoordinates& colors, const std::function<void()>& steps) {
    driver.Then(steps);
    EdidColorCoordinatesWindow window(nullptr);
    return window.Run(colors);
}

int RunProperties(Driver& driver, EdidPropertiesFields& fields, const std::function<void()>& steps) {
    driver.Then(steps);
    EdidPropertiesWindow window(nullptr);
    return window.Run(fields);
}

TEST(ColorCoordinatesForm, TypingOneLeavesTheRawBoxEmptyAndNoWayToConfirm) {
    Driver driver;
    EdidColorCoordinates colors;
    EXPECT_EQ(RunColors(driver, colors,
                        [&] {
                            driver.Enter(driver.Find<TextBox>({L"Red", L"x:"}), L"1.0000");
                            EXPECT_EQ(driver.Find<TextBox>({L"Red", L"Raw:"}).GetText(), L"");
                            EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
                            driver.Press(Key::Return);
                            driver.Press(Key::Escape);
                        }),
              IdCancel);
    EXPECT_EQ(colors, EdidColorCoordinates());
}

TEST(ColorCoordinatesForm, TheTypedOneOfThePairLeads) {
    Driver driver;
    EdidColorCoordinates colors;
    EXPECT_EQ(RunColors(driver, colors,
                        [&] {
                            driver.Enter(driver.Find<TextBox>({L"White", L"x:"}), L"0.5");
                            EXPECT_EQ(driver.Find<TextBox>({L"White", L"Raw:"}).GetText(), L"512");
                            driver.Enter(driver.Find<TextBox>({L"White", L"Raw:"}), L"256");
                            EXPECT_EQ(driver.Find<TextBox>({L"White", L"x:"}).GetText(), L"0.2500");
                            driver.Press(Key::Return);
                        }),
              IdOk);
    EXPECT_EQ(colors.raw[EdidColorCoordinates::WhiteX], 256);
    EXPECT_TRUE(colors.useRaw);
}

TEST(PropertiesForm, TheVersionChoosesTheDigitalInterfaceControl) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    RunProperties(driver, fields, [&] {
        auto& older = driver.Find<CheckBox>(L"DFP compatible");
        EXPECT_TRUE(older.IsVisible());
        driver.Enter(driver.Find<TextBox>(L"Version:", 1), L"4");
        EXPECT_FALSE(older.IsVisible());
        EXPECT_TRUE(driver.Find<ComboBox>(L"Digital interface:").IsVisible());
        EXPECT_TRUE(driver.Find<CheckBox>(L"Continuous frequency").IsVisible());
        EXPECT_TRUE(driver.Find<ComboBox>(L"Screen information:").IsEnabled());
        driver.Enter(driver.Find<TextBox>(L"Version:", 1), L"3");
        EXPECT_TRUE(older.IsVisible());
        EXPECT_TRUE(driver.Find<CheckBox>(L"Default GTF").IsVisible());
        driver.Press(Key::Escape);
    });
}

TEST(PropertiesForm, ANumberOfItsOwnComesBackWithTheSignalType) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    fields.revision = 4;
    RunProperties(driver, fields, [&] {
        auto& depth = driver.Find<ComboBox>(L"Digital color depth:");
        auto& interface = driver.Find<ComboBox>(L"Digital interface:");
        driver.Choose(depth, L"Other");
        driver.Enter(driver.Find<TextBox>(L"Digital color depth:"), L"7");
        driver.Choose(interface, L"Other");
        auto& number = driver.Find<TextBox>(L"Digital interface:");
        driver.Enter(number, L"9");
        driver.Choose(driver.Find<ComboBox>(L"Signal type:"), L"Analog");
        driver.Enter(driver.Find<TextBox>(L"Serial number:"), L"5");
        EXPECT_EQ(depth.GetItemText(depth.GetSelection()), L"Undefined");
        driver.Choose(driver.Find<ComboBox>(L"Signal type:"), L"Digital");
        EXPECT_EQ(driver.Find<TextBox>(L"Digital color depth:").GetText(), L"7");
        EXPECT_EQ(interface.GetItemText(interface.GetSelection()), L"Other");
        EXPECT_EQ(number.GetText(), L"9");
        driver.Press(Key::Escape);
    });
}

TEST(PropertiesForm, TheModelYearTakesTheWeek) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    fields.revision = 4;
    fields.screenFieldsPresent = EdidScreenFieldsPresentEnum::None;
    fields.week = 12;
    EXPECT_EQ(RunProperties(driver, fields,
                            [&] {
                                driver.Click(driver.Find<CheckBox>(L"Model year"));
                                EXPECT_FALSE(driver.Find<TextBox>(L"Week:").IsEnabled());
                                EXPECT_EQ(driver.Find<TextBox>(L"Week:").GetText(), L"");
                                driver.Press(Key::Return);
                            }),
              IdOk);
    EXPECT_TRUE(fields.modelYear);
    EXPECT_EQ(fields.week, Undefined);
}

TEST(PropertiesForm, ABadVendorIdIsRedAndKeepsOkClosed) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    EXPECT_EQ(RunProperties(driver, fields,
                            [&] {
                                driver.Enter(driver.Find<TextBox>(L"Vendor ID:"), L"abc");
                                EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
                                driver.Enter(driver.Find<TextBox>(L"Vendor ID:"), L"ABC");
                                driver.Enter(driver.Find<TextBox>(L"Product ID:"), L"00fe");
                                driver.Press(Key::Return);
                            }),
              IdOk);
    EXPECT_EQ(fields.vendorId, U"ABC");
    EXPECT_EQ(fields.productId, 0xFE);
}

TEST(PropertiesForm, OpensTheColorCoordinates) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    driver.Then([&] { driver.Click(driver.Find<Button>(L"Edit...")); });
    driver.Then([&] {
        driver.Enter(driver.Find<TextBox>({L"Red", L"Raw:"}), L"700");
        driver.Press(Key::Return);
    });
    driver.Then([&] { driver.Click(driver.Find<Button>(L"OK")); });
    EdidPropertiesWindow window(nullptr);
    EXPECT_EQ(window.Run(fields), IdOk);
    EXPECT_EQ(fields.colors.raw[EdidColorCoordinates::RedX], 700);
}

TEST(PropertiesForm, TheSignalTypeOpensItsOwnFields) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    fields.revision = 4;
    RunProperties(driver, fields, [&] {
        EXPECT_FALSE(driver.Find<ComboBox>(L"Analog signal level:").IsEnabled());
        EXPECT_FALSE(driver.Find<CheckBox>(L"Serrations").IsEnabled());
        EXPECT_TRUE(driver.Find<ComboBox>(L"Digital color depth:").IsEnabled());
        EXPECT_TRUE(driver.Find<CheckBox>(L"YCbCr 4:2:2").IsEnabled());
        EXPECT_FALSE(driver.Find<ComboBox>(L"Color type:").IsEnabled());
        driver.Choose(driver.Find<ComboBox>(L"Digital color depth:"), L"30-bit (10 bpc)");
        driver.Choose(driver.Find<ComboBox>(L"Signal type:"), L"Analog");
        EXPECT_TRUE(driver.Find<CheckBox>(L"Serrations").IsEnabled());
        EXPECT_FALSE(driver.Find<ComboBox>(L"Digital color depth:").IsEnabled());
        EXPECT_FALSE(driver.Find<ComboBox>(L"Digital interface:").IsEnabled());
        EXPECT_TRUE(driver.Find<ComboBox>(L"Color type:").IsEnabled());
        driver.Choose(driver.Find<ComboBox>(L"Signal type:"), L"Digital");
        EXPECT_EQ(driver.Find<ComboBox>(L"Digital color depth:").GetSelection(), 3) << "what went comes back";
        driver.Press(Key::Escape);
    });
}

TEST(PropertiesForm, TheScreenInformationChoosesSizeOrRatio) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    fields.revision = 4;
    EXPECT_EQ(RunProperties(driver, fields,
                            [&] {
                                auto& screen = driver.Find<ComboBox>(L"Screen information:");
                                driver.Choose(screen, L"Screen size");
                                EXPECT_TRUE(driver.Find<TextBox>(L"Screen size:").IsEnabled());
                                EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled()) << "a size needs both sides";
                                driver.Choose(screen, L"Portrait aspect ratio");
                                EXPECT_FALSE(driver.Find<TextBox>(L"Screen size:").IsEnabled());
                                driver.Enter(driver.Find<TextBox>(L"Aspect ratio:"), L"1.78");
                                driver.Press(Key::Return);
                            }),
              IdOk);
    EXPECT_EQ(fields.screenFieldsPresent, EdidScreenFieldsPresentEnum::PortraitAspectRatio);
    EXPECT_EQ(fields.aspectRatio, Decimal(178, 2));
    EXPECT_EQ(fields.horizontalSize, Undefined);
}

TEST(PropertiesForm, AnInterfaceWithoutARowIsAnotherNumber) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    fields.revision = 4;
    fields.screenFieldsPresent = EdidScreenFieldsPresentEnum::None;
    fields.digitalInterface = static_cast<EdidDigitalInterfaceEnum::Enum>(9);
    EXPECT_EQ(RunProperties(driver, fields,
                            [&] {
                                auto& box = driver.Find<TextBox>(L"Digital interface:");
                                EXPECT_EQ(box.GetText(), L"9");
                                driver.Enter(box, L"16");
                                EXPECT_FALSE(box.HasValidStyle());
                                driver.Enter(box, L"15");
                                driver.Press(Key::Return);
                            }),
              IdOk);
    EXPECT_EQ(static_cast<int>(fields.digitalInterface), 15);
}

TEST(PropertiesForm, AnEmptySerialNumberIsNone) {
    Driver driver;
    EdidPropertiesFields fields = EdidProperties();
    fields.serialNumber = 4294967295;
    EXPECT_EQ(RunProperties(driver, fields,
                            [&] {
                                auto& box = driver.Find<TextBox>(L"Serial number:");
                                EXPECT_EQ(box.GetText(), L"4294967295");
                                driver.Enter(box, L"0");
                                EXPECT_FALSE(box.HasValidStyle());
                                driver.Enter(box, L"");
                                EXPECT_TRUE(box.HasValidStyle());
                                driver.Press(Key::Return);
                            }),
              IdOk);
    EXPECT_EQ(fields.serialNumber, Undefined);
}

}  // namespace

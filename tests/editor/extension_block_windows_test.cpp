#include "editor/extension_block_windows.h"

#include <gtest/gtest.h>

#include "editor/cta_data_block_windows.h"
#include "editor/displayid_data_block_windows.h"
#include "model/cta/extension_override.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

// Chooses a row of the chooser that is open.
void ChooseKind(Driver& driver, const wchar_t* text) {
    driver.Click(driver.Find<RadioButton>(text));
    driver.Press(Key::Return);
}

EdidCtaExtensionBlockFields FilledWith(int colorimetryBlocks) {
    EdidCtaExtensionBlockFields fields;
    for (int i = 0; i < colorimetryBlocks; ++i) fields.dataBlocks.Add(CtaDataBlock(CtaColorimetryDataBlock().Clone()));
    return fields;
}

TEST(AddExtensionBlock, OffersFourKindsAndOpensTheFormOfTheChosen) {
    struct Case {
        const wchar_t* choice;
        const wchar_t* title;
        int type;
        const char* text;
    };
    for (const Case& each :
         {Case{L"CTA-861", L"CTA-861 Extension Block", 0x02,
               "CTA-861: 0 data blocks, 0 detailed resolutions, 0 descriptors"},
          Case{L"VTB-EXT", L"VTB-EXT Extension Block", 0x10, "VTB-EXT: 0 detailed, 0 CVT, 0 standard"},
          Case{L"DisplayID v1", L"DisplayID Extension Block", 0x70, "DisplayID v1: 0 data blocks"},
          Case{L"DisplayID v2", L"DisplayID Extension Block", 0x70, "DisplayID v2: 0 data blocks"}}) {
        Driver driver;
        EdidExtensionBlock block;
        driver.Then([&] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Extension Block");
            ChooseKind(driver, each.choice);
        });
        driver.Then([&] {
            EXPECT_EQ(driver.GetWindow().GetTitle(), each.title);
            driver.Click(driver.Find<Button>(L"OK"));
        });
        EXPECT_EQ(EditEdidExtensionBlock(nullptr, block, 128), IdOk);
        EXPECT_EQ(block.GetType(), each.type);
        String text;
        block.GetText(text);
        EXPECT_EQ(text.ToUtf8(), each.text);
        EXPECT_TRUE(block.IsValid());
    }
}

TEST(AddExtensionBlock, CancelInTheFormAddsNothing) {
    Driver driver;
    EdidExtensionBlock block;
    driver.Then([&] { ChooseKind(driver, L"CTA-861"); });
    driver.Then([&] { driver.Press(Key::Escape); });
    EXPECT_EQ(EditEdidExtensionBlock(nullptr, block, 128), IdCancel);
    EXPECT_TRUE(block.IsEmpty());
}

TEST(EditExtensionBlock, AKindWithoutAFormOpensNothing) {
    Driver driver;
    EdidExtensionBlock block(EdidDefaultExtensionBlock().Clone());
    EXPECT_EQ(EditEdidExtensionBlock(nullptr, block, 128), IdCancel);
    EXPECT_EQ(block.GetType(), EdidExtensionBlockTypeId::Default);
}

TEST(CtaExtensionBlockForm, ItsTwoListsLiveFromOneBudget) {
    Driver driver;
    EdidCtaExtensionBlock block;
    driver.Then([&] {
        driver.Find<GroupBox>(L"Detailed resolutions and descriptors (6 slots left)");
        driver.Click(driver.Find<Button>({L"Data blocks (123 bytes left)", L"Add..."}));
    });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Add Data Block");
        ChooseKind(driver, L"G-SYNC");
    });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"G-SYNC");
        driver.Enter(driver.Find<TextBox>(L"Min refresh rate"), L"30");
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        driver.Find<GroupBox>(L"Data blocks (117 bytes left)");
        driver.Click(driver.Find<Button>({L"Detailed resolutions and descriptors (6 slots left)", L"Add..."}));
    });
    driver.Then([&] { ChooseKind(driver, L"Name"); });
    driver.Then([&] {
        driver.Type(L"VANTELLE");
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        driver.Find<GroupBox>(L"Detailed resolutions and descriptors (5 slots left)");
        driver.Find<GroupBox>(L"Data blocks (99 bytes left)");
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_EQ(EdidCtaExtensionBlockWindow(nullptr).Run(block), IdOk);
    EXPECT_EQ(block.dataBlocks.GetSize(), 6);
    EXPECT_EQ(block.descriptors.GetCount(), 1);
    EXPECT_EQ(block.detailedOffset, 10);
    EXPECT_TRUE(block.IsValid());
}

TEST(CtaExtensionBlockForm, ANewOverrideTakesTheFirstRowWithoutAForm) {
    Driver driver;
    EdidCtaExtensionBlock block(FilledWith(2));
    driver.Then([&] { driver.Click(driver.Find<Button>({L"Data blocks (115 bytes left)", L"Add..."})); });
    driver.Then([&] { ChooseKind(driver, L"Extension override"); });
    driver.Then([&] {
        auto& list = driver.Find<ListBox>(L"Data blocks (112 bytes left)");
        EXPECT_EQ(list.GetSelection(), 0);
        driver.DoubleClick(list, 0);
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"CTA-861 Extension Block") << "an override can't be edited";
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_EQ(EdidCtaExtensionBlockWindow(nullptr).Run(block), IdOk);
    EXPECT_EQ(block.dataBlocks.At(0).GetType(), CtaDataBlockTypeId::ExtensionOverride);
}

TEST(CtaExtensionBlockForm, NothingCanBeAddedWhereNothingFits) {
    const int least = GetLeastAddSize(CtaDataBlockKinds::All());
    for (const int bytesLeft : {least, least - 1}) {
        Driver driver;
        EdidCtaExtensionBlockFields fields = FilledWith(29);
        CtaVendorSpecificDataBlockFields vendor;
        vendor.Extra = Bytes(3 - bytesLeft, 0);
        fields.dataBlocks.Add(CtaDataBlock(CtaVendorSpecificDataBlock(vendor).Clone()));
        EdidCtaExtensionBlock block(fields);
        driver.Then([&] {
            const bool hasRoom = bytesLeft >= least;
            const auto caption = String(GetSizeText(0, least, U"Data blocks ({sizelefttext})")).ToWide();
            EXPECT_EQ(driver.Find<Button>({hasRoom ? caption : L"Data blocks (no space left)", L"Add..."}).IsEnabled(),
                      hasRoom);
            EXPECT_FALSE(
                driver.Find<Button>({L"Detailed resolutions and descriptors (no space left)", L"Add..."}).IsEnabled());
            driver.Press(Key::Escape);
        });
        EdidCtaExtensionBlockWindow(nullptr).Run(block);
    }
}

TEST(CtaExtensionBlockForm, TheChooserOffersOnlyWhatFits) {
    Driver driver;
    EdidCtaExtensionBlock block(FilledWith(29));  // 7 bytes left
    driver.Then([&] { driver.Click(driver.Find<Button>({L"Data blocks (7 bytes left)", L"Add..."})); });
    driver.Then([&] { ChooseKind(driver, L"Vendor-specific"); });
    driver.Then([&] {
        auto& hex = driver.Find<TextBox>(L"Hex data (3 bytes left)");
        driver.Enter(hex, L"01 02 03");
        driver.Find<GroupBox>(L"Hex data (0 bytes left)");
        driver.Enter(hex, L"01 02 03 04");
        driver.Find<GroupBox>(L"Hex data (no space left)");
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Enter(hex, L"ABC");
        driver.Find<GroupBox>(L"Hex data (invalid)");
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Enter(hex, L"0x12,0x34");
        driver.Click(driver.Find<Button>(L"OK"));
    });
    driver.Then([&] { driver.Click(driver.Find<Button>({L"Data blocks (1 byte left)", L"Edit..."})); });
    driver.Then([&] {
        EXPECT_EQ(driver.Find<TextBox>(L"Hex data (1 byte left)").GetText(), L"12 34");
        driver.Press(Key::Escape);
    });
    driver.Then([&] { driver.Press(Key::Escape); });
    EdidCtaExtensionBlockWindow(nullptr).Run(block);
}

TEST(VtbExtensionBlockForm, ItsThreeListsLiveFromOneBudget) {
    Driver driver;
    EdidVtbExtensionBlock block;
    driver.Then([&] {
        driver.Find<GroupBox>(L"Detailed resolutions (6 slots left)");
        driver.Find<GroupBox>(L"CVT resolutions (40 slots left)");
        driver.Click(driver.Find<Button>({L"Standard resolutions (61 slots left)", L"Add..."}));
    });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"Standard Resolution");
        driver.Enter(driver.Find<TextBox>(L"Width:"), L"1920");
        driver.Enter(driver.Find<TextBox>(L"Refresh rate"), L"75");
        driver.Press(Key::Return);
    });
    driver.Then([&] {
        driver.Find<GroupBox>(L"Standard resolutions (60 slots left)");
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_EQ(EdidVtbExtensionBlockWindow(nullptr).Run(block), IdOk);
    EXPECT_EQ(block.standardCount, 1);
    EXPECT_TRUE(block.IsValid());
}

TEST(DisplayIdSectionForm, OffersTheProductTypesOfItsVersion) {
    for (const int version : {1, 2}) {
        Driver driver;
        DisplayIdSectionFields section;
        section.version = version;
        section.productType = 2;
        driver.Then([&] {
            auto& type = driver.Find<ComboBox>(L"Product type");
            EXPECT_EQ(type.GetItemText(type.GetSelection()), version == 1 ? L"Display panel" : L"Generic");
            driver.Choose(type, L"Other");
            driver.Enter(driver.Find<TextBox>(L"Product type"), L"15");
            driver.Press(Key::Return);
        });
        EXPECT_EQ(EdidDisplayIdSectionExtensionBlockWindow(nullptr).Run(section, 126), IdOk);
        EXPECT_EQ(section.productType, 15);
    }
}

TEST(DisplayIdSectionForm, NestsACarrierOfCtaDataBlocks) {
    Driver driver;
    EdidExtensionBlock block(EdidDisplayIdSectionExtensionBlock().Clone());
    driver.Then([&] { driver.Click(driver.Find<Button>({L"Data blocks (121 bytes left)", L"Add..."})); });
    driver.Then([&] { ChooseKind(driver, L"CTA-861 data blocks"); });
    driver.Then([&] {
        EXPECT_EQ(driver.GetWindow().GetTitle(), L"CTA-861 Data Blocks");
        driver.Click(driver.Find<Button>({L"Data blocks (118 bytes left)", L"Add..."}));
    });
    driver.Then([&] { ChooseKind(driver, L"Colorimetry"); });
    driver.Then([&] {
        driver.Click(driver.Find<CheckBox>(L"BT.2020 RGB"));
        driver.Click(driver.Find<Button>(L"OK"));
    });
    driver.Then([&] {
        driver.Find<GroupBox>(L"Data blocks (114 bytes left)");
        driver.Click(driver.Find<Button>(L"OK"));
    });
    driver.Then([&] {
        driver.Find<GroupBox>(L"Data blocks (114 bytes left)");
        driver.Click(driver.Find<Button>(L"OK"));
    });
    EXPECT_EQ(EditEdidExtensionBlock(nullptr, block, 128), IdOk);
    EdidDisplayIdSectionExtensionBlock edited;
    ASSERT_TRUE(edited.Assign(block));
    EXPECT_TRUE(edited.IsValid());
    ASSERT_EQ(edited.GetParts().size(), 1u);
    EXPECT_EQ(edited.GetParts()[0].text.ToUtf8(), "CTA-861 data blocks: 1 data block");
}

TEST(DisplayIdVendorForm, AVendorOfOtherThanThreeLettersIsRed) {
    Driver driver;
    DisplayId1VendorSpecificDataBlock block;
    driver.Then([&] {
        auto& vendor = driver.Find<TextBox>(L"Vendor ID");
        driver.Enter(vendor, L"AB");
        EXPECT_FALSE(vendor.HasValidStyle());
        EXPECT_FALSE(driver.Find<Button>(L"OK").IsEnabled());
        driver.Enter(vendor, L"ABC");
        EXPECT_TRUE(vendor.HasValidStyle());
        driver.Press(Key::Return);
    });
    EXPECT_EQ(DisplayId1VendorSpecificDataBlockWindow(nullptr).Run(block, 20), IdOk);
    EXPECT_EQ(block.vendorId, String(U"ABC"));
}

}  // namespace

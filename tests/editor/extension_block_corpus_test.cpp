#include <gtest/gtest.h>

#include "editor/extension_block_windows.h"
#include "model/edid/edid.h"
#include "tests/support/edids.h"
#include "ui/headless/driver.h"

// What the forms do to the extension blocks of real displays.
namespace {

using namespace VNT;
using Testing::NamedEdid;

Bytes BytesOf(const EdidExtensionBlock& block) {
    Bytes bytes(128, 0);
    EXPECT_TRUE(block.Write(bytes));
    return bytes;
}

// Opens the form, if there is one, and clicks the button, or Cancel where it is disabled.
int EditWith(EdidExtensionBlock& block, const wchar_t* text) {
    UI::Headless::Driver driver;
    driver.Then([&driver, text] {
        auto& button = driver.Find<UI::Controls::Button>(text);
        driver.Click(button.IsEnabled() ? button : driver.Find<UI::Controls::Button>(L"Cancel"));
    });
    return EditEdidExtensionBlock(nullptr, block, 128);
}

// Each can be confirmed as it was read: no field that its form doesn't show closes OK, and none that it does is red.
TEST(ExtensionBlocksOfRealDisplays, CancelAndOkChangeNoByte) {
    int opened = 0;
    std::vector<NamedEdid> edids = Testing::Samples();
    for (NamedEdid& each : Testing::Corpus(VANTELLE_SOURCE_DIR)) edids.push_back(std::move(each));
    for (const NamedEdid& each : edids) {
        SCOPED_TRACE(each.name);
        Edid edid;
        if (!edid.Read(each.bytes)) continue;
        for (const EdidExtensionBlock& original : edid.extensionBlocks) {
            const Bytes before = BytesOf(original);
            EdidExtensionBlock block = original;
            EXPECT_EQ(EditWith(block, L"Cancel"), UI::IdCancel);
            ASSERT_EQ(BytesOf(block), before);
            if (Forms::FindForm(EdidExtensionBlockForms(), block.GetType()) == nullptr) continue;
            ++opened;
            EXPECT_EQ(EditWith(block, L"OK"), UI::IdOk) << "OK is closed";
            ASSERT_EQ(BytesOf(block), before);
        }
    }
    EXPECT_GT(opened, 0);
}

}  // namespace

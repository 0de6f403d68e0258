// The operations of the form framework that the rows of a form don't reach by themselves.
#include <gtest/gtest.h>

#include "tests/editor/sample_form.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using UI::Headless::Driver;

// A form that binds its controls itself.
class BoundForm : public AnyWindow {
public:
    BoundForm() : AnyWindow(nullptr, L"BoundForm", L"Bound") {
        for (const wchar_t* row : {L"three", L"four", L"five"}) choice.AddItem(row);
        BindComboBox(choice, 3, number, [this] { ++changes; });
    }
    void Update() override {
        ++updates;
        AnyWindow::Update();
    }

    int number = 0;
    int changes = 0;
    int updates = 0;
    ComboBox choice{*this};
};

TEST(Bindings, AComboBoxWithAnOffsetGivesTheIndexOfItsRowMoved) {
    Driver driver;
    BoundForm form;
    form.choice.SetRect(0, 0, 100, 20);
    driver.Then([&] {
        driver.Choose(form.choice, 2);
        EXPECT_EQ(form.number, 5);
        EXPECT_EQ(form.changes, 1);
        EXPECT_EQ(form.updates, 1);
        driver.Choose(form.choice, 0);
        EXPECT_EQ(form.number, 3);
        EndRun(IdCancel);
    });
    form.Window::Run();
}

TEST(Bindings, AReadOutWithoutRoomSaysSo) {
    const Driver driver;
    BoundForm form;
    Label label(form, L"");
    AnyWindow::SetActual(label, DecimalFormat{3}, L"Hz", true, Decimal(59940, 3));
    EXPECT_EQ(label.GetText(), L"Actual: 59.940 Hz");
    AnyWindow::SetActual(label, DecimalFormat{3}, L"Hz", false, Decimal(59940, 3));
    EXPECT_EQ(label.GetText(), L"(no space left)");
    AnyWindow::SetActual(label, DecimalFormat{3}, L"Hz", true, Decimal::Undefined());
    EXPECT_EQ(label.GetText(), L"Actual: \u2013 Hz");
    AnyWindow::SetActual(label, DecimalFormat{3}, L"Hz", true, Forms::BadDecimal);
    EXPECT_EQ(label.GetText(), L"Actual: \u2013 Hz");
}

TEST(Bindings, ACaptionWithoutRoomSaysSo) {
    const Driver driver;
    BoundForm form;
    Label label(form, L"");
    AnyWindow::SetCaption(label, U"Payload", true);
    EXPECT_EQ(label.GetText(), L"Payload");
    AnyWindow::SetCaption(label, U"Payload", false);
    EXPECT_EQ(label.GetText(), L"Payload (no space left)");
}

// A list editor of its own, whose forms are functions.
struct EditorTest : testing::Test {
    EditorTest() : window(nullptr, L"ListWindow", L"List"), controls(window) {
        for (int number = 1; number <= 3; ++number) list.Add(Sample::Entry({number}));
        editor.Update(true);
    }
    // Edits and adds give the item this number, or are cancelled.
    int Edit(Sample::Entry& entry) {
        ++opened;
        entry.number = given;
        return given == 0 ? IdCancel : IdOk;
    }

    Driver driver;
    Window window;
    ListControls controls;
    Sample::EntryList list;
    int given = 0;
    int opened = 0;
    int updates = 0;
    Forms::TListEditor<Sample::EntryList, SlotListLimits> editor{
        controls,
        list,
        Sample::EntryCaptions,
        [] {
            return SlotListLimits{5, 1};
        },
        [this](Window*, Sample::Entry& entry, int) { return Edit(entry); },
        [this] { ++updates; }};
};

TEST_F(EditorTest, AnItemThatCantBeWrittenDoesNotReplaceItsRow) {
    controls.ListBox.SetSelection(1);
    given = 10;
    editor.EditItem();
    EXPECT_EQ(list.At(1).number, 2);
    EXPECT_EQ(controls.ListBox.GetSelection(), 1);
    given = 9;
    editor.EditItem();
    EXPECT_EQ(list.At(1).number, 9);
    EXPECT_EQ(controls.ListBox.GetItemText(1), L"9");
}

TEST_F(EditorTest, AnItemThatCantBeWrittenIsNotAdded) {
    given = 10;
    editor.AddItem();
    EXPECT_EQ(list.GetCount(), 3);
    EXPECT_EQ(controls.ListBox.GetCount(), 3);
}

TEST_F(EditorTest, ACancelledFormRefreshesNothing) {
    controls.ListBox.SetSelection(1);
    given = 0;
    editor.EditItem();
    editor.AddItem();
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(updates, 0);
    EXPECT_EQ(controls.ListBox.GetSelection(), 1);
}

TEST_F(EditorTest, EditingWithoutASelectionOpensNothing) {
    given = 5;
    editor.EditItem();
    EXPECT_EQ(opened, 0);
}

TEST_F(EditorTest, AMoveOutOfTheListLeavesItsOrder) {
    const Sample::EntryList before = list;
    controls.ListBox.SetSelection(2);
    editor.MoveItemDown();
    EXPECT_EQ(list, before);
    EXPECT_EQ(controls.ListBox.GetSelection(), ListBox::NoSelection) << "where it would have gone there is no row";
    controls.ListBox.SetSelection(0);
    editor.MoveItemUp();
    EXPECT_EQ(list, before);
    EXPECT_EQ(updates, 2);
}

}  // namespace

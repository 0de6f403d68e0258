// Import and export through the main window.
#include <filesystem>
#include <fstream>

#include "store/edid_files.h"
#include "tests/editor/main_window_form.h"

namespace fs = std::filesystem;

namespace {

using namespace VNT;
using namespace UI;
using namespace UI::Controls;
using Testing::MainWindowForm;
using Testing::MakeEdid;
using Testing::MakeExtendedEdid;

constexpr int BinIndex = 1;
constexpr int DatIndex = 2;
constexpr int TxtIndex = 3;

class MainWindowFiles : public MainWindowForm {
protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) /
                 ("vantelle_main_window_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override {
        fs::remove_all(folder);
        MainWindowForm::TearDown();
    }

    fs::path Put(const std::string& content, const std::string& name = "file") const {
        std::ofstream(folder / name, std::ios::binary) << content;
        return folder / name;
    }
    fs::path Put(const Bytes& content) const { return Put(std::string(content.View().begin(), content.View().end())); }
    static std::string Get(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    static Bytes GetBytes(const fs::path& path) {
        const std::string content = Get(path);
        return Bytes(std::vector<std::uint8_t>(content.begin(), content.end()));
    }
    static Edid Read(const Bytes& bytes) {
        Edid edid;
        EXPECT_TRUE(edid.Read(bytes));
        return edid;
    }
    // The text of an EDID file of the format.
    std::string GetText(const Bytes& edid, FileFormat format) const {
        EXPECT_TRUE(VNT::Export(folder / "text", Read(edid), format));
        return Get(folder / "text");
    }

    void ImportFile(const fs::path& path) {
        driver.AnswerFileDialog({ChosenFile{path, 1}, nullptr});
        driver.Click(Button(L"Import..."));
    }
    void ExportFile(const fs::path& path, int typeIndex) {
        driver.AnswerFileDialog({ChosenFile{path, typeIndex}, nullptr});
        driver.Click(Button(L"Export..."));
    }
    // One box with the text, and no other.
    void ExpectBox(const wchar_t* text) {
        ASSERT_EQ(driver.GetMessages().size(), 1u);
        EXPECT_EQ(driver.GetMessages()[0].Text, text);
        EXPECT_EQ(driver.GetMessages()[0].Caption, L"Error");
        EXPECT_EQ(driver.GetMessages()[0].Owner, &driver.GetWindow());
    }
    void ExpectImported(const fs::path& path, const Bytes& expected) {
        SCOPED_TRACE(path);
        EXPECT_EQ(Run([&] {
                      ImportFile(path);
                      driver.Click(Button(L"OK"));
                  }),
                  IdOk);
        EXPECT_TRUE(driver.GetMessages().empty());
        EXPECT_EQ(after[0].CurrentData, expected);
        EXPECT_FALSE(after[0].Saved);
        EXPECT_TRUE(after[1].Saved);
    }
    // Importing it shows the box and changes nothing.
    void ExpectRefused(const fs::path& path) {
        SCOPED_TRACE(path);
        const UI::Headless::Driver fresh;  // without the messages of the last
        EXPECT_EQ(Run([&] {
                      driver.Click(List(Descriptors(1)), 0);
                      ImportFile(path);
                      ExpectBox(L"Failed to import file.");
                      EXPECT_EQ(Rows(List(Descriptors(1))), L"Name: FIRST|");
                      EXPECT_EQ(List(Descriptors(1)).GetSelection(), 0) << "the selection stays";
                      driver.Click(Button(L"OK"));
                  }),
                  IdOk);
        EXPECT_EQ(after[0].CurrentData, displays[0].CurrentData);
        EXPECT_TRUE(after[0].Saved);
    }

    fs::path folder;
    Bytes other = MakeEdid("IMP", "IMPORTED");
};

TEST_F(MainWindowFiles, TheDialogsSayWhatTheyAreFor) {
    Look([&] {
        driver.AnswerFileDialog({});
        driver.Click(Button(L"Import..."));
        driver.AnswerFileDialog({});
        driver.Click(Button(L"Export..."));
    });
    ASSERT_EQ(driver.GetFileDialogs().size(), 2u);
    EXPECT_EQ(driver.GetFileDialogs()[0],
              (FileDialog{L"Import",
                          L"Import",
                          L"bin",
                          {{L"BIN/DAT Files", L"*.bin;*.dat"}, {L"TXT Files", L"*.txt"}, {L"All Files", L"*.*"}}}));
    EXPECT_EQ(driver.GetFileDialogs()[1],
              (FileDialog{L"Export",
                          L"Export",
                          L"bin",
                          {{L"BIN Files", L"*.bin"}, {L"DAT Files", L"*.dat"}, {L"TXT Files", L"*.txt"}}}));
}

TEST_F(MainWindowFiles, ACancelledDialogDoesNothingAndSaysNothing) {
    Run([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.AnswerFileDialog({});
        driver.Click(Button(L"Import..."));
        driver.AnswerFileDialog({});
        driver.Click(Button(L"Export..."));
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), 0);
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(driver.GetMessages().empty());
    EXPECT_TRUE(after[0].Saved);
}

TEST_F(MainWindowFiles, ADialogThatFailsSaysWhere) {
    for (const wchar_t* failure : {L"CoInitializeEx failed.", L"IFileOpenDialog::SetTitle failed."}) {
        const UI::Headless::Driver fresh;
        Look([&] {
            driver.AnswerFileDialog({{}, failure});
            driver.Click(Button(L"Import..."));
            ExpectBox(failure);
        });
    }
    const UI::Headless::Driver fresh;
    Look([&] {
        driver.AnswerFileDialog({{}, L"IFileSaveDialog::GetFileTypeIndex failed."});
        driver.Click(Button(L"Export..."));
        ExpectBox(L"IFileSaveDialog::GetFileTypeIndex failed.");
    });
    EXPECT_EQ(after[0].CurrentData, displays[0].CurrentData);
}

TEST_F(MainWindowFiles, AnImportReplacesWhatIsShownAndClearsTheSelections) {
    const auto addStandard = [](const Bytes& bytes) {
        Edid edid;
        edid.Read(bytes);
        EdidFields fields = edid;
        EdidStandardResolutionFields resolution;
        resolution.width = 800;
        resolution.refreshRate = 60;
        resolution.fieldsPresent = EdidStandardResolutionFieldsPresentEnum::WidthAndAspectRatio;
        fields.standardResolutions.Add(EdidStandardResolution(resolution));
        return Edid(fields).GetBytes();
    };
    displays[0].CurrentData = addStandard(MakeExtendedEdid(2));
    Look([&] {
        driver.Click(List(Descriptors(1)), 0);
        driver.Click(List(Standards(1)), 0);
        driver.Click(List(Extensions(2)), 1);
        ImportFile(Put(addStandard(MakeExtendedEdid(3))));
        EXPECT_EQ(List(Standards(1)).GetSelection(), ListBox::NoSelection);
        EXPECT_EQ(List(Descriptors(1)).GetSelection(), ListBox::NoSelection);
        EXPECT_EQ(List(Extensions(3)).GetCount(), 3);
        EXPECT_EQ(List(Extensions(3)).GetSelection(), ListBox::NoSelection);
        EXPECT_FALSE(ButtonOf(Extensions(3), L"Edit...").IsEnabled());
        ImportFile(Put(other));
        EXPECT_EQ(Choice().GetItemText(0), L"IMP09FF - IMPORTED (active)");
        EXPECT_EQ(Rows(List(Descriptors(1))), L"Name: IMPORTED|");
        EXPECT_EQ(Rows(List(Extensions(0))), L"No extension blocks|");
    });
    EXPECT_TRUE(driver.GetMessages().empty());
}

TEST_F(MainWindowFiles, AnImportGoesToTheDisplayThatIsChosen) {
    Run([&] {
        driver.Choose(Choice(), 1);
        ImportFile(Put(other));
        driver.Choose(Choice(), 0);
        EXPECT_EQ(Choice().GetItemText(1), L"IMP09FF - IMPORTED (active)");
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[1].CurrentData, other);
}

TEST_F(MainWindowFiles, EachFormatIsImported) {
    for (const FileFormat format : {FileFormat::Bin, FileFormat::Dat, FileFormat::Txt}) {
        for (const Bytes& edid : {other, MakeExtendedEdid(1), MakeExtendedEdid(2), MakeExtendedEdid(255)})
            ExpectImported(Put(GetText(edid, format)), edid);
    }
}

TEST_F(MainWindowFiles, AnImportOfWhatIsThereChangesNothing) {
    Run([&] {
        ImportFile(Put(displays[0].CurrentData));
        driver.Click(Button(L"OK"));
    });
    EXPECT_TRUE(after[0].Saved);
}

TEST_F(MainWindowFiles, AnImportIsNormalised) {
    Bytes wrong = other;
    wrong.At(127) = 0x11;
    ExpectImported(Put(wrong), other);
    // Also where only the checksum tells it from what is there.
    displays[0].CurrentData = wrong;
    ExpectImported(Put(wrong), other);
}

TEST_F(MainWindowFiles, AnImportIsDroppedByCancel) {
    const DisplayList before = displays;
    driver.Then([&] {
        ImportFile(Put(other));
        driver.Click(Button(L"Cancel"));
    });
    EXPECT_EQ(EditDisplays(displays), IdCancel);
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(displays[i].CurrentData, before[i].CurrentData);
        EXPECT_TRUE(displays[i].Saved);
    }
}

TEST_F(MainWindowFiles, AnEmptyFileIsNotImported) { ExpectRefused(Put("")); }

TEST_F(MainWindowFiles, AFileOf127BytesIsNotImported) { ExpectRefused(Put(other.Slice(0, 127))); }

TEST_F(MainWindowFiles, AFileOf66561BytesIsImportedIfItBeginsWithAnEdid) {
    Bytes file = MakeExtendedEdid(255);
    file.Resize(66561, 0x20);
    ExpectImported(Put(file), MakeExtendedEdid(255));
    ExpectRefused(Put(Bytes(66561, 0)));
    ExpectRefused(Put(std::string(66561, '0')));
}

TEST_F(MainWindowFiles, ADatFileWithAWrongOffsetIsNotImported) {
    std::string text = GetText(other, FileFormat::Dat);
    text[text.find("\n20 | ") + 1] = '3';
    ExpectRefused(Put(text));
}

TEST_F(MainWindowFiles, ADatFileWithTheWidthOfAnotherSizeIsImported) {
    std::string text = GetText(other, FileFormat::Dat);
    for (std::size_t at = text.find("0 | "); at != std::string::npos; at = text.find("0 | ", at + 6))
        text.insert(at - 1, "00");
    EXPECT_NE(text.find("\n0010 | "), std::string::npos);
    ExpectImported(Put(text), other);
}

TEST_F(MainWindowFiles, ATextIsImportedBehindUpToThreeTitleLines) {
    const std::string hex = GetText(other, FileFormat::Txt);
    for (const char* mark : {"", "\xEF\xBB\xBF"}) {
        for (const char* lineEnd : {"\n", "\r\n"}) {
            std::string text = hex;
            if (*lineEnd == '\r') {
                for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2)
                    text.insert(at, "\r");
            }
            std::string titles;
            for (int lines = 0; lines < 4; ++lines, titles += std::string("A title") + lineEnd)
                ExpectImported(Put(mark + titles + text), other);
            ExpectRefused(Put(mark + titles + text));
        }
    }
}

TEST_F(MainWindowFiles, ATextWithPrefixesAndCommasIsImported) {
    HexFormat format;
    format.prefix = U"0x";
    format.between = U",";
    const std::string text = HexText(other, format).ToUtf8();
    ASSERT_TRUE(text.starts_with("0x00, 0xFF, "));
    ExpectImported(Put(text), other);
}

TEST_F(MainWindowFiles, WhatIsNoFileIsNotImported) {
    ExpectRefused(folder / "none");
    ExpectRefused(folder);
}

TEST_F(MainWindowFiles, TheTypeThatWasChosenSaysWhatIsExported) {
    const std::string bin(displays[0].CurrentData.View().begin(), displays[0].CurrentData.View().end());
    const std::string dat = GetText(displays[0].CurrentData, FileFormat::Dat);
    const std::string txt = GetText(displays[0].CurrentData, FileFormat::Txt);
    Look([&] {
        for (const auto& [index, expected] : {std::pair{BinIndex, bin}, std::pair{DatIndex, dat},
                                              std::pair{TxtIndex, txt}, std::pair{0, bin}, std::pair{4, bin}}) {
            for (const char* name : {"file.bin", "file.dat", "file.txt", "file"}) {
                ExportFile(folder / name, index);
                EXPECT_EQ(Get(folder / name), expected) << index << " " << name;
            }
        }
    });
    EXPECT_TRUE(driver.GetMessages().empty());
    EXPECT_TRUE(dat.starts_with("EDID BYTES:"));
    EXPECT_TRUE(txt.starts_with("00 FF FF"));
}

TEST_F(MainWindowFiles, AnExportTakesTheEditsAndSavesNothing) {
    Look([&] {
        driver.Click(Check(L"640x480 @ 60 Hz"));
        ExportFile(folder / "out", BinIndex);
    });
    Bytes expected = displays[0].CurrentData;
    expected.At(35) = 0x20;
    expected.At(127) = static_cast<std::uint8_t>(ComputeChecksum(expected));
    EXPECT_EQ(GetBytes(folder / "out"), expected);
}

TEST_F(MainWindowFiles, AnExportOfWhatWasNotEditedHasItsOwnBytesAndLeavesTheDisplay) {
    displays[0].CurrentData.At(127) = 0x33;
    Run([&] {
        ExportFile(folder / "out", BinIndex);
        driver.Click(Button(L"OK"));
    });
    EXPECT_EQ(GetBytes(folder / "out"), displays[0].CurrentData);
    EXPECT_TRUE(after[0].Saved);
    EXPECT_EQ(after[0].CurrentData.At(127), 0x33);
}

TEST_F(MainWindowFiles, AnExportReplacesALongerFile) {
    Put(std::string(5000, 'x'), "out");
    Look([&] { ExportFile(folder / "out", BinIndex); });
    EXPECT_EQ(GetBytes(folder / "out"), displays[0].CurrentData);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(MainWindowFiles, AnExportGoesFromOneDisplayToAnother) {
    Run([&] {
        ExportFile(folder / "out", TxtIndex);
        driver.Choose(Choice(), 1);
        ImportFile(folder / "out");
        driver.Click(Button(L"OK"));
    });
    EXPECT_EQ(after[1].CurrentData, displays[0].CurrentData);
}

TEST_F(MainWindowFiles, AnExportThatFailsSaysSoAndLeavesWhatIsThere) {
    fs::create_directories(folder / "taken" / "inner");
    for (const fs::path& path : {folder / "taken", folder / "none" / "file"}) {
        const UI::Headless::Driver fresh;
        Look([&] {
            ExportFile(path, BinIndex);
            ExpectBox(L"Failed to export file.");
        });
    }
    EXPECT_TRUE(fs::is_directory(folder / "taken" / "inner"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

// The working copy as no form leaves it.
class BrokenMainWindow : public MainWindow {
public:
    using MainWindow::MainWindow;
    void Break() { fields.properties.vendorId = U"too long"; }
};

TEST_F(MainWindowFiles, AWorkingCopyThatCantBeWrittenLeavesTheOldFile) {
    for (const int index : {BinIndex, DatIndex, TxtIndex}) {
        const UI::Headless::Driver fresh;
        const fs::path path = Put("old");
        BrokenMainWindow window(displays);
        driver.Then([&] {
            window.Break();
            ExportFile(path, index);
            ExpectBox(L"Failed to export file.");
            driver.Press(Key::Escape);
        });
        EXPECT_EQ(window.Run(), IdCancel);
        EXPECT_EQ(Get(path), "old");
    }
}

}  // namespace

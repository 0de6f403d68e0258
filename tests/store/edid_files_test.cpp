#include "store/edid_files.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "tests/edid/support.h"

namespace fs = std::filesystem;

namespace VNT {
namespace {

class EdidFiles : public testing::Test {
protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) /
                 ("vantelle_files_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder);
        fs::create_directories(folder);
        Bytes bytes = Testing::BaseBlock();
        bytes.At(12) = 0x5A;
        bytes.At(127) = static_cast<std::uint8_t>(ComputeChecksum(bytes));
        ASSERT_TRUE(edid.Read(bytes));
    }
    void TearDown() override { fs::remove_all(folder); }

    fs::path Put(const std::string& content, const std::string& name = "file") const {
        std::ofstream(folder / name, std::ios::binary) << content;
        return folder / name;
    }
    static std::string Get(const fs::path& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // The names in the folder, one behind the other.
    std::string List() const {
        std::string names;
        for (const auto& entry : fs::directory_iterator(folder)) names += entry.path().filename().string() + " ";
        return names;
    }

    fs::path folder;
    Edid edid;
};

TEST_F(EdidFiles, ComeBackInEachFormat) {
    const fs::path path = folder / "edid";
    Edid read;
    ASSERT_TRUE(ExportBin(path, edid));
    EXPECT_TRUE(ImportBin(path, read) && read == edid);
    ASSERT_TRUE(ExportDat(path, edid));
    read = Edid();
    EXPECT_TRUE(!ImportBin(path, read) && ImportDat(path, read) && read == edid);
    ASSERT_TRUE(ExportTxt(path, edid));
    read = Edid();
    EXPECT_TRUE(!ImportBin(path, read) && !ImportDat(path, read) && ImportTxt(path, read) && read == edid);
    for (const FileFormat format : {FileFormat::Bin, FileFormat::Dat, FileFormat::Txt}) {
        ASSERT_TRUE(Export(path, edid, format));
        read = Edid();
        EXPECT_TRUE(ImportAny(path, read) && read == edid);
    }
    EXPECT_EQ(List(), "edid ");
}

TEST_F(EdidFiles, LinesEndAsTheSystemHasThemAndBytesStayBytes) {
#ifdef _WIN32
    const std::string end = "\r\n";
#else
    const std::string end = "\n";
#endif
    ASSERT_TRUE(ExportTxt(folder / "txt", edid));
    EXPECT_EQ(Get(folder / "txt").find('\n'), 47 + end.size() - 1) << "behind 16 bytes and their blanks";
    EXPECT_TRUE(Get(folder / "txt").ends_with(end));
    ASSERT_TRUE(ExportDat(folder / "dat", edid));
    EXPECT_TRUE(Get(folder / "dat").ends_with(end));
    EXPECT_EQ(Get(folder / "dat").find("\r\n") != std::string::npos, end == "\r\n");
    Bytes bytes = edid.GetBytes();
    bytes.At(20) = 0x0A;
    bytes.At(127) = static_cast<std::uint8_t>(ComputeChecksum(bytes));
    ASSERT_TRUE(edid.Read(bytes));
    ASSERT_TRUE(ExportBin(folder / "bin", edid));
    EXPECT_EQ(fs::file_size(folder / "bin"), 128u);
}

TEST_F(EdidFiles, TheFormatIsNotThatOfTheName) {
    ASSERT_TRUE(ExportTxt(folder / "a.bin", edid));
    EXPECT_TRUE(Get(folder / "a.bin").starts_with("00 FF FF"));
}

TEST_F(EdidFiles, AFileThatIsNotThereOrNoFileIsNotImported) {
    Edid read;
    for (const fs::path& path : {folder / "none", folder, fs::path()}) {
        EXPECT_FALSE(ImportBin(path, read) || ImportDat(path, read) || ImportTxt(path, read)) << path;
    }
    EXPECT_FALSE(ImportAny(Put(""), read));
    EXPECT_EQ(read, Edid());
}

TEST_F(EdidFiles, AnEdidThatCantBeWrittenLeavesTheOldFile) {
    const fs::path path = Put("old");
    edid.extensionBlockCount = 9;
    EXPECT_FALSE(ExportBin(path, edid) || ExportDat(path, edid) || ExportTxt(path, edid));
    EXPECT_EQ(Get(path), "old");
    EXPECT_EQ(List(), "file ");
}

TEST_F(EdidFiles, AFolderInTheWayIsLeftAsItIs) {
    fs::create_directories(folder / "taken" / "inner");
    EXPECT_FALSE(ExportBin(folder / "taken", edid));
    EXPECT_TRUE(fs::is_directory(folder / "taken" / "inner"));
    EXPECT_EQ(List(), "taken ");
}

TEST_F(EdidFiles, AFolderThatIsNotThereIsNotMade) {
    EXPECT_FALSE(ExportBin(folder / "none" / "file", edid));
    EXPECT_EQ(List(), "");
}

TEST_F(EdidFiles, AStreamIsReadInPiecesUpToAsMuchAsIsWanted) {
    const std::string text(100000, 'x');
    for (const std::int64_t most : {0, 1, 16384, 50000, 99999, 100000, 100001}) {
        std::istringstream in(text);
        Bytes bytes(3, 1);
        EXPECT_TRUE(ReadStream(in, most, bytes));
        EXPECT_EQ(bytes.Size(), std::min<std::int64_t>(most, 100000)) << most;
    }
}

TEST_F(EdidFiles, ASmallFileCostsLittleMemory) {
    std::istringstream in(std::string(128, 'x'));
    Bytes bytes;
    EXPECT_TRUE(ReadStream(in, MaxFileBytes, bytes));
    EXPECT_LT(bytes.Capacity(), 65536);
}

}  // namespace
}  // namespace VNT

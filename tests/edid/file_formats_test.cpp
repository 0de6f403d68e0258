#include "model/edid/file_formats.h"

#include <gtest/gtest.h>

#include "tests/edid/support.h"

namespace VNT {
namespace {

using Testing::BaseBlock;
using Testing::Join;

Bytes FromString(std::string_view text) { return Bytes(std::vector<std::uint8_t>(text.begin(), text.end())); }
std::string ToString(const Bytes& file) { return {file.View().begin(), file.View().end()}; }

std::string Exchange(std::string text, std::string_view what, std::string_view with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
        text.replace(at, what.size(), with);
    return text;
}

Edid ReadEdid(const Bytes& bytes) {
    Edid edid;
    EXPECT_TRUE(edid.Read(bytes));
    return edid;
}

// An EDID that no default is, with `extensions` blocks of an unknown kind behind it.
Edid MakeEdid(int extensions = 0) {
    Bytes bytes = BaseBlock(extensions);
    bytes.At(12) = 0x5A;
    bytes.At(127) = static_cast<std::uint8_t>(ComputeChecksum(bytes));
    for (int i = 0; i < extensions; ++i) {
        Bytes block(128, 0);
        block.At(0) = 0xC0;
        block.At(1) = static_cast<std::uint8_t>(i);
        bytes.Append(block);
    }
    return ReadEdid(bytes);
}

// Which of the readers, in their order, takes the file first; the result has to be `expected`.
std::string FindReader(const Bytes& file, const Edid& expected = MakeEdid()) {
    const std::pair<const char*, bool (*)(const Bytes&, Edid&)> readers[] = {
        {"bin", ReadBin}, {"dat", ReadDat}, {"txt", ReadTxt}};
    for (const auto& [name, read] : readers) {
        Edid edid;
        if (read(file, edid)) {
            EXPECT_EQ(edid, expected) << name;
            return name;
        }
        EXPECT_EQ(edid, Edid()) << name << " changed the EDID that it refused to read";
    }
    Edid edid;
    EXPECT_FALSE(ReadAnyFormat(file, edid));
    return "none";
}
std::string FindReader(const std::string& text, const Edid& expected = MakeEdid()) {
    return FindReader(FromString(text), expected);
}

TEST(FileFormats, EachIsReadByItsOwnReader) {
    for (const int extensions : {0, 1, 2, 255}) {
        const Edid edid = MakeEdid(extensions);
        EXPECT_EQ(FindReader(WriteBin(edid), edid), "bin");
        EXPECT_EQ(FindReader(WriteDat(edid), edid), "dat");
        EXPECT_EQ(FindReader(WriteTxt(edid), edid), "txt");
    }
}

// What stands in a file is told with its bytes, also where an EDID takes only the first of them.
TEST(FileFormats, TheContentIsTheBytesAndWhatIsLeftBehindThem) {
    const Edid edid = MakeEdid(1);
    const Bytes bytes = edid.GetBytes();
    FileContent content{Bytes{1}, true, 7};
    ASSERT_TRUE(GetContent(WriteBin(edid), content));
    EXPECT_EQ(content.bytes, bytes);
    EXPECT_FALSE(content.isText);
    EXPECT_EQ(content.notUnderstood, 0);
    for (const auto& write :
         {static_cast<Bytes (*)(const Edid&)>(WriteDat), static_cast<Bytes (*)(const Edid&)>(WriteTxt)}) {
        content = {};
        ASSERT_TRUE(GetContent(write(edid), content));
        EXPECT_EQ(content.bytes, bytes);
        EXPECT_TRUE(content.isText);
        EXPECT_EQ(content.notUnderstood, 0);
    }
    ASSERT_TRUE(GetContent(FromString(ToString(WriteDat(edid)) + "xyz"), content));
    EXPECT_EQ(content.bytes, bytes);
    EXPECT_EQ(content.notUnderstood, 3);
    const FileContent before = content;
    for (const char* text : {"", "no EDID", "a\nb\nc\n00 | 00 11"}) {
        EXPECT_FALSE(GetContent(FromString(text), content)) << text;
        EXPECT_EQ(content.bytes, before.bytes) << text;
        EXPECT_EQ(content.notUnderstood, 3) << text;
    }
}

TEST(FileFormats, AnEmptyFileIsNone) { EXPECT_EQ(FindReader(Bytes()), "none"); }

TEST(FileFormats, BlanksAloneAreNone) { EXPECT_EQ(FindReader(" \r\n\t\n\n\n\n"), "none"); }

TEST(FileFormats, AnEdidThatCantBeWrittenGivesNoFile) {
    Edid edid = MakeEdid();
    edid.extensionBlockCount = 7;
    EXPECT_TRUE(WriteBin(edid).IsEmpty());
    EXPECT_TRUE(WriteDat(edid).IsEmpty());
    EXPECT_TRUE(WriteTxt(edid).IsEmpty());
}

TEST(BinFile, Of127BytesIsNone) {
    EXPECT_EQ(FindReader(WriteBin(MakeEdid()).Slice(0, 127)), "none");
    EXPECT_EQ(FindReader(WriteBin(MakeEdid()).Slice(0, 128)), "bin");
}

TEST(BinFile, IsReadUpToTheMostBytesThatAreLookedAt) {
    Bytes file = WriteBin(MakeEdid(255));
    const Edid edid = MakeEdid(255);
    EXPECT_EQ(file.Size(), 32768);
    for (const int size : {66560, 66561, 200000}) {
        file.Resize(size, 0xEE);
        EXPECT_EQ(FindReader(file, edid), "bin") << size;
    }
}

TEST(BinFile, WithoutTheHeaderIsNone) {
    Bytes file = WriteBin(MakeEdid());
    file.At(7) = 1;
    EXPECT_EQ(FindReader(file), "none");
}

TEST(DatFile, StartsWithItsHeading) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    EXPECT_TRUE(
        text.starts_with("EDID BYTES:\n"
                         "0x   00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F\n"
                         "    ------------------------------------------------\n"
                         "00 | 00 FF FF FF FF FF FF 00 "))
        << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3 + 8);
    EXPECT_EQ(text.back(), '\n');
}

TEST(DatFile, HasOffsetsOfTwoDigitsUpTo256Bytes) {
    const std::string text = ToString(WriteDat(MakeEdid(1)));
    EXPECT_NE(text.find("\nF0 | "), std::string::npos);
}

TEST(DatFile, HasOffsetsOfFourDigitsAbove256Bytes) {
    const std::string text = ToString(WriteDat(MakeEdid(2)));
    EXPECT_TRUE(
        text.starts_with("EDID BYTES:\n"
                         "0x     00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F\n"
                         "      ------------------------------------------------\n"
                         "0000 | 00 FF "))
        << text;
    EXPECT_NE(text.find("\n0010 | "), std::string::npos);
    EXPECT_NE(text.find("\n0170 | "), std::string::npos);
}

TEST(DatFile, ComparesOffsetsAsNumbers) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    EXPECT_EQ(FindReader(Exchange(text, "\n10 | ", "\n0000000010 | ")), "dat");
    EXPECT_EQ(FindReader(Exchange(text, "\n00 | ", "\n0 |")), "dat");
}

TEST(DatFile, WithAWrongOffsetIsNone) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    EXPECT_EQ(FindReader(Exchange(text, "\n10 | ", "\n11 | ")), "none");
    EXPECT_EQ(FindReader(Exchange(text, "\n10 | ", "\n10000000000000010 | ")), "none");
}

TEST(DatFile, WithoutABarIsNoDat) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    EXPECT_EQ(FindReader(Exchange(text, "\n10 | ", "\n10 : ")), "none");
    // Without any bar and offset the rows are plain hex behind three lines of heading.
    std::string plain = text;
    for (std::size_t at = plain.find(" | "); at != std::string::npos; at = plain.find(" | ")) plain.erase(at - 2, 5);
    EXPECT_EQ(FindReader(plain), "txt");
}

TEST(DatFile, EndsAtWhatIsNoByte) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    EXPECT_EQ(FindReader(text + "the end"), "dat");
    EXPECT_EQ(FindReader(text + "80 | "), "dat");
    EXPECT_EQ(FindReader(text + "80"), "dat") << "an offset alone";
    EXPECT_EQ(FindReader(text.substr(0, text.size() - 4)), "none") << "a byte short";
}

TEST(DatFile, LineEndsAndAByteOrderMarkDontMatter) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    EXPECT_EQ(FindReader(Exchange(text, "\n", "\r\n")), "dat");
    EXPECT_EQ(FindReader("\xEF\xBB\xBF" + text), "dat");
}

TEST(DatFile, ALongHeadingLineCountsAsSeveral) {
    const std::string text = ToString(WriteDat(MakeEdid()));
    const std::string rows = text.substr(text.find("00 | "));
    EXPECT_EQ(FindReader(std::string(80, 'x') + "\n\n" + rows), "dat");
    EXPECT_EQ(FindReader(std::string(79, 'x') + "\n\n" + rows), "none");
    EXPECT_EQ(FindReader(std::string(79, 'x') + "\r\n\r\n\r\n" + rows), "dat");
    EXPECT_EQ(FindReader(std::string(79, 'x') + "\r\n\r\nx\r\n" + rows), "dat") << "a line's end is one character";
}

TEST(TxtFile, HasSixteenBytesALine) {
    const std::string text = ToString(WriteTxt(MakeEdid()));
    EXPECT_TRUE(text.starts_with("00 FF FF FF FF FF FF 00 ")) << text;
    EXPECT_EQ(text.find('\n'), 16 * 3 - 1);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 8);
    EXPECT_TRUE(text.ends_with("\n") && !text.ends_with("\n\n"));
}

TEST(TxtFile, ReadsHexInManyShapes) {
    const Bytes bytes = WriteBin(MakeEdid());
    HexFormat format;
    format.prefix = U"0x";
    format.between = U",";
    EXPECT_EQ(FindReader(HexText(bytes, format).ToUtf8()), "txt");
    format.bytesPerLine = 8;
    EXPECT_EQ(FindReader(HexText(bytes, format).ToUtf8()), "txt");
    format = {};
    format.space = U"";
    format.uppercase = false;
    EXPECT_EQ(FindReader(HexText(bytes, format).ToUtf8()), "txt");
}

TEST(TxtFile, ReadsBehindUpToThreeHeadingLines) {
    const std::string text = ToString(WriteTxt(MakeEdid()));
    EXPECT_EQ(FindReader("Title\n" + text), "txt");
    EXPECT_EQ(FindReader("Title\nof two lines\n" + text), "txt");
    EXPECT_EQ(FindReader("Title\n\nof three lines\n" + text), "txt");
    EXPECT_EQ(FindReader("Title\nof\nfour\nlines\n" + text), "none");
}

TEST(TxtFile, LineEndsAndAByteOrderMarkDontMatter) {
    const std::string text = ToString(WriteTxt(MakeEdid()));
    for (const std::string& title : {std::string(), std::string("A title\n"), std::string("Two\nlines\n")}) {
        EXPECT_EQ(FindReader(Exchange(title + text, "\n", "\r\n")), "txt");
        EXPECT_EQ(FindReader("\xEF\xBB\xBF" + title + text), "txt");
        EXPECT_EQ(FindReader("\xEF\xBB\xBF" + Exchange(title + text, "\n", "\r\n")), "txt");
    }
    EXPECT_EQ(FindReader(text.substr(0, text.size() - 1)), "txt") << "no line end at all";
}

TEST(TxtFile, IsReadUpToTheMostCharactersThatAreLookedAt) {
    const std::string text = ToString(WriteTxt(MakeEdid()));
    EXPECT_EQ(FindReader(text + std::string(MaxTextFileCharacters - text.size(), ' ') + "?"), "txt");
    EXPECT_EQ(FindReader(text + std::string(MaxTextFileCharacters - text.size() - 1, ' ') + "?"), "none");
}

TEST(TxtFile, WithTheHeaderAtItsStartIsNoBin) {
    EXPECT_EQ(FindReader("00 FF FF FF FF FF FF 00"), "none") << "eight bytes are no EDID";
}

}  // namespace
}  // namespace VNT

#include "model/edid/text_descriptor.h"

#include <gtest/gtest.h>

#include "tests/support/items.h"

namespace VNT {
namespace {

using namespace Testing;

EdidNameDescriptor NameOf(const String& text) { return EdidNameDescriptor(EdidTextDescriptorFields{text}); }

TEST(TextDescriptor, ATextEndsAtItsLineFeed) {
    const auto item = ReadAs<EdidNameDescriptor>(FromHex("00 00 00 FC 00 41 42 43 0A 20 20 20 20 20 20 20 20 20"));
    EXPECT_EQ(item.text, U"ABC");
    EXPECT_EQ(item.padding, Bytes(9, 0x20));
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(TextOf(item), "Name: ABC");
}

TEST(TextDescriptor, PaddingOfZerosIsKeptOutOfLimits) {
    const Bytes bytes = FromHex("00 00 00 FC 00 41 42 43 0A 00 00 00 00 00 00 00 00 00");
    const auto item = ReadAs<EdidNameDescriptor>(bytes);
    EXPECT_FALSE(item.IsValid());
    EXPECT_FALSE(item.GetStatus().IsProper("padding"));
    EXPECT_TRUE(item.IsValidAll());
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(TextDescriptor, ThirteenCharactersNeedNoLineFeed) {
    const Bytes bytes = FromHex("00 00 00 FF 00 31 32 33 34 35 36 37 38 39 30 41 42 43");
    const auto item = ReadAs<EdidSerialNumberDescriptor>(bytes);
    EXPECT_EQ(item.text, U"1234567890ABC");
    EXPECT_TRUE(item.padding.IsEmpty());
    EXPECT_TRUE(item.IsValid());
    EXPECT_EQ(BytesOf(item), bytes);
    EXPECT_EQ(BytesOf(EdidSerialNumberDescriptor(item)), bytes);
}

TEST(TextDescriptor, WhatFollowsTheFirstLineFeedIsPadding) {
    const Bytes bytes = FromHex("00 00 00 FE 00 41 42 43 44 0A 46 47 48 0A 30 41 42 43");
    const auto item = ReadAs<EdidTextDescriptor>(bytes);
    EXPECT_EQ(item.text, U"ABCD");
    EXPECT_EQ(ToHex(item.padding), "46 47 48 0A 30 41 42 43");
    EXPECT_FALSE(item.IsValid());
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(TextDescriptor, BytesAbove127AreShownThroughCodePage437) {
    const auto item = ReadAs<EdidNameDescriptor>(FromHex("00 00 00 FC 00 81 62 65 72 0A 20 20 20 20 20 20 20 20"));
    EXPECT_EQ(TextOf(item), "Name: über");
    EXPECT_FALSE(item.GetStatus().IsProper("text"));
    EXPECT_TRUE(item.GetStatus().IsAll("text"));
}

TEST(TextDescriptor, LowBytesAreShownAsGraphicsAndGoBack) {
    const Bytes bytes = FromHex("00 00 00 FC 00 01 00 1F 7F 0A 20 20 20 20 20 20 20 20");
    const auto item = ReadAs<EdidNameDescriptor>(bytes);
    EXPECT_EQ(item.text, (String(std::u32string{0x263A, 0, 0x25BC, 0x2302})));
    EXPECT_TRUE(item.IsValidAll());
    EXPECT_EQ(BytesOf(item), bytes);
}

TEST(TextDescriptor, AnEnteredTextIsPaddedWithBlanks) {
    EXPECT_EQ(ToHex(BytesOf(NameOf("AB"))), "00 00 00 FC 00 41 42 0A 20 20 20 20 20 20 20 20 20 20");
    EXPECT_EQ(ToHex(BytesOf(NameOf("ABCDEFGHIJKL"))), "00 00 00 FC 00 41 42 43 44 45 46 47 48 49 4A 4B 4C 0A");
    EXPECT_TRUE(NameOf("AB").IsValid());
}

TEST(TextDescriptor, LengthAndCharactersHaveLimits) {
    EXPECT_TRUE(NameOf("1234567890123").IsValid());
    EXPECT_FALSE(NameOf("12345678901234").IsValidAll());
    EXPECT_TRUE(NameOf("").IsValidAll());
    EXPECT_FALSE(NameOf("").IsValid());
    EXPECT_FALSE(NameOf("\u20AC").IsValidAll());  // no character of the code page
    EXPECT_FALSE(NameOf("\u25D9").IsValidAll());  // the character of the line feed's byte
    EXPECT_FALSE(NameOf("\n").IsValidAll());
}

TEST(TextDescriptor, AnEmptyTextIsSaidToBe) {
    EXPECT_EQ(TextOf(NameOf("")), "Name is empty");
    EXPECT_EQ(TextOf(EdidSerialNumberDescriptor()), "Serial number is empty");
    EXPECT_EQ(TextOf(EdidTextDescriptor()), "Text is empty");
}

TEST(TextDescriptor, ATextThatNamesItsOwnPlaceholderIsPlainText) {
    EXPECT_EQ(TextOf(NameOf("{text}")), "Name: {text}");
}

TEST(TextDescriptor, AnEditDropsTheReservedBytes) {
    const auto item = ReadAs<EdidNameDescriptor>(FromHex("00 00 12 FC 34 41 0A 20 20 20 20 20 20 20 20 20 20 20"));
    EXPECT_EQ(item.reserved1, 0x12);
    EXPECT_EQ(item.reserved2, 0x34);
    EXPECT_EQ(EdidNameDescriptor(static_cast<const EdidTextDescriptorFields&>(item)), NameOf("A"));
}

}  // namespace
}  // namespace VNT

#include "app/arguments.h"

#include <gtest/gtest.h>

namespace VNT::App {

TEST(Arguments, OfNoneEditTheMachinesDisplays) {
    const Arguments arguments = ReadArguments({});
    EXPECT_FALSE(arguments.file);
    EXPECT_FALSE(arguments.store);
    EXPECT_EQ(arguments.error, "");
}

TEST(Arguments, NameAFileOrAFolder) {
    EXPECT_EQ(ReadArguments({"edid.bin"}).file, "edid.bin");
    EXPECT_EQ(ReadArguments({"--store", "displays"}).store, "displays");
    EXPECT_EQ(ReadArguments({"--store=displays"}).store, "displays");
    EXPECT_EQ(ReadArguments({"--", "--store"}).file, "--store");
    EXPECT_EQ(ReadArguments({"-"}).file, "-");
    EXPECT_TRUE(ReadArguments({"--help"}).help);
    EXPECT_TRUE(ReadArguments({"--version"}).version);
}

TEST(Arguments, TellWhatIsWrongWithThem) {
    EXPECT_EQ(ReadArguments({"--stor"}).error, "--stor: no such option");
    EXPECT_EQ(ReadArguments({"--store"}).error, "--store: which folder?");
    EXPECT_EQ(ReadArguments({"a", "b"}).error, "b: one file at a time");
    EXPECT_EQ(ReadArguments({"a", "--store", "b"}).error, "a file and a folder of displays at once");
}

}  // namespace VNT::App

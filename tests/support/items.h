#pragma once

#include <gtest/gtest.h>
#include <string>

#include "model/core/text.h"
#include "tests/print.h"

// What tests of items do all the time.
namespace VNT::Testing {

inline Bytes FromHex(const char* text) {
    Bytes bytes;
    EXPECT_TRUE(HexFromText(text, bytes)) << text;
    return bytes;
}

inline std::string ToHex(const Bytes& bytes) { return HexText(bytes).ToUtf8(); }

// The item of the bytes, which have to be its own.
template <class X>
X ReadAs(const Bytes& bytes) {
    X item;
    EXPECT_TRUE(item.Read(bytes)) << ToHex(bytes);
    return item;
}

// What the item writes in its frame, or nothing if it writes nothing.
template <class X>
Bytes BytesOf(const X& item, int size = X::FrameSize) {
    Bytes bytes(size, 0xEE);
    if (item.Write(bytes)) return bytes;
    EXPECT_TRUE(bytes.IsAll(0xEE)) << "a refused write left its traces";
    return {};
}

template <class X>
std::string TextOf(const X& item) {
    String text("left over");
    item.GetText(text);
    return text.ToUtf8();
}

template <class X>
std::string TextOf(const X& item, const String& format) {
    String text("left over");
    item.GetText(text, format);
    return text.ToUtf8();
}

}  // namespace VNT::Testing

#pragma once

#include "model/core/text.h"
#include "model/edid/edid.h"

namespace VNT::Testing {

inline Bytes FromHex(const char* text) {
    Bytes bytes;
    HexFromText(text, bytes);
    return bytes;
}

inline std::string ToHex(const Bytes& bytes) { return HexText(bytes).ToUtf8(); }

// A base block with right checksum: the given extension count, version and revision, and nothing in its lists.
inline Bytes BaseBlock(int extensionCount = 0, int revision = 3) {
    EdidFields fields;
    fields.properties.revision = revision;
    if (revision == 4) fields.properties.screenFieldsPresent = EdidScreenFieldsPresentEnum::None;
    Bytes bytes = Edid(fields).GetBytes();
    bytes.At(126) = static_cast<std::uint8_t>(extensionCount);
    bytes.At(127) = static_cast<std::uint8_t>(ComputeChecksum(bytes));
    return bytes;
}

inline Bytes Join(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes& part : parts) all.Append(part);
    return all;
}

template <class Item>
std::string TextOf(const Item& item) {
    String text;
    item.GetText(text);
    return text.ToUtf8();
}

}  // namespace VNT::Testing

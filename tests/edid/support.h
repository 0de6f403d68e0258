#pragma once

#include "model/edid/edid.h"
#include "tests/support/items.h"

namespace VNT::Testing {

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

}  // namespace VNT::Testing

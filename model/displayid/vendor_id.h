#pragma once

#include "model/core/characters.h"
#include "model/core/text.h"

// A vendor as a field `vendorId` of 24 bits: three letters in version 1 of DisplayID, an IEEE OUI or CID in version 2,
// which stands with its highest byte first.
namespace VNT {

template <class IO>
void MapDisplayIdVendor(IO& io, auto& vendorId) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(vendorId)>, String>) {
        constexpr int letters = 3;
        MapCharacters(io, "vendorId", letters, vendorId);
    } else {
        io.Order(BitOrder::Msb);
        io.Number("vendorId", 24, vendorId, Within(0, 0xFFFFFF));
        io.Order(BitOrder::Lsb);
    }
}

inline String DescribeDisplayIdVendor(const String& vendorId) { return vendorId; }
inline String DescribeDisplayIdVendor(int vendorId) {
    constexpr int radix = 16, digits = 6;
    return NumberText(vendorId, radix, digits, true);
}

}  // namespace VNT

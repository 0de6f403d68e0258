#pragma once

#include <algorithm>
#include <string>

#include "store/display.h"

// What is taken from a source that reports displays, at most: it may be wrong about itself, and lie or never end.
namespace VNT::Source {

inline constexpr int MostEdidBytes = 256 * EdidBlockSize;  // the base block and all extensions that its count can name
inline constexpr int MostRecords = 1024;                   // adapters, displays or monitors in a row

// Appends the first `size` bytes of `buffer`: no more than it holds, and no more than an EDID can have.
void AppendEdid(Bytes& edid, ByteRange buffer, std::int64_t size);

// The text in a field of fixed size, which may lack its terminator.
template <int size>
std::string FieldText(const char (&field)[size]) {
    return {field, std::find(field, field + size, '\0')};
}

}  // namespace VNT::Source

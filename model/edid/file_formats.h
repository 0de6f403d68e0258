#pragma once

#include <string>

#include "model/edid/edid.h"

namespace VNT {

// The three formats of EDID files, over the bytes of a file: raw bytes (BIN), a listing with offsets (DAT) and plain
// hex (TXT). The readers return false, with `edid` unchanged, for bytes that are no EDID in their format.
inline constexpr int MaxBinaryFileBytes = 0x10400;  // of a BIN or DAT file; what is behind is not looked at
inline constexpr int MaxTextFileCharacters = 0x80000;
// More than any reader looks at, whatever blanks and line ends stand between the bytes of a text.
inline constexpr int MaxFileBytes = 4 * MaxTextFileCharacters;

bool ReadBin(const Bytes& file, Edid& edid);
bool ReadDat(const Bytes& file, Edid& edid);
bool ReadTxt(const Bytes& file, Edid& edid);
// Whichever of the three takes the bytes, tried in this order.
bool ReadAnyFormat(const Bytes& file, Edid& edid);

// What a file says, before an EDID is made of it.
struct FileContent {
    Bytes bytes;  // the EDID's, and what stands behind it
    bool isText = false;
    int notUnderstood = 0;  // characters of a text behind the last byte that was read from it
};
// The content of a file as ReadAnyFormat takes it; false, with `content` unchanged, if it doesn't.
bool GetContent(const Bytes& file, FileContent& content);

// The bytes of a file; empty if the EDID can't be written. Lines end in "\n".
Bytes WriteBin(const Edid& edid);
Bytes WriteDat(const Edid& edid);
Bytes WriteTxt(const Edid& edid);
// Of bytes as they are, whether they are an EDID or not.
Bytes WriteDat(const Bytes& bytes);
Bytes WriteTxt(const Bytes& bytes);

}  // namespace VNT

// The importers: no file crashes them, what is refused changes nothing, and what is read comes back from a file of each
// format.

#include "fuzz/fuzz.h"
#include "model/edid/file_formats.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace VNT;
    Bytes file(std::vector<std::uint8_t>(data, data + size));
    // More blocks take the time of many other inputs and show nothing new.
    constexpr int countAt = 126;
    constexpr int mostBlocks = 4;
    if (file.Size() > countAt && file.At(0) == 0) file.At(countAt) %= mostBlocks;
    constexpr bool (*readers[])(const Bytes&, Edid&) = {ReadBin, ReadDat, ReadTxt};
    bool isRead = false;
    Edid first;
    for (const auto read : readers) {
        Edid edid;
        if (!read(file, edid)) {
            Require(edid == Edid(), "a file that is refused leaves the EDID alone");
        } else if (!isRead) {
            isRead = true;
            first = edid;
        }
    }
    Edid any;
    Require(ReadAnyFormat(file, any) == isRead, "any format is one of the three");
    Require(any == first, "the first reader that takes the file reads it");
    if (!isRead || any.GetSize() > mostBlocks * Edid::BlockSize) return 0;

    const Bytes bytes = WriteBin(any);
    if (bytes.IsEmpty()) return 0;
    // Slots that the reader dropped are not written: only what was written comes back the same.
    Edid plain;
    Require(plain.Read(bytes), "what is written is an EDID");
    for (const Bytes& written : {bytes, WriteDat(any), WriteTxt(any)}) {
        Edid back;
        Require(ReadAnyFormat(written, back) && back == plain, "an EDID comes back from a file of each format");
    }
    return 0;
}

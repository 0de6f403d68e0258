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
    static const Edid untouched;
    Edid first;
    bool isRead = false;
    for (const auto read : {ReadBin, ReadDat, ReadTxt}) {
        isRead = read(file, first);
        if (isRead) break;
        Require(first == untouched, "a file that is refused leaves the EDID alone");
    }
    Edid any;
    Require(ReadAnyFormat(file, any) == isRead, "any format is one of the three");
    Require(any == first, "the first reader that takes the file reads it");
    if (!isRead || any.GetSize() > mostBlocks * Edid::BlockSize) return 0;

    const Bytes bytes = WriteBin(any);
    if (bytes.IsEmpty()) return 0;
    // One format for each input, which its serial number chooses: three take three times as long.
    using Writer = Bytes (*)(const Bytes&);
    constexpr int serialNumberAt = 12;
    constexpr Writer writers[] = {[](const Bytes& same) { return same; }, WriteDat, WriteTxt};
    const Bytes written = writers[bytes.At(serialNumberAt) % 3](bytes);
    Edid back;
    Require(ReadAnyFormat(written, back), "an EDID comes back from a file of each format");
    // Slots that the reader dropped are not written: only what was written comes back the same.
    Require(back.GetBytes() == bytes, "with the bytes that were written");
    return 0;
}

// The EDID reader over any bytes: what is read can be written, the bytes survive, and normalising once is normalising
// for good. What is said of an EDID is another target's (show_fuzz.cpp): it takes the time of many reads.

#include "fuzz/edid_input.h"
#include "fuzz/fuzz.h"

namespace {

using namespace VNT;

void CheckWritten(const Edid& edid, const Bytes& bytes) {
    const Bytes written = edid.GetBytes();
    Require(written.Size() == edid.GetSize(), "what is read can be written");
    // Blocks that the bytes lack are filled up, and bytes behind the last counted block are not looked at.
    const int whole = std::min(bytes.Size() / Edid::BlockSize * Edid::BlockSize, written.Size());
    Require(written.Slice(0, whole) == bytes.Slice(0, whole), "bytes survive");
    Edid again;
    Require(again.Read(written), "what is written can be read");
    Require(again == edid, "a second round changes nothing");
}

// Those that take any bytes are not tested where they are read.
void CheckItems(const Edid& edid) {
    for (const auto& item : edid.descriptors) Require(item.IsValidAll(), "what a list holds can be written");
    for (const auto& item : edid.standardResolutions) Require(item.IsValidAll(), "what a list holds can be written");
    for (const auto& item : edid.extensionBlocks) Require(item.IsValidAll(), "what a list holds can be written");
}

void CheckNormalised(const Edid& edid) {
    const Bytes once = Edid(static_cast<const EdidFields&>(edid)).GetBytes();
    Edid again;
    if (!again.Read(once)) return;
    Require(Edid(static_cast<const EdidFields&>(again)).GetBytes() == once, "normalising twice is normalising once");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes = FuzzEdid(data, size);
    Edid edid;
    if (!edid.Read(bytes)) {
        Require(bytes.Size() < Edid::BlockSize, "a block with a header reads");
        return 0;
    }
    CheckWritten(edid, bytes);
    CheckItems(edid);
    // To normalise takes longer than all else: one input in four does, chosen by its serial number, which changes
    // nothing of the code that is reached.
    constexpr int serialNumberAt = 12;
    if (bytes.At(serialNumberAt) % 4 == 0) CheckNormalised(edid);
    return 0;
}

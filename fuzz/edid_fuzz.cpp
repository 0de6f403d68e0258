// The EDID reader over any bytes: what is read is described, checked, written back and read again; the bytes survive,
// and normalising once is normalising for good.

#include <sstream>

#include "cli/check.h"
#include "cli/show.h"
#include "fuzz/fuzz.h"
#include "model/edid/file_formats.h"

namespace {

using namespace VNT;

constexpr int CountAt = 126;
constexpr int MostExtensionBlocks = 16;  // more take the time of many other inputs and show nothing new

constexpr std::uint8_t Header[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

std::string Describe(const Edid& edid) {
    std::ostringstream out;
    Cli::ShowEdid(edid, out);
    return out.str();
}

void CheckWritten(const Edid& edid, const Bytes& bytes) {
    const Bytes written = edid.GetBytes();
    Require(written.Size() == edid.GetSize(), "what is read can be written");
    // Blocks that the bytes lack are filled up, and bytes behind the last counted block are not looked at.
    const int whole = std::min(bytes.Size() / Edid::BlockSize * Edid::BlockSize, written.Size());
    Require(written.Slice(0, whole) == bytes.Slice(0, whole), "bytes survive");
    Edid again;
    Require(again.Read(written), "what is written can be read");
    Require(again.GetBytes() == written, "a second round changes nothing");
    Require(Describe(again) == Describe(edid), "the text stays");
}

void CheckNormalised(const Edid& edid) {
    const Bytes once = Edid(static_cast<const EdidFields&>(edid)).GetBytes();
    Edid again;
    if (!again.Read(once)) return;
    Require(Edid(static_cast<const EdidFields&>(again)).GetBytes() == once, "normalising twice is normalising once");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Bytes bytes(std::vector<std::uint8_t>(data, data + size));
    for (int i = 0; i < 8 && i < bytes.Size(); ++i) bytes.At(i) = Header[i];
    if (bytes.Size() > CountAt) bytes.At(CountAt) %= MostExtensionBlocks;
    Edid edid;
    if (!edid.Read(bytes)) {
        Require(bytes.Size() < Edid::BlockSize, "a block with a header reads");
        return 0;
    }
    CheckWritten(edid, bytes);
    CheckNormalised(edid);
    Cli::CheckEdid(edid, bytes);
    return 0;
}

// What is said of any EDID: it shows and checks without an end that is too far, twice the same, and an EDID that was
// written and read again says the same.

#include <sstream>

#include "cli/check.h"
#include "cli/show.h"
#include "fuzz/edid_input.h"
#include "fuzz/fuzz.h"

namespace {

using namespace VNT;

std::string Describe(const Edid& edid) {
    std::ostringstream out;
    Cli::ShowEdid(edid, out);
    return out.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes = FuzzEdid(data, size);
    Edid edid;
    if (!edid.Read(bytes)) return 0;
    const std::string shown = Describe(edid);
    Require(!shown.empty(), "an EDID shows");
    Edid again;
    Require(again.Read(edid.GetBytes()), "what is written can be read");
    Require(Describe(again) == shown, "the text stays");
    for (const std::string& reason : Cli::CheckEdid(edid, bytes)) Require(!reason.empty(), "a finding has a text");
    return 0;
}

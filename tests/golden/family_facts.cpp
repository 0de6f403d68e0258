// The kinds of each family: type value, title, and the bytes that adding one takes.
#include <iomanip>
#include <sstream>

#include "model/cta/audio_format.h"
#include "model/cta/data_block.h"
#include "model/cta/hdr_dynamic_metadata.h"
#include "model/displayid/data_block.h"
#include "model/edid/descriptor.h"
#include "model/edid/extension_block.h"
#include "model/edid/range_limits_timing.h"
#include "tests/golden/facts.h"
#include "tests/golden/vocabulary.h"

namespace VNT::Testing {
namespace {

template <class Rows>
void Print(std::ostream& out, const char* name, const Rows& kinds) {
    out << name << ": type, bytes to add, title\n";
    for (const auto& kind : kinds) {
        out << "  0x" << std::hex << std::uppercase << kind.type << std::dec << " " << kind.addSize << " " << kind.title
            << (kind.isRead ? "" : ", not read") << "\n";
    }
}

}  // namespace

std::string PrintVocabularies() {
    return PrintEdidVocabularies() + PrintCtaVocabularies() + PrintDisplayIdVocabularies();
}

std::string PrintKinds() {
    std::ostringstream out;
    Print(out, "Descriptors", EdidDescriptorKinds::All());
    Print(out, "Range limits timings", EdidRangeLimitsTimingKinds::All());
    Print(out, "Extension blocks", EdidExtensionBlockKinds::All());
    Print(out, "CTA data blocks", CtaDataBlockKinds::All());
    Print(out, "CTA audio formats", CtaAudioFormatKinds::All());
    Print(out, "CTA HDR dynamic metadata", CtaHdrDynamicMetadataKinds::All());
    Print(out, "DisplayID data blocks", DisplayIdDataBlockKinds::All());
    return out.str();
}

}  // namespace VNT::Testing

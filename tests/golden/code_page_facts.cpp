// Code page 437, in which descriptors hold their texts: each byte with its character.
#include "model/core/code_page.h"
#include "model/core/text.h"
#include "tests/golden/facts.h"

namespace VNT::Testing {

std::string PrintCodePage() {
    std::string text;
    for (int byte = 0; byte < 256; ++byte) {
        const String character = TextFromCodePage437(Bytes{byte});
        text += "0x" + NumberText(byte, 16, 2, true).ToUtf8() + " U+" + NumberText(character[0], 16, 4, true).ToUtf8();
        const bool isSeen = character[0] > U' ' && character[0] != U'\u00A0';
        text += (isSeen ? " " + character.ToUtf8() : "") + "\n";
    }
    return text;
}

}  // namespace VNT::Testing

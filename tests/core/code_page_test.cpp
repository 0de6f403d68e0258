#include "model/core/code_page.h"

#include <gtest/gtest.h>

#include "tests/print.h"

namespace VNT {

TEST(CodePage437, EveryByteHasACharacterOfItsOwn) {
    for (int byte = 0; byte < 256; ++byte) {
        const Bytes bytes{byte};
        const String text = TextFromCodePage437(bytes);
        ASSERT_EQ(text.Length(), 1);
        EXPECT_EQ(CodePage437Byte(text[0]), byte);
        EXPECT_EQ(CodePage437FromText(text), bytes);
    }
}

TEST(CodePage437, AgreesWithAsciiAndItsKnownSigns) {
    EXPECT_EQ(TextFromCodePage437(Bytes{'A', ' ', '~', 0x81, 0xE1, 0xB3, 0x01, 0x7F, 0xFF}),
              U"A ~\u00FC\u00DF\u2502\u263A\u2302\u00A0");
    EXPECT_EQ(TextFromCodePage437(Bytes()), U"");
}

TEST(CodePage437, ACharacterThatItLacksHasNoByteAndIsWrittenAsAQuestionMark) {
    EXPECT_EQ(CodePage437Byte(0x20AC), -1);
    EXPECT_EQ(CodePage437Byte(0x0A), -1);
    EXPECT_EQ(CodePage437Byte(0x110000), -1);
    EXPECT_EQ(CodePage437FromText(U"5\u20AC"), (Bytes{'5', '?'}));
}

}  // namespace VNT

// The luminance codes of CTA-861 (7.5.13, desired content luminance), which other data blocks share.
#pragma once

#include "model/core/layout.h"

namespace VNT {

// Numbers in cd/m², codes 1 to 255; Undefined is what can't be computed.
struct Luminance {
    static constexpr DecimalLimits MaxLimits{Decimal(50), Decimal(12800), {}, {}, {Decimal::Undefined()}};
    static constexpr DecimalLimits MinLimits{Decimal(0), Decimal(128), {}, {}, {Decimal::Undefined()}};

    // Of the greatest luminance, and of that of a whole frame on average.
    static Decimal DecodeMax(int code);
    static int EncodeMax(Decimal number);
    // The codes of the least luminance are steps of the greatest one.
    static Decimal DecodeMin(int code, int maxCode);
    static int EncodeMin(Decimal number, int maxCode);

    // Bring code and number in line: the number follows the code in `rawMode`, else the code the number, which then is
    // rounded to what the code says. A code that says the number already stays, and a number that no code can say
    // stays, so that its user can mend it.
    static void AlignMax(bool rawMode, int& code, Decimal& number);
    static void AlignMin(bool rawMode, int& code, Decimal& number, int maxCode);

    // The code is in the bytes; the number, which isn't, has its limits tested in the same place.
    template <class IO>
    static void Map(IO& io, const char* codeName, auto& code, const char* name, const Decimal& number,
                    const DecimalLimits& limits) {
        io.Number(codeName, 8, code, ZeroIsUndefined, WithinOrUndefined(1, 255));
        io.Check(name, limits.Contains(number), limits.Contains(number));
    }
};

}  // namespace VNT

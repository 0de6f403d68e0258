// Decimal: every operation against the definition of its result, with whole 128-bit products; texts both ways.

#include "fuzz/fuzz.h"
#include "model/core/decimal.h"
#include "model/core/text.h"
#include "tests/core/wide.h"

namespace {

using namespace VNT;

constexpr std::int64_t Most = INT64_MAX;

// 64 bits, cut to any number of decimal digits so that small numbers come as often as great ones.
std::int64_t NumberFrom(ByteRange& input) {
    const std::uint64_t low = input.ReadLsb(32);
    const std::uint64_t all = low + input.ReadLsb(32) * 0x100000000u;
    return static_cast<std::int64_t>(all) / PowerOfTen(static_cast<int>(input.ReadLsb(8) % 19));
}

void RequireProduct(Decimal product, std::int64_t a, std::int64_t b, std::uint64_t divisor) {
    Require(IsQuotient(Magnitude(product.Millionths()), Product(Magnitude(a), Magnitude(b)), divisor), "a product");
    Require(product.Millionths() == 0 || (product.Millionths() < 0) == ((a < 0) != (b < 0)), "the sign of a product");
}

void CheckArithmetic(std::int64_t a, std::int64_t b) {
    const Decimal x = Decimal::FromMillionths(a);
    const Decimal y = Decimal::FromMillionths(b);
    if (x.IsUndefined() || y.IsUndefined()) {
        Require((x + y).IsUndefined() && (x - y).IsUndefined(), "undefined spreads through sums");
        Require((x * y).IsUndefined() && (x / y).IsUndefined(), "undefined spreads through products");
        return;
    }
    Require(x + y - y == x || (x + y).Millionths() == Most || (x + y).Millionths() == -Most, "a sum is undone");
    Require(x - y == x + -y, "a difference is a sum");
    RequireProduct(x * y, a, b, Decimal::Scale);
    if (b != Undefined) RequireProduct(x * b, a, b, 1);
    if (b == 0) {
        Require((x / y).IsUndefined() && (x / b).IsUndefined(), "nothing is divided by zero");
        return;
    }
    const Decimal quotient = x / y;
    Require(IsQuotient(Magnitude(quotient.Millionths()), Product(Magnitude(a), Decimal::Scale), Magnitude(b)),
            "a quotient");
    if (b != Undefined) Require((x / b).Millionths() == a / b, "a quotient by an integer");
}

void CheckRounding(Decimal value, int places) {
    const Decimal nearest = value.RoundNearest(places);
    const Decimal up = value.RoundUp(places);
    value.ToInt(places);
    if (value.IsUndefined() || places >= 6) {
        Require(nearest == value && up == value, "what needs no rounding stays");
        return;
    }
    if (places < -6 || Magnitude(value.Millionths()) > static_cast<std::uint64_t>(Most) / 2) return;
    const std::int64_t unit = PowerOfTen(6 - places);
    Require(nearest.Millionths() % unit == 0 && up.Millionths() % unit == 0, "rounded to whole units");
    Require(Magnitude((nearest - value).Millionths()) <= static_cast<std::uint64_t>(unit / 2), "to the nearest");
    Require(up >= value && (up - value).Millionths() < unit, "up, to the next");
}

void CheckTexts(Decimal value, ByteRange input) {
    Decimal back;
    Require(TextToDecimal(DecimalToText(value, 6), back) && back == value, "a number comes back from its text");
    const DecimalFormat format{static_cast<int>(input.ReadLsb(4)), static_cast<int>(input.ReadLsb(5)),
                               input.ReadLsb(1) != 0};
    Require(DecimalToText(value, format).Length() <= format.maxLength, "no longer than allowed");

    const Bytes rest(input.TakeRest());
    const String text(std::string_view(reinterpret_cast<const char*>(rest.View().data()), rest.View().size()));
    Decimal read = value;
    if (!TextToDecimal(text, read)) {
        Require(read == value, "a text that is no number leaves the number alone");
        return;
    }
    Require(TextToDecimal(DecimalToText(read, 6), back) && back == read, "what is read comes back from its text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes(std::vector<std::uint8_t>(data, data + size));
    ByteRange input = bytes;
    const std::int64_t a = NumberFrom(input);
    const std::int64_t b = NumberFrom(input);
    const int places = static_cast<int>(input.ReadLsb(6)) - 32;
    CheckArithmetic(a, b);
    CheckRounding(Decimal::FromMillionths(a), places);
    CheckTexts(Decimal::FromMillionths(b), input);
    return 0;
}

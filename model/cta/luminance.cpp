#include "model/cta/luminance.h"

#include <cmath>

namespace VNT {

namespace {

constexpr int MostCode = 255;
constexpr double Least = 50;             // cd/m²: the greatest luminance of code 0
constexpr double StepsPerDoubling = 32;  // of its codes
constexpr double MinScale = 100;         // the least luminance is at most a hundredth of the greatest

bool IsCode(double code) { return code >= 1 && code <= MostCode; }

Decimal NumberOf(double number, const DecimalLimits& limits) {
    const Decimal decimal = Decimal::FromDouble(number);
    return limits.Contains(decimal) ? decimal : Decimal::Undefined();
}

int CodeOf(double code) {
    const double rounded = std::round(code);
    return IsCode(rounded) ? static_cast<int>(rounded) : Undefined;
}

bool CanEncode(Decimal number, const DecimalLimits& limits) { return !number.IsUndefined() && limits.Contains(number); }

void Align(bool rawMode, int& code, Decimal& number, const auto& decode, const auto& encode) {
    if (!rawMode && !(number == decode(code))) code = encode(number);
    const Decimal decoded = decode(code);
    if (rawMode || !decoded.IsUndefined()) number = decoded;
}

}  // namespace

Decimal Luminance::DecodeMax(int code) {
    return IsCode(code) ? NumberOf(Least * std::exp2(code / StepsPerDoubling), MaxLimits) : Decimal::Undefined();
}

int Luminance::EncodeMax(Decimal number) {
    if (!CanEncode(number, MaxLimits)) return Undefined;
    return CodeOf(StepsPerDoubling * std::log2(number.ToDouble() / Least));
}

Decimal Luminance::DecodeMin(int code, int maxCode) {
    const Decimal max = DecodeMax(maxCode);
    if (!IsCode(code) || max.IsUndefined()) return Decimal::Undefined();
    const double share = static_cast<double>(code) / MostCode;
    return NumberOf(max.ToDouble() * share * share / MinScale, MinLimits);
}

int Luminance::EncodeMin(Decimal number, int maxCode) {
    const Decimal max = DecodeMax(maxCode);
    if (!CanEncode(number, MinLimits) || max.IsUndefined()) return Undefined;
    return CodeOf(MostCode * std::sqrt(number.ToDouble() * MinScale / max.ToDouble()));
}

void Luminance::AlignMax(bool rawMode, int& code, Decimal& number) {
    Align(rawMode, code, number, DecodeMax, EncodeMax);
}

void Luminance::AlignMin(bool rawMode, int& code, Decimal& number, int maxCode) {
    Align(
        rawMode, code, number, [maxCode](int raw) { return DecodeMin(raw, maxCode); },
        [maxCode](Decimal wanted) { return EncodeMin(wanted, maxCode); });
}

}  // namespace VNT

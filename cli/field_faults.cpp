#include "cli/field_faults.h"

#include "cli/edid_files.h"
#include "cli/outline.h"
#include "model/core/characters.h"
#include "model/core/text.h"

namespace VNT::Cli {

namespace {

std::string DecimalText(Decimal value) {
    if (value.IsUndefined()) return "undefined";
    std::string text = DecimalToText(value, 6).ToUtf8();
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

std::string ValueText(std::int64_t value) { return value == Undefined ? "undefined" : std::to_string(value); }
std::string ValueText(Decimal value) { return DecimalText(value); }

std::string ValueText(const NumberRef& value) {
    return value.Form() == NumberForm::Decimal ? DecimalText(Decimal::FromMillionths(value.Get()))
                                               : ValueText(value.Get());
}

template <class T>
std::string SpanText(const T& min, const T& max) {
    return min == max ? ValueText(min) : ValueText(min) + " to " + ValueText(max);
}

template <class Extra>
std::string WithExtra(std::string text, const Extra& extra) {
    for (const auto& value : extra) text.append(text.empty() ? "" : " or ").append(ValueText(value));
    return text;
}

template <class T>
std::string RangeText(const TValueLimits<T>& limits) {
    std::string text = limits.min <= limits.max ? SpanText(limits.min, limits.max) : std::string();
    if (!(limits.step == T{}) && !text.empty()) text += " in steps of " + ValueText(limits.step);
    text = WithExtra(text, limits.extra);
    return text.empty() ? "another value" : text;
}
std::string RangeText(const EnumLimits& limits) {
    return WithExtra(limits.count > 0 ? SpanText(std::int64_t{0}, std::int64_t{limits.count - 1}) : std::string(),
                     limits.extra);
}
std::string RangeText(const CountLimits& limits) {
    return SpanText(std::int64_t{limits.min}, std::int64_t{limits.max});
}

// Limits that no length is within are those of bytes that should be zero.
std::string BytesText(const CountLimits& limits) {
    return limits.min > limits.max ? "zeros" : RangeText(limits) + (limits.max == 1 ? " byte" : " bytes");
}

}  // namespace

void FaultSink::Refuse(const char* name, const std::string& value, const std::string& expected) {
    faults.push_back(std::string(name) + " is " + value + ", " + expected + " expected");
}

void FaultSink::RefuseIf(bool refused, const char* name) {
    if (refused) faults.push_back(std::string(name) + " out of limits");
}

void FaultSink::Kept(const char* name, const BitPlace& place, const NumberRef& value) {
    if (!FitsPlace(place, value)) Refuse(name, ValueText(value), SpanText(std::int64_t{0}, place.Most()));
}
void FaultSink::Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits& limits) {
    if (limits.IsProper(value.Get())) return;
    const auto expected = [](const auto& proper) { return RangeText(proper); };
    Refuse(name, ValueText(value), std::visit(expected, limits.GetProper()));
}
void FaultSink::Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>& limits) {
    Rest(name, value, limits);
}
void FaultSink::Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>& limits) {
    if (limits.proper.Contains(value.Size())) return;
    const std::string found = HexText(value.Slice(0, 8)).ToUtf8() + (value.Size() > 8 ? " ..." : "");
    Refuse(name, value.IsEmpty() ? "empty" : found, BytesText(limits.proper));
}
void FaultSink::Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) {
    if (limits.proper.Contains(value.Length()) && AreBytes(value)) return;
    Refuse(name, '"' + OneLine(value) + '"', RangeText(limits.proper) + " characters");
}
void FaultSink::Part(const char* name, int, const PartRef&, bool proper, bool) { RefuseIf(!proper, name); }
void FaultSink::List(const char* name, const PartRef&, bool proper, bool) { RefuseIf(!proper, name); }
void FaultSink::Optional(const char* name, const PartRef&, bool proper, bool) { RefuseIf(!proper, name); }
void FaultSink::Check(const char* name, bool proper, bool) { RefuseIf(!proper, name); }

std::vector<std::string> FieldFaults(const FieldSource& item) {
    FaultSink sink;
    item.Tell(sink);
    return std::move(sink.faults);
}

}  // namespace VNT::Cli

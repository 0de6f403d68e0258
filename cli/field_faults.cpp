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

std::string BeginningOf(const Bytes& value) {
    constexpr int shown = 8;
    if (value.IsEmpty()) return "empty";
    return HexText(value.Slice(0, shown)).ToUtf8() + (value.Size() > shown ? " ..." : "");
}

std::string Quoted(const String& value) { return '"' + OneLine(value) + '"'; }

}  // namespace

void FaultSink::Refuse(const char* name, const std::string& value, const std::string& expected) {
    faults.push_back(std::string(name) + " is " + value + ", " + expected + " expected");
}

void FaultSink::RefuseByRule(const char* name, const std::string& value) {
    faults.push_back(std::string(name) + " is " + value + ", out of limits");
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
    Refuse(name, BeginningOf(value), BytesText(limits.proper));
}
void FaultSink::Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) {
    if (limits.proper.Contains(value.Length()) && AreBytes(value)) return;
    Refuse(name, Quoted(value), RangeText(limits.proper) + " characters");
}
void FaultSink::Part(const char* name, int, const PartRef& part, bool proper, bool all) {
    if (part.IsList()) return List(name, part, proper, all);
    const std::size_t before = faults.size();
    AddFaultsOf(part.Item(), std::string(name) + "/");
    RefuseIf(!proper && faults.size() == before, name);
}
void FaultSink::List(const char* name, const PartRef& list, bool proper, bool) {
    RefuseIf(!proper, name);
    for (int i = 0; i < list.GetCount(); ++i)
        AddFaultsOf(list.At(i), std::string(name) + "/" + std::to_string(i) + "/");
}
// Its fields count as those of the item that has it.
void FaultSink::Optional(const char* name, const PartRef& item, bool proper, bool) {
    const std::size_t before = faults.size();
    AddFaultsOf(item.Item(), "");
    RefuseIf(!proper && faults.size() == before, name);
}
void FaultSink::Check(const char* name, bool proper, bool) { RefuseIf(!proper, name); }
void FaultSink::Value(const char* name, const NumberRef& value, NumberNames, bool proper, bool) {
    if (!proper) RefuseByRule(name, ValueText(value));
}
void FaultSink::Value(const char* name, String& value, bool proper, bool) {
    if (!proper) RefuseByRule(name, Quoted(value));
}
void FaultSink::Value(const char* name, Bytes& value, bool proper, bool) {
    if (!proper) RefuseByRule(name, BeginningOf(value));
}

void FaultSink::AddFaultsOf(const ItemRef& item, const std::string& path) {
    FaultSink sink;
    item.Tell(sink);
    for (const std::string& fault : sink.faults) faults.push_back(path + fault);
}

std::vector<std::string> FieldFaults(const FieldSource& item) {
    FaultSink sink;
    item.Tell(sink);
    return std::move(sink.faults);
}

}  // namespace VNT::Cli

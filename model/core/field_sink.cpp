#include "model/core/field_sink.h"

#include "model/core/characters.h"

namespace VNT {

namespace {

constexpr int BitsPerByte = 8;

bool Passes(std::int64_t number, const ValueLimits& limits) { return limits.Contains(static_cast<int>(number)); }
bool Passes(std::int64_t number, const LongLimits& limits) { return limits.Contains(number); }
bool Passes(std::int64_t number, const EnumLimits& limits) { return limits.Contains(static_cast<int>(number)); }
bool Passes(std::int64_t number, const DecimalLimits& limits) {
    return limits.Contains(Decimal::FromMillionths(number));
}

}  // namespace

std::int64_t NumberRef::Held(std::int64_t number) const {
    const std::int64_t before = Get();
    Put(number);
    const std::int64_t held = Get();
    Put(before);
    return held;
}

bool NumberLimits::IsProper(std::int64_t number) const {
    return std::visit([number](const auto* pair) { return Passes(number, pair->proper); }, pair_);
}
bool NumberLimits::IsAll(std::int64_t number) const {
    return std::visit([number](const auto* pair) { return Passes(number, pair->all); }, pair_);
}
AnyLimits NumberLimits::GetProper() const {
    return std::visit([](const auto* pair) { return AnyLimits(pair->proper); }, pair_);
}
AnyLimits NumberLimits::GetAll() const {
    return std::visit([](const auto* pair) { return AnyLimits(pair->all); }, pair_);
}

NumberNames NumberLimits::GetNames() const {
    const auto* pair = std::get_if<const TLimitPair<EnumLimits>*>(&pair_);
    return pair != nullptr ? (*pair)->all.names : NumberNames();
}

bool FitsPlace(const BitPlace& place, const NumberRef& value) {
    if (value.Form() != NumberForm::Count) return true;
    const std::int64_t number = value.Get();
    return number >= 0 && number <= place.Most();
}

void StatusSink::Kept(const char* name, const BitPlace& place, const NumberRef& value) {
    const bool fits = FitsPlace(place, value);
    status.Report(name, fits, fits);
}
void StatusSink::Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits& limits) {
    const std::int64_t number = value.Get();
    status.Report(name, limits.IsProper(number), limits.IsAll(number));
}
void StatusSink::Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>& limits) {
    Rest(name, value, limits);
}
void StatusSink::Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>& limits) {
    status.Report(name, limits.proper.Contains(value.Size()), limits.all.Contains(value.Size()));
}
void StatusSink::Rest(const char* name, String& value, const TLimitPair<CountLimits>& limits) {
    const bool fits = AreBytes(value);
    status.Report(name, fits && limits.proper.Contains(value.Length()), fits && limits.all.Contains(value.Length()));
}
void StatusSink::Part(const char* name, int, const PartRef&, bool proper, bool all) {
    status.Report(name, proper, all);
}
void StatusSink::List(const char* name, const PartRef&, bool proper, bool all) { status.Report(name, proper, all); }
void StatusSink::Optional(const char* name, const PartRef&, bool proper, bool all) { status.Report(name, proper, all); }
void StatusSink::Check(const char* name, bool proper, bool all) { status.Report(name, proper, all); }

void LimitsSink::Kept(const char* name, const BitPlace& place, const NumberRef&) {
    const LongLimits carried{0, place.Most()};
    limits.push_back({name, carried, carried});
}
void LimitsSink::Number(const char* name, const BitPlace&, const NumberRef&, const NumberLimits& pair) {
    limits.push_back({name, pair.GetProper(), pair.GetAll()});
}
void LimitsSink::Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>& pair) {
    Rest(name, value, pair);
}
void LimitsSink::Rest(const char* name, Bytes&, const TLimitPair<CountLimits>& pair) {
    limits.push_back({name, pair.proper, pair.all});
}
void LimitsSink::Rest(const char* name, String&, const TLimitPair<CountLimits>& pair) {
    limits.push_back({name, pair.proper, pair.all});
}

int RulerSink::Bytes() const { return (position_ + BitsPerByte - 1) / BitsPerByte; }
void RulerSink::Pass(const BitPlace& place) { position_ = place.End(position_); }
void RulerSink::PassBytes(int count) { position_ = (Bytes() + count) * BitsPerByte; }
void RulerSink::Kept(const char* name, const BitPlace& place, const NumberRef&) {
    Pass(place);
    Report(name);
}
void RulerSink::Number(const char* name, const BitPlace& place, const NumberRef& value, const NumberLimits&) {
    Kept(name, place, value);
}
void RulerSink::Data(const char* name, int count, VNT::Bytes&, const TLimitPair<CountLimits>&) {
    PassBytes(count);
    Report(name);
}
void RulerSink::Rest(const char* name, VNT::Bytes& value, const TLimitPair<CountLimits>&) {
    PassRest(name, value.Size());
}
void RulerSink::Rest(const char* name, String& value, const TLimitPair<CountLimits>&) {
    PassRest(name, value.Length());
}
void RulerSink::Part(const char* name, int count, const PartRef&, bool, bool) {
    PassBytes(count);
    Report(name);
}
// What a list holds can be taken out of it whatever the room.
void RulerSink::List(const char* name, const PartRef& list, bool, bool) {
    Report(name);
    PassBytes(list.GetSize());
}
void RulerSink::Optional(const char* name, const PartRef& item, bool proper, bool all) {
    List(name, item, proper, all);
}
// What is no field to the layout, such as text, has its name in the test behind its bytes.
void RulerSink::Check(const char* name, bool, bool) { Report(name); }

// It can be edited only where there is room for one byte at least.
void RulerSink::PassRest(const char* name, int count) {
    const int start = position_;
    PassBytes(1);
    Report(name);
    position_ = start;
    PassBytes(count);
}
void RulerSink::Report(const char* name) {
    if (reach.IsPresent(name)) return;
    const bool isReached = Bytes() <= available_;
    reach.Report(name, isReached, isReached);
}

void PartsSink::Part(const char* name, int, const PartRef& part, bool, bool) { part.AddRows(name, parts); }
void PartsSink::List(const char* name, const PartRef& list, bool, bool) { list.AddRows(name, parts); }
void PartsSink::Optional(const char* name, const PartRef& item, bool, bool) { item.AddRows(name, parts); }

}  // namespace VNT

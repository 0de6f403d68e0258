#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/core/field_sink.h"

// Sinks that look at and change the fields of any item by their names, without knowing its class. `tell` hands the
// item's fields to a sink. A field's value is a number: that of `NumberRef`, the length of bytes or of a text.
namespace VNT::Testing {

using Teller = std::function<void(FieldSink&)>;

// A value to try on a field, and what the field's limits say of it.
struct FieldProbe {
    std::string name;
    std::int64_t number;
    bool proper;
    bool all;
    bool isRest = false;  // of what is left of the bytes
};

// For each field: the least and greatest value of both limits, what is one beyond, what they list beside their range.
class ProbeSink : public FieldSink {
public:
    void Kept(const char* name, const BitPlace& place, const NumberRef& value) override {
        const std::int64_t most = place.Most();
        Add(name, 0, true, true);
        Add(name, value.Held(most), true, true);
        if (value.Form() == NumberForm::Count) {
            Add(name, -1, false, false);
            Add(name, most + 1, false, false);
        }
    }
    void Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits& limits) override {
        for (const AnyLimits& set : {limits.GetProper(), limits.GetAll()}) {
            for (const std::int64_t number : std::visit([](const auto& l) { return Extremes(l); }, set)) {
                const std::int64_t held = value.Held(number);
                Add(name, held, limits.IsProper(held), limits.IsAll(held));
            }
        }
    }
    void Data(const char* name, int, Bytes&, const TLimitPair<CountLimits>& limits) override {
        AddSizes(name, limits, false);
    }
    void Rest(const char* name, Bytes&, const TLimitPair<CountLimits>& limits) override {
        AddSizes(name, limits, true);
    }
    void Rest(const char* name, String&, const TLimitPair<CountLimits>& limits) override {
        AddSizes(name, limits, true);
    }

    std::vector<FieldProbe> probes;

private:
    void Add(const char* name, std::int64_t number, bool proper, bool all, bool isRest = false) {
        probes.push_back({name, number, proper, all, isRest});
    }
    void AddSizes(const char* name, const TLimitPair<CountLimits>& limits, bool isRest) {
        for (const CountLimits& set : {limits.proper, limits.all}) {
            for (const int size : {set.min - 1, set.min, set.max, set.max + 1}) {
                if (size >= 0) Add(name, size, limits.proper.Contains(size), limits.all.Contains(size), isRest);
            }
        }
    }
    template <class V>
    static std::vector<std::int64_t> Extremes(const TValueLimits<V>& limits) {
        const std::int64_t step = std::max<std::int64_t>(1, Detail::Raw(limits.step));
        const std::int64_t min = Detail::Raw(limits.min), max = Detail::Raw(limits.max);
        std::vector<std::int64_t> numbers{min - step, min, max, max + step};
        if (step > 1) numbers.push_back(min + 1);
        for (const V& value : limits.extra) numbers.push_back(Detail::Raw(value));
        return numbers;
    }
    static std::vector<std::int64_t> Extremes(const EnumLimits& limits) {
        std::vector<std::int64_t> numbers{-1, 0, limits.count - 1, limits.count};
        numbers.insert(numbers.end(), limits.extra.begin(), limits.extra.end());
        return numbers;
    }
    static std::vector<std::int64_t> Extremes(const CountLimits&) { return {}; }
};

// Changes or looks at one field.
class FieldHand : public FieldSink {
public:
    explicit FieldHand(std::string_view name, std::optional<std::int64_t> put = {}) : name_(name), put_(put) {}

    void Kept(const char* name, const BitPlace&, const NumberRef& value) override { Touch(name, value); }
    void Number(const char* name, const BitPlace&, const NumberRef& value, const NumberLimits&) override {
        Touch(name, value);
    }
    void Data(const char* name, int, Bytes& value, const TLimitPair<CountLimits>&) override { Touch(name, value); }
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>&) override { Touch(name, value); }
    void Rest(const char* name, String& value, const TLimitPair<CountLimits>&) override {
        if (name != name_) return;
        number = value.Length();
        if (put_) value = String(std::u32string(static_cast<std::size_t>(*put_), U'Z'));
    }

    std::optional<std::int64_t> number;  // what the field held

private:
    void Touch(const char* name, const NumberRef& value) {
        if (name != name_) return;
        number = value.Get();
        if (put_) value.Put(*put_);
    }
    void Touch(const char* name, Bytes& value) {
        if (name != name_) return;
        number = value.Size();
        if (put_) value = Bytes(static_cast<int>(*put_), 0x5A);
    }
    std::string_view name_;
    std::optional<std::int64_t> put_;
};

// The bytes of one field; they are exchanged with `bytes`.
class BytesHand : public FieldSink {
public:
    explicit BytesHand(std::string_view name, Bytes put = {}) : bytes(std::move(put)), name_(name) {}
    void Rest(const char* name, Bytes& value, const TLimitPair<CountLimits>&) override {
        if (name == name_) std::swap(bytes, value);
    }
    Bytes bytes;

private:
    std::string_view name_;
};

inline std::vector<FieldProbe> ProbesOf(const Teller& tell) {
    ProbeSink sink;
    tell(sink);
    return std::move(sink.probes);
}

inline void PutField(const Teller& tell, const std::string& name, std::int64_t number) {
    FieldHand hand(name, number);
    tell(hand);
}

// Empty where the field doesn't apply.
inline std::optional<std::int64_t> GetField(const Teller& tell, const std::string& name) {
    FieldHand hand(name);
    tell(hand);
    return hand.number;
}

inline ItemStatus GetStatusOf(const Teller& tell) {
    StatusSink sink;
    tell(sink);
    return std::move(sink.status);
}

inline ItemStatus GetReachOf(const Teller& tell, int available) {
    RulerSink sink(available);
    tell(sink);
    return std::move(sink.reach);
}

}  // namespace VNT::Testing

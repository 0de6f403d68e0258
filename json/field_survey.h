// What an item's fields can be, over all states that the item can be in: layouts tell only the fields that apply now.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "model/core/field_sink.h"

namespace VNT::Json {

// Numbers as NumberRef has them: a decimal in millionths.
struct NumberRange {
    std::int64_t min = 0;
    std::int64_t max = -1;
    bool IsEmpty() const { return max < min; }
    void Include(std::int64_t number);
    bool operator==(const NumberRange&) const = default;
};

struct SurveyedField {
    enum class Kind { Number, Bytes, Text, Part };

    std::string name;
    Kind kind = Kind::Number;
    // Of a number.
    NumberForm form = NumberForm::Count;
    std::map<std::int64_t, std::string> texts;
    NumberRange proper, all;
    std::int64_t step = 0;         // of all that it can be, from 0; 0 where there is none
    std::set<std::int64_t> extra;  // beside the range
    bool mayBeUndefined = false;
    std::int64_t bits = 0;  // of flags, those that there are
    // Of bytes and texts: how many there can be.
    NumberRange length;
};

// What a sink is told of a part.
using PartCheck = std::function<void(const std::string& name, const PartRef& part)>;

// Of a new item as `make` gives it, in the order of its layout. `onPart` is told each part, once for each state.
std::vector<SurveyedField> SurveyFields(const std::function<ItemRef()>& make, const PartCheck& onPart);

}  // namespace VNT::Json

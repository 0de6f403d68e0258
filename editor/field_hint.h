// What a box takes, in words for the hint of one that is red.
#pragma once

#include <string>
#include <vector>

#include "editor/field_text.h"
#include "model/core/field_sink.h"
#include "model/core/text.h"

namespace Forms {

// "1 to 4095 pixels", "25.000 to 655.350 MHz", "Up to 13 characters"; in the way that the field is written.
std::wstring DescribeLimits(const VNT::AnyLimits& limits, const FieldFormat& format, const std::wstring& unit);

// Of a combo box: the rows that can be chosen now, or the one that can't be; empty if the limits tell of none.
struct RowText {
    std::int64_t Value;
    std::wstring Text;
};
std::wstring DescribeRows(const VNT::AnyLimits& limits, const std::vector<RowText>& rows, std::int64_t chosen);

// Of a list that holds too much: by how much.
std::wstring DescribeList(const VNT::ListMeasure& measure);

// What is wrong with a text that is none of the field's kind: "Not a number".
std::wstring DescribeBadText(const FieldFormat& format);

}  // namespace Forms

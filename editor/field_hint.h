// What a box takes, in words for the hint of one that is red.
#pragma once

#include <string>

#include "editor/field_text.h"
#include "model/core/field_sink.h"

namespace Forms {

// "1 to 4095 pixels", "25.000 to 655.350 MHz", "Up to 13 characters"; in the way that the field is written.
std::wstring DescribeLimits(const VNT::AnyLimits& limits, const FieldFormat& format, const std::wstring& unit);

// What is wrong with a text that is none of the field's kind: "Not a number".
std::wstring DescribeBadText(const FieldFormat& format);

}  // namespace Forms

// Prints arrays of texts with their values, whatever the values' enumeration is.
#pragma once

#include <cstddef>
#include <string>

#include "model/core/flags.h"

namespace VNT::Testing {

class VocabularyPrinter {
public:
    // The value of a row is a flag's bit, counted as the flags of its enumeration count it, or a number.
    template <class Value, std::size_t count>
    void operator()(const char* name, const ValueText<Value> (&rows)[count]) {
        Begin(name);
        for (const ValueText<Value>& row : rows) AddRow(static_cast<long long>(row.value), row.text);
    }
    // Of texts alone the value is the place.
    template <std::size_t count>
    void operator()(const char* name, const char* const (&rows)[count]) {
        Begin(name);
        for (std::size_t i = 0; i < count; ++i) AddRow(static_cast<long long>(i), rows[i]);
    }

    std::string text;

private:
    void Begin(const std::string& name) { text += name + "\n"; }
    void AddRow(long long value, const std::string& row) { text += "  " + std::to_string(value) + " " + row + "\n"; }
};

std::string PrintCtaVocabularies();
std::string PrintDisplayIdVocabularies();
std::string PrintEdidVocabularies();

}  // namespace VNT::Testing

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// A fuzz program defines this, takes its input apart with a ByteRange (which gives zeros past the end) and states what
// must hold of the result with `Require`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Ends the program if the promise is broken: the fuzzer keeps the input, the replay fails.
inline void Require(bool held, const char* promise) {
    if (held) return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

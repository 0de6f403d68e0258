#pragma once

#include <span>
#include <string>
#include <string_view>

namespace VNT {

// The first of `words` that begins with `word`, else the first that takes the fewest keys to make of it: a key more,
// less, another, or two exchanged. Empty if there are no words.
std::string Nearest(std::string_view word, std::span<const std::string> words);

}  // namespace VNT

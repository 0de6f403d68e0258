#include "json/nearest.h"

#include <algorithm>
#include <vector>

namespace VNT {

namespace {

std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> rows(a.size() + 1, std::vector<std::size_t>(b.size() + 1, 0));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            std::size_t least = i + j;
            if (i > 0 && j > 0) {
                const std::size_t differs = a[i - 1] == b[j - 1] ? 0 : 1;
                least = std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, rows[i - 1][j - 1] + differs});
            }
            const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (exchanged) least = std::min(least, rows[i - 2][j - 2] + 1);
            rows[i][j] = least;
        }
    }
    return rows[a.size()][b.size()];
}

}  // namespace

std::string Nearest(std::string_view word, std::span<const std::string> words) {
    constexpr std::size_t longest = 64;  // no word of ours is longer, so what is beyond decides nothing
    const std::string_view start = word.substr(0, longest);
    const auto begins = [word](const std::string& known) { return !word.empty() && known.starts_with(word); };
    const auto longer = std::find_if(words.begin(), words.end(), begins);
    if (longer != words.end()) return *longer;
    const auto nearer = [start](const auto& a, const auto& b) { return Distance(start, a) < Distance(start, b); };
    const auto found = std::min_element(words.begin(), words.end(), nearer);
    return found != words.end() ? *found : std::string();
}

}  // namespace VNT

#include "samples/drivers/driving.h"

#include <cstdlib>
#include <sstream>

namespace StandIn {

long long Line::Number(std::size_t index, long long otherwise) const {
    return index < arguments.size() ? std::strtoll(arguments[index].c_str(), nullptr, 0) : otherwise;
}

void Driving::Start(const std::string& text) {
    *this = Driving();
    std::istringstream lines(text);
    for (std::string raw; std::getline(lines, raw);) {
        std::istringstream words(raw.substr(0, raw.find('#')));
        Line line;
        if (!(words >> line.word)) continue;
        for (std::string word; words >> word;) line.arguments.push_back(word);
        lines_.push_back(line);
    }
}

std::vector<int> Driving::Below(int parent, const std::string& word) const {
    std::vector<int> found;
    for (int line = parent + 1; line < static_cast<int>(lines_.size()); ++line) {
        if (parent >= 0 && At(line).word == At(parent).word) break;
        if (At(line).word == word) found.push_back(line);
    }
    return found;
}

std::vector<std::uint8_t> Driving::EdidBelow(int parent) const {
    std::string digits;
    for (const int line : Below(parent, "edid")) {
        for (const std::string& argument : At(line).arguments) digits += argument;
    }
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(std::strtoul(digits.substr(i, 2).c_str(), nullptr, 16)));
    }
    return bytes;
}

const Line* Driving::Find(const std::string& word, const std::string& call) const {
    for (const Line& line : lines_) {
        if (line.word == word && line.Text(0) == call) return &line;
    }
    return nullptr;
}

int Driving::Enter(const std::string& call) {
    const int count = calls_[call]++;
    const Line* fault = Find("fail", call);
    if (fault == nullptr || count < fault->Number(2)) return 0;
    return static_cast<int>(fault->Number(1, -1));
}

long long Driving::Claim(const std::string& call, long long truth) const {
    const Line* claim = Find("claim", call);
    return claim != nullptr ? claim->Number(1) : truth;
}

bool Driving::Says(const std::string& word, const std::string& call) const { return Find(word, call) != nullptr; }

std::string Driving::Report() const {
    std::string text;
    for (const auto& [kind, count] : alive_) text += kind + " " + std::to_string(count) + "\n";
    return text;
}

}  // namespace StandIn

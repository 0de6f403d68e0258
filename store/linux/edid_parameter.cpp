#include "store/linux/edid_parameter.h"

#include <algorithm>

namespace VNT::Linux {

namespace {

constexpr std::string_view Blanks = " \t\n";

std::vector<std::string> Split(const std::string& value) {
    std::vector<std::string> entries;
    for (std::size_t begin = 0; !value.empty() && begin <= value.size();) {
        const std::size_t end = std::min(value.find(',', begin), value.size());
        entries.push_back(value.substr(begin, end - begin));
        begin = end + 1;
    }
    return entries;
}

std::string Join(const std::vector<std::string>& entries) {
    std::string value;
    for (const std::string& entry : entries) value += (&entry == &entries.front() ? "" : ",") + entry;
    return value;
}

// The connector that an entry names; nothing of one that serves all.
std::optional<std::string> ConnectorOf(const std::string& entry) {
    const std::size_t colon = entry.find(':');
    if (colon == std::string::npos) return std::nullopt;
    return entry.substr(0, colon);
}

bool Serves(const std::string& entry, const std::string& connector) {
    const std::optional<std::string> own = ConnectorOf(entry);
    return own && connector.starts_with(*own);
}

bool IsValueCharacter(char c) {
    const bool isWord = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    return isWord || std::string_view(":/_.,+@%~-").find(c) != std::string_view::npos;
}

// The kernel takes a hyphen in a parameter's name for an underscore.
bool IsNameAt(std::string_view text, std::size_t at) {
    constexpr std::string_view name = "drm.edid_firmware=";
    if (text.size() - at < name.size()) return false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = text[at + i] == '-' ? '_' : text[at + i];
        if (c != name[i]) return false;
    }
    const char before = at == 0 ? ' ' : text[at - 1];
    return Blanks.find(before) != std::string_view::npos || before == '"' || before == '\'' || before == '=';
}

bool IsQuote(char c) { return c == '"' || c == '\''; }

}  // namespace

std::string AddEntries(const std::string& value, const std::vector<FirmwareEntry>& ours) {
    std::vector<std::string> entries = Split(value);
    for (const FirmwareEntry& entry : ours) {
        const auto rival = std::find_if(entries.begin(), entries.end(),
                                        [&](const std::string& other) { return Serves(other, entry.connector); });
        entries.insert(rival, entry.Text());
    }
    return Join(entries);
}

std::string RemoveEntries(const std::string& value, const std::vector<FirmwareEntry>& ours) {
    std::vector<std::string> entries = Split(value);
    for (const FirmwareEntry& entry : ours) {
        const auto found = std::find(entries.begin(), entries.end(), entry.Text());
        if (found != entries.end()) entries.erase(found);
    }
    return Join(entries);
}

std::string FileFor(const std::string& value, const std::string& connector) {
    std::string fallback;
    for (const std::string& entry : Split(value)) {
        const std::optional<std::string> own = ConnectorOf(entry);
        if (!own && !entry.empty()) fallback = entry;
        if (Serves(entry, connector)) return entry.substr(own->size() + 1);
    }
    return fallback;
}

Found FindParameter(std::string_view text, ValuePlace& place) {
    Found found = Found::No;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!IsNameAt(text, at)) continue;
        std::size_t begin = text.find('=', at) + 1;
        if (text.substr(begin).starts_with("\\\"")) {
            begin += 2;
        } else if (begin < text.size() && IsQuote(text[begin])) {
            ++begin;
        }
        std::size_t end = begin;
        while (end < text.size() && IsValueCharacter(text[end])) ++end;
        const bool isEnd = end == text.size() || Blanks.find(text[end]) != std::string_view::npos ||
                           IsQuote(text[end]) || text.substr(end).starts_with("\\\"");
        found = isEnd ? Found::Yes : Found::Unclear;
        place = {begin, end};
        at = end;
    }
    return found;
}

std::optional<std::string> AddToText(const std::string& text, const std::vector<FirmwareEntry>& ours, std::size_t end) {
    if (ours.empty()) return text;
    ValuePlace place;
    switch (FindParameter(text, place)) {
        case Found::Unclear:
            return std::nullopt;
        case Found::Yes: {
            const std::string value = text.substr(place.begin, place.end - place.begin);
            return text.substr(0, place.begin) + AddEntries(value, ours) + text.substr(place.end);
        }
        case Found::No:
            break;
    }
    if (end > text.size()) return std::nullopt;
    return text.substr(0, end) + " " + EdidParameter + "=" + AddEntries("", ours) + text.substr(end);
}

std::optional<std::string> RemoveFromText(const std::string& text, const std::vector<FirmwareEntry>& ours) {
    ValuePlace place;
    const Found found = FindParameter(text, place);
    if (found == Found::Unclear) return std::nullopt;
    if (found == Found::No) return text;
    const std::string value = text.substr(place.begin, place.end - place.begin);
    const std::string left = RemoveEntries(value, ours);
    if (!left.empty() || left == value) return text.substr(0, place.begin) + left + text.substr(place.end);
    // What we put there is the word with the blank before it, without quotes.
    const std::size_t word = text.rfind(EdidParameter, place.begin);
    if (word == std::string::npos) return std::nullopt;
    const std::size_t begin = word > 0 && text[word - 1] == ' ' ? word - 1 : word;
    return text.substr(0, begin) + text.substr(place.end);
}

std::optional<std::string> AddToCommandLine(const std::string& text, const std::vector<FirmwareEntry>& ours) {
    // Behind the last word, which stands in no comment.
    std::size_t end = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t next = std::min(text.find('\n', begin), text.size());
        const std::string line = text.substr(begin, next - begin);
        const std::size_t last = line.find_last_not_of(" \t\r");
        if (last != std::string::npos && line[line.find_first_not_of(" \t")] != '#') end = begin + last + 1;
        begin = next + 1;
    }
    return AddToText(text, ours, end);
}

}  // namespace VNT::Linux

#include "store/linux/grub_defaults.h"

#include <string_view>

namespace VNT::Linux {

namespace {

constexpr std::string_view WordEnds = " \t\n;&|<>()";

// The end of the shell word that begins at `at`; nothing if a quote isn't closed or a command is run inside.
std::optional<std::size_t> EndOfWord(std::string_view text, std::size_t at) {
    char quote = 0;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (quote == 0 && WordEnds.find(c) != std::string_view::npos) return at;
        if (c == quote) {
            quote = 0;
        } else if (quote == '\'') {
            continue;
        } else if (c == '\\') {
            ++at;
        } else if (c == '`' || text.substr(at).starts_with("$(")) {
            return std::nullopt;
        } else if (quote == 0 && (c == '"' || c == '\'')) {
            quote = c;
        }
    }
    return quote == 0 && at == text.size() ? std::optional(at) : std::nullopt;
}

bool Mentions(std::string_view word, const std::string& variable) {
    for (std::size_t at = word.find('$'); at != std::string_view::npos; at = word.find('$', at + 1)) {
        std::string_view name = word.substr(at + 1);
        if (name.starts_with("{")) name.remove_prefix(1);
        if (!name.starts_with(variable)) continue;
        const char next = name.size() > variable.size() ? name[variable.size()] : ' ';
        const bool goesOn =
            next == '_' || (next >= 'A' && next <= 'Z') || (next >= 'a' && next <= 'z') || (next >= '0' && next <= '9');
        if (!goesOn) return true;
    }
    return false;
}

// The start of the line behind the one that `at` stands in.
std::size_t NextLine(std::string_view text, std::size_t at) {
    const std::size_t end = text.find('\n', at);
    return end == std::string_view::npos ? text.size() : end + 1;
}

struct Assigned {
    std::size_t file;
    Assignment assignment;
};

std::optional<std::vector<Assigned>> Effective(const std::vector<std::string>& texts, const std::string& variable) {
    std::vector<Assigned> effective;
    for (std::size_t file = 0; file < texts.size(); ++file) {
        const auto assignments = FindAssignments(texts[file], variable);
        if (!assignments) return std::nullopt;
        for (const Assignment& assignment : *assignments) {
            if (!assignment.extends) effective.clear();
            effective.push_back({file, assignment});
        }
    }
    return effective;
}

std::string WordOf(const std::string& text, const Assignment& assignment) {
    return text.substr(assignment.begin, assignment.end - assignment.begin);
}

// Where a word's value goes on: before a closing quote, else behind the word, which needs quotes then.
std::string Extended(const std::string& word, const std::string& more) {
    const bool isEmpty = word.empty() || word == "\"\"" || word == "''";
    const std::string text = (isEmpty ? "" : " ") + more;
    if (!word.empty() && (word.back() == '"' || word.back() == '\'') && !word.ends_with("\\\"")) {
        return word.substr(0, word.size() - 1) + text + word.back();
    }
    return word + "\"" + text + "\"";
}

std::string ParameterText(const std::vector<FirmwareEntry>& ours) {
    return std::string(EdidParameter) + "=" + AddEntries("", ours);
}

}  // namespace

std::optional<std::vector<Assignment>> FindAssignments(const std::string& text, const std::string& variable) {
    std::vector<Assignment> found;
    const std::string_view view = text;
    for (std::size_t line = 0; line < view.size();) {
        std::string_view rest = view.substr(line);
        std::size_t at = line;
        const std::size_t indent = rest.find_first_not_of(" \t");
        if (indent != std::string_view::npos && rest.substr(indent).starts_with(variable + "=") && indent > 0) {
            return std::nullopt;  // in a branch, which may be taken or not
        }
        if (rest.starts_with("export ")) at += 7;
        rest = view.substr(at);
        if (!rest.starts_with(variable + "=") && !rest.starts_with(variable + "+=")) {
            // A value of another variable may have lines that look like assignments.
            const std::size_t sign = rest.find_first_of("=\n");
            const bool isOther = sign != std::string_view::npos && rest[sign] == '=' && sign > 0 &&
                                 rest.substr(0, sign).find_first_of(" \t#$\"'`") == std::string_view::npos;
            const std::optional<std::size_t> end = isOther ? EndOfWord(view, at + sign + 1) : std::nullopt;
            line = NextLine(view, end.value_or(line));
            continue;
        }
        Assignment assignment;
        assignment.extends = rest[variable.size()] == '+';
        assignment.begin = at + variable.size() + (assignment.extends ? 2 : 1);
        const std::optional<std::size_t> end = EndOfWord(view, assignment.begin);
        if (!end) return std::nullopt;
        assignment.end = *end;
        assignment.extends = assignment.extends || Mentions(WordOf(text, assignment), variable);
        found.push_back(assignment);
        line = NextLine(view, *end);
    }
    return found;
}

GrubPlace FindGrubPlace(const std::vector<std::string>& texts) {
    for (const char* variable : {GrubDefaultLine, GrubLine}) {
        const auto effective = Effective(texts, variable);
        if (!effective) return {Found::Unclear, 0, {}, false};
        for (std::size_t i = effective->size(); i-- > 0;) {
            const Assigned& assigned = (*effective)[i];
            ValuePlace value;
            const Found found = FindParameter(WordOf(texts[assigned.file], assigned.assignment), value);
            if (found == Found::Unclear) return {found, assigned.file, assigned.assignment, true};
            if (found == Found::Yes) return {found, assigned.file, assigned.assignment, true};
        }
    }
    const auto effective = Effective(texts, GrubDefaultLine);
    if (!effective || effective->empty()) return {};
    return {Found::Yes, effective->back().file, effective->back().assignment, false};
}

std::optional<std::string> AddToGrub(const std::string& text, const GrubPlace& place,
                                     const std::vector<FirmwareEntry>& ours) {
    if (ours.empty()) return text;
    if (place.found == Found::Unclear) return std::nullopt;
    if (place.found == Found::No) {
        const bool isOpen = !text.empty() && text.back() != '\n';
        return text + (isOpen ? "\n" : "") + GrubDefaultLine + "=\"" + ParameterText(ours) + "\"\n";
    }
    const std::string word = WordOf(text, place.assignment);
    const std::optional<std::string> changed =
        place.hasParameter ? AddToText(word, ours, word.size() + 1) : Extended(word, ParameterText(ours));
    if (!changed) return std::nullopt;
    return text.substr(0, place.assignment.begin) + *changed + text.substr(place.assignment.end);
}

std::optional<std::string> RemoveFromGrub(const std::string& text, const std::vector<FirmwareEntry>& ours) {
    std::string left = text;
    for (const char* variable : {GrubDefaultLine, GrubLine}) {
        const auto assignments = FindAssignments(left, variable);
        if (!assignments) return std::nullopt;
        for (std::size_t i = assignments->size(); i-- > 0;) {
            const Assignment& assignment = (*assignments)[i];
            const std::string word = WordOf(left, assignment);
            std::optional<std::string> changed = RemoveFromText(word, ours);
            if (!changed) return std::nullopt;
            // Quotes that were put there for our own word alone.
            if (changed->size() > 2 && changed->ends_with("\"\"") && *changed != word)
                changed->resize(changed->size() - 2);
            left = left.substr(0, assignment.begin) + *changed + left.substr(assignment.end);
        }
    }
    return left;
}

}  // namespace VNT::Linux

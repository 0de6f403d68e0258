#include <algorithm>
#include <charconv>
#include <iterator>
#include <ostream>
#include <string_view>

#include "cli/command.h"
#include "json/nearest.h"
#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"

namespace VNT::Cli {

namespace {

using Fields = DetailedResolutionFields;

template <class X>
DetailedResolution MakeItem(const Fields& entered) {
    typename X::FieldsType fields;
    static_cast<Fields&>(fields) = entered;
    return DetailedResolution(std::make_unique<X>(fields));
}

struct Kind {
    std::string_view word;
    DetailedResolution (*make)(const Fields& entered);
};
constexpr Kind Kinds[] = {
    {"edid", MakeItem<EdidDetailedResolution>},
    {"displayid1", MakeItem<DisplayId1DetailedResolution>},
    {"displayid2", MakeItem<DisplayId2DetailedResolution>},
    {"displayid2r2", MakeItem<DisplayId2DetailedResolutionR2>},
};

constexpr Option KindOption{"--kind", "edid|displayid1|displayid2|displayid2r2", "where it is to stand; else edid"};

const Kind& KindOf(std::string_view word) {
    const auto* const found = std::ranges::find(Kinds, word, &Kind::word);
    return found != std::end(Kinds) ? *found : Kinds[0];
}

// Lower case, with hyphens as blanks: what two spellings of a mode have in common.
std::string PlainWord(std::string_view text) {
    std::string plain(text);
    for (char& c : plain) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        if (c == '-') c = ' ';
    }
    return plain;
}

std::vector<std::string> Modes() {
    std::vector<std::string> modes;
    for (const auto& row : DetailedResolutionTimingEnum::Texts) modes.emplace_back(row.text);
    return modes;
}

DetailedResolutionTimingEnum::Enum ModeOf(std::string_view word) {
    for (const auto& row : DetailedResolutionTimingEnum::Texts) {
        if (PlainWord(row.text) == PlainWord(word)) return row.value;
    }
    const std::vector<std::string> modes = Modes();
    std::vector<std::string> plain;
    std::ranges::transform(modes, std::back_inserter(plain), &PlainWord);
    const auto nearest = std::ranges::find(plain, Nearest(PlainWord(word), plain)) - plain.begin();
    throw Failure(std::string(word), "unknown timing mode; the nearest is " + modes[static_cast<std::size_t>(nearest)]);
}

// Takes the number in front of `text`; false if there is none that an int holds.
bool TakeNumber(std::string_view& text, int& number) {
    if (text.empty() || text.front() == '-') return false;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

bool TakeCharacter(std::string_view& text, char character) {
    if (text.empty() || text.front() != character) return false;
    text.remove_prefix(1);
    return true;
}

// WIDTHxHEIGHT[i]@RATE
bool ParsePicture(std::string_view text, Fields& fields) {
    if (!TakeNumber(text, fields.hactive) || !TakeCharacter(text, 'x') || !TakeNumber(text, fields.vactive))
        return false;
    fields.interlaced = TakeCharacter(text, 'i');
    if (!TakeCharacter(text, '@') || text.find_first_not_of("0123456789.") != text.npos) return false;
    return TextToDecimal(String(text), fields.vrate) && !fields.vrate.IsUndefined();
}

std::string CountText(int count) { return count == Undefined ? "-" : std::to_string(count); }

std::string RateText(Decimal rate) { return rate.IsUndefined() ? "-" : DecimalToText(rate, 6).ToUtf8(); }

void Print(const DetailedResolution& item, std::ostream& out) {
    const Fields& f = item.GetFields();
    const auto line = [&out](const std::initializer_list<std::pair<const char*, std::string>> pairs) {
        const char* separator = "";
        for (const auto& [name, value] : pairs) {
            out << separator << name << ' ' << value;
            separator = " ";
        }
        out << '\n';
    };
    const auto sign = [](bool positive) { return positive ? "+" : "-"; };
    const auto bit = [](bool on) { return on ? "1" : "0"; };
    String modeline;
    item.GetText(modeline, U"{modeline}");
    out << modeline.ToUtf8() << '\n';
    line({{"hactive", CountText(f.hactive)},
          {"hfront", CountText(f.hfront)},
          {"hsync", CountText(f.hsync)},
          {"hback", CountText(f.hback)},
          {"hblank", CountText(f.hblank)},
          {"htotal", CountText(f.htotal)}});
    line({{"vactive", CountText(f.vactive)},
          {"vfront", CountText(f.vfront)},
          {"vsync", CountText(f.vsync)},
          {"vback", CountText(f.vback)},
          {"vblank", CountText(f.vblank)},
          {"vtotal", CountText(f.vtotal)}});
    line({{"hpolarity", sign(f.hpolarity)}, {"vpolarity", sign(f.vpolarity)}, {"interlaced", bit(f.interlaced)}});
    line({{"vrate", RateText(f.actualvrate)},
          {"hrate", RateText(f.actualhrate)},
          {"pixelclock", RateText(f.actualpixelclock)}});
    line({{"valid", bit(item.IsValid())}});
}

int RunTiming(const Arguments& arguments, const Console& console) {
    if (arguments.Has("--list")) {
        for (const std::string& mode : Modes()) console.out << mode << '\n';
        return Success;
    }
    const std::string* kindWord = arguments.Value("--kind");
    const Kind& kind = kindWord != nullptr ? KindOf(*kindWord) : Kinds[0];
    const std::string& picture = arguments.Words()[1];
    Fields fields;
    fields.timing = ModeOf(arguments.Words()[0]);
    if (!ParsePicture(picture, fields)) throw Failure(picture, "WIDTHxHEIGHT[i]@RATE is needed");

    const DetailedResolution item = kind.make(fields);
    Print(item, console.out);
    return item.IsValid() ? Success : Negative;
}

}  // namespace

extern const Command TimingCommand;
const Command TimingCommand{"timing",
                            {{"MODE", "how to calculate, as the timing box calls it: cvt-rb-standard"},
                             {"WIDTHxHEIGHT[i]@RATE", "the picture and its rate in Hz; i is interlaced"}},
                            {KindOption, {"--list", nullptr, "print the modes"}},
                            "calculates a detailed resolution",
                            "automatic-pc 2560x1440@75",
                            &RunTiming,
                            "--list"};

}  // namespace VNT::Cli

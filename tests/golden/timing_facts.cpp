#include <algorithm>
#include <sstream>

#include "model/edid/edid.h"
#include "model/edid/established3_descriptor.h"
#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"
#include "model/timing/preset_timings.h"
#include "model/timing/timing_calculation.h"
#include "model/timing/video_code.h"
#include "model/timing/video_format_resolution.h"
#include "tests/golden/facts.h"

namespace VNT::Testing {
namespace {

const char* Sign(bool positive) { return positive ? "+" : "-"; }

void PrintPresets(std::ostream& out, const char* name, std::span<const PresetTiming> rows) {
    out << name << ": size rate hfront hsync hback vfront vsync vback polarities\n";
    for (const PresetTiming& row : rows) {
        out << "  " << row.hactive << "x" << row.vactive << (row.interlaced ? "i" : "") << " " << row.rate << "  "
            << row.hfront << " " << row.hsync << " " << row.hback << "  " << row.vfront << " " << row.vsync << " "
            << row.vback << "  " << Sign(row.hpolarity) << Sign(row.vpolarity) << "\n";
    }
}

std::string Text(const std::vector<Decimal>& rates) {
    std::string text;
    for (const Decimal rate : rates) text += (text.empty() ? "" : "/") + DecimalToText(rate, 0).ToUtf8();
    return text;
}

template <class X>
std::string TextOf(const X& item) {
    String text;
    item.GetText(text);
    return text.ToUtf8();
}

void PrintFormats(std::ostream& out, const char* name, const VideoFormatTable& table) {
    out << name << "\n";
    for (std::size_t code = 0; code < table.rows.size(); ++code) {
        const VideoFormat& row = table.rows[code];
        if (!row.present) continue;
        out << "  " << code << " " << row.width << "x" << row.height << (row.interlaced ? "i" : "");
        if (row.rates.begin() != row.rates.end()) out << " " << Text({row.rates.begin(), row.rates.end()});
        out << " " << table.aspectTexts[static_cast<std::size_t>(row.aspect)]
            << (row.aspect == table.aspectIn1250Lines ? " in 1250 lines" : "") << "\n";
    }
}

// The rates that each single flag of a video format descriptor stands for, and each two of them together.
void PrintRateFlags(std::ostream& out) {
    constexpr int flagCount = 26;
    out << "Rates of a video format descriptor, by the flags that are set\n";
    const auto print = [&out](std::uint32_t bits, const std::string& name) {
        CtaVideoFormatResolution item;
        item.flags = CtaVideoFormatResolutionFlags(bits);
        if (const auto rates = item.GetRates(); !rates.empty()) out << "  " << name << ": " << Text(rates) << "\n";
    };
    print(0, "none");
    for (int a = 0; a < flagCount; ++a) {
        const std::uint32_t one = CtaVideoFormatResolutionFlags::Mask(CtaVideoFormatResolutionFlagEnum::Enum(a));
        print(one, std::to_string(a));
        for (int b = a + 1; b < flagCount; ++b) {
            const std::uint32_t other = CtaVideoFormatResolutionFlags::Mask(CtaVideoFormatResolutionFlagEnum::Enum(b));
            CtaVideoFormatResolution single[2];
            single[0].flags = CtaVideoFormatResolutionFlags(one);
            single[1].flags = CtaVideoFormatResolutionFlags(other);
            if (single[0].GetRates().empty() && single[1].GetRates().empty())
                print(one | other, std::to_string(a) + " and " + std::to_string(b));
        }
    }
}

void PrintReferences(std::ostream& out) {
    out << "Video references that name no video format\n";
    for (int code = 0; code < 256; ++code) {
        const CtaVideoReference reference(code);
        if (!reference.GetVideoFormat().present) out << "  " << code << " " << TextOf(reference) << "\n";
    }
}

template <std::size_t count>
void PrintBits(std::ostream& out, const char* name, const char* const (&texts)[count], int bits) {
    out << name << ": byte, bit, text\n";
    for (int i = 0; i < bits; ++i) {
        out << "  " << i / 8 << " " << 7 - i % 8 << " "
            << (i < static_cast<int>(count) ? texts[static_cast<std::size_t>(i)] : "-") << "\n";
    }
}

struct Size {
    int width, height;
};

template <class X>
void PrintTiming(std::ostream& out, DetailedResolutionTimingEnum::Enum mode, Size size, Decimal rate, bool interlaced) {
    typename X::FieldsType fields;
    fields.timing = mode;
    fields.hactive = size.width;
    fields.vactive = size.height;
    fields.vrate = rate;
    fields.interlaced = interlaced;
    const X item(fields);
    out << "  " << size.width << "x" << size.height << (interlaced ? "i" : "") << " "
        << DecimalToText(rate, {6, 21, true}).ToUtf8() << ":";
    if (item.htotal == Undefined) {
        out << " none\n";
        return;
    }
    for (const int n :
         {item.hfront, item.hsync, item.hback, item.htotal, item.vfront, item.vsync, item.vback, item.vtotal})
        out << " " << n;
    out << " " << Sign(item.hpolarity) << Sign(item.vpolarity) << " "
        << DecimalToText(item.actualpixelclock, {6, 21, true}).ToUtf8() << "\n";
}

// The sync lines of each shape of a picture that is 4000 pixels wide, from shape to shape.
void PrintSyncLines(std::ostream& out) {
    constexpr int width = 4000, most = 6000;
    out << "Lines of vertical sync by 4000 x height / width\n";
    for (int first = 1; first <= most;) {
        int last = first;
        while (last < most && CvtSyncLines(width, last + 1) == CvtSyncLines(width, first)) ++last;
        out << "  " << first << " to " << last << ": " << CvtSyncLines(width, first) << "\n";
        first = last + 1;
    }
}

}  // namespace

std::string PrintPresetTimings() {
    std::ostringstream out;
    PrintPresets(out, "PC", PresetTimings::Pc);
    PrintPresets(out, "HDTV", PresetTimings::Hdtv);
    PrintPresets(out, "CRT", PresetTimings::Crt);
    return out.str();
}

std::string PrintVideoFormats() {
    std::ostringstream out;
    PrintFormats(out, "CTA-861 video identification codes", VideoFormatTable::CtaCodes);
    PrintFormats(out, "HDMI video identification codes", VideoFormatTable::HdmiCodes);
    PrintFormats(out, "CTA-861 resolution identification codes", VideoFormatTable::CtaFormatIds);
    PrintRateFlags(out);
    PrintReferences(out);
    return out.str();
}

std::string PrintEstablishedResolutions() {
    std::ostringstream out;
    PrintBits(out, "Established timings I and II", EdidEstablishedResolutionFlagEnum::Texts, 24);
    PrintBits(out, "Established timings III", EdidEstablished3ResolutionFlagEnum::Texts, 96);
    return out.str();
}

std::string PrintCalculatedTimings() {
    using Mode = DetailedResolutionTimingEnum;
    constexpr Size sizes[] = {{640, 480},   {720, 576},   {848, 480},   {1280, 720},  {1280, 768},  {1280, 1024},
                              {1366, 768},  {1440, 900},  {1600, 1200}, {1680, 720},  {1680, 1050}, {1920, 1080},
                              {1920, 1200}, {2048, 1200}, {2560, 1080}, {2560, 1440}, {3440, 1440}, {3840, 2160},
                              {5120, 2160}, {7680, 4320}, {10240, 4320}};
    const Decimal rates[] = {Decimal(24), Decimal(50), Decimal(59940, 3), Decimal(60), Decimal(144)};
    std::ostringstream out;
    PrintSyncLines(out);
    const char* columns = ": hfront hsync hback htotal vfront vsync vback vtotal polarities clock\n";
    for (const auto& mode : Mode::Texts) {
        if (mode.value == Mode::Manual || mode.value == Mode::Qft) continue;
        out << mode.text << columns;
        for (const Size size : sizes) {
            for (const Decimal rate : rates)
                PrintTiming<DisplayId2DetailedResolution>(out, mode.value, size, rate, false);
            PrintTiming<EdidDetailedResolution>(out, mode.value, size, Decimal(60), true);
        }
    }
    out << "OVT standard at each rate of its table, and beside it" << columns;
    for (const int rate : {1,   23,  24,  25,  26,  29,  30,  31,  47,  48,  49,  50,  51,  59,  60,  61,
                           72,  75,  90,  99,  100, 101, 119, 120, 121, 144, 165, 199, 200, 201, 239, 240,
                           241, 299, 300, 301, 359, 360, 361, 399, 400, 401, 479, 480, 481, 500, 1000}) {
        for (const Size size : {Size{1280, 720}, Size{1920, 1080}, Size{3840, 2160}, Size{7680, 4320}})
            PrintTiming<DisplayId2DetailedResolution>(out, Mode::Ovt, size, Decimal(rate), false);
    }
    return out.str();
}

}  // namespace VNT::Testing

// Sizes, scans, rates and picture aspects of the video formats that have a code, in agreement with CTA-861-I (video
// identification codes and resolution identification codes) and with HDMI 1.4b (its own codes).

#include <array>

#include "model/timing/video_format.h"

namespace VNT {

namespace {

struct CodedFormat {
    int code;
    int width;   // pixels
    int height;  // lines
    bool interlaced;
    int refreshRate;  // Hz; Undefined where the format states none
    int aspect;
};

constexpr bool Progressive = false;
constexpr bool Interlaced = true;
using Cta = CtaVideoAspectEnum;
using Hdmi = HdmiVideoAspectEnum;
using Rid = CtaVideoFormatAspectEnum;

// clang-format off
constexpr CodedFormat CtaRows[] = {
    {1, 640, 480, Progressive, 60, Cta::Ratio4x3},
    {2, 720, 480, Progressive, 60, Cta::Ratio4x3},
    {3, 720, 480, Progressive, 60, Cta::Ratio16x9},
    {4, 1280, 720, Progressive, 60, Cta::Ratio16x9},
    {5, 1920, 1080, Interlaced, 60, Cta::Ratio16x9},
    {6, 1440, 480, Interlaced, 60, Cta::Ratio4x3},
    {7, 1440, 480, Interlaced, 60, Cta::Ratio16x9},
    {8, 1440, 240, Progressive, 60, Cta::Ratio4x3},
    {9, 1440, 240, Progressive, 60, Cta::Ratio16x9},
    {10, 2880, 480, Interlaced, 60, Cta::Ratio4x3},
    {11, 2880, 480, Interlaced, 60, Cta::Ratio16x9},
    {12, 2880, 240, Progressive, 60, Cta::Ratio4x3},
    {13, 2880, 240, Progressive, 60, Cta::Ratio16x9},
    {14, 1440, 480, Progressive, 60, Cta::Ratio4x3},
    {15, 1440, 480, Progressive, 60, Cta::Ratio16x9},
    {16, 1920, 1080, Progressive, 60, Cta::Ratio16x9},
    {17, 720, 576, Progressive, 50, Cta::Ratio4x3},
    {18, 720, 576, Progressive, 50, Cta::Ratio16x9},
    {19, 1280, 720, Progressive, 50, Cta::Ratio16x9},
    {20, 1920, 1080, Interlaced, 50, Cta::Ratio16x9},
    {21, 1440, 576, Interlaced, 50, Cta::Ratio4x3},
    {22, 1440, 576, Interlaced, 50, Cta::Ratio16x9},
    {23, 1440, 288, Progressive, 50, Cta::Ratio4x3},
    {24, 1440, 288, Progressive, 50, Cta::Ratio16x9},
    {25, 2880, 576, Interlaced, 50, Cta::Ratio4x3},
    {26, 2880, 576, Interlaced, 50, Cta::Ratio16x9},
    {27, 2880, 288, Progressive, 50, Cta::Ratio4x3},
    {28, 2880, 288, Progressive, 50, Cta::Ratio16x9},
    {29, 1440, 576, Progressive, 50, Cta::Ratio4x3},
    {30, 1440, 576, Progressive, 50, Cta::Ratio16x9},
    {31, 1920, 1080, Progressive, 50, Cta::Ratio16x9},
    {32, 1920, 1080, Progressive, 24, Cta::Ratio16x9},
    {33, 1920, 1080, Progressive, 25, Cta::Ratio16x9},
    {34, 1920, 1080, Progressive, 30, Cta::Ratio16x9},
    {35, 2880, 480, Progressive, 60, Cta::Ratio4x3},
    {36, 2880, 480, Progressive, 60, Cta::Ratio16x9},
    {37, 2880, 576, Progressive, 50, Cta::Ratio4x3},
    {38, 2880, 576, Progressive, 50, Cta::Ratio16x9},
    {39, 1920, 1080, Interlaced, 50, Cta::Ratio16x9In1250Lines},
    {40, 1920, 1080, Interlaced, 100, Cta::Ratio16x9},
    {41, 1280, 720, Progressive, 100, Cta::Ratio16x9},
    {42, 720, 576, Progressive, 100, Cta::Ratio4x3},
    {43, 720, 576, Progressive, 100, Cta::Ratio16x9},
    {44, 1440, 576, Interlaced, 100, Cta::Ratio4x3},
    {45, 1440, 576, Interlaced, 100, Cta::Ratio16x9},
    {46, 1920, 1080, Interlaced, 120, Cta::Ratio16x9},
    {47, 1280, 720, Progressive, 120, Cta::Ratio16x9},
    {48, 720, 480, Progressive, 120, Cta::Ratio4x3},
    {49, 720, 480, Progressive, 120, Cta::Ratio16x9},
    {50, 1440, 480, Interlaced, 120, Cta::Ratio4x3},
    {51, 1440, 480, Interlaced, 120, Cta::Ratio16x9},
    {52, 720, 576, Progressive, 200, Cta::Ratio4x3},
    {53, 720, 576, Progressive, 200, Cta::Ratio16x9},
    {54, 1440, 576, Interlaced, 200, Cta::Ratio4x3},
    {55, 1440, 576, Interlaced, 200, Cta::Ratio16x9},
    {56, 720, 480, Progressive, 240, Cta::Ratio4x3},
    {57, 720, 480, Progressive, 240, Cta::Ratio16x9},
    {58, 1440, 480, Interlaced, 240, Cta::Ratio4x3},
    {59, 1440, 480, Interlaced, 240, Cta::Ratio16x9},
    {60, 1280, 720, Progressive, 24, Cta::Ratio16x9},
    {61, 1280, 720, Progressive, 25, Cta::Ratio16x9},
    {62, 1280, 720, Progressive, 30, Cta::Ratio16x9},
    {63, 1920, 1080, Progressive, 120, Cta::Ratio16x9},
    {64, 1920, 1080, Progressive, 100, Cta::Ratio16x9},
    {65, 1280, 720, Progressive, 24, Cta::Ratio64x27},
    {66, 1280, 720, Progressive, 25, Cta::Ratio64x27},
    {67, 1280, 720, Progressive, 30, Cta::Ratio64x27},
    {68, 1280, 720, Progressive, 50, Cta::Ratio64x27},
    {69, 1280, 720, Progressive, 60, Cta::Ratio64x27},
    {70, 1280, 720, Progressive, 100, Cta::Ratio64x27},
    {71, 1280, 720, Progressive, 120, Cta::Ratio64x27},
    {72, 1920, 1080, Progressive, 24, Cta::Ratio64x27},
    {73, 1920, 1080, Progressive, 25, Cta::Ratio64x27},
    {74, 1920, 1080, Progressive, 30, Cta::Ratio64x27},
    {75, 1920, 1080, Progressive, 50, Cta::Ratio64x27},
    {76, 1920, 1080, Progressive, 60, Cta::Ratio64x27},
    {77, 1920, 1080, Progressive, 100, Cta::Ratio64x27},
    {78, 1920, 1080, Progressive, 120, Cta::Ratio64x27},
    {79, 1680, 720, Progressive, 24, Cta::Ratio64x27},
    {80, 1680, 720, Progressive, 25, Cta::Ratio64x27},
    {81, 1680, 720, Progressive, 30, Cta::Ratio64x27},
    {82, 1680, 720, Progressive, 50, Cta::Ratio64x27},
    {83, 1680, 720, Progressive, 60, Cta::Ratio64x27},
    {84, 1680, 720, Progressive, 100, Cta::Ratio64x27},
    {85, 1680, 720, Progressive, 120, Cta::Ratio64x27},
    {86, 2560, 1080, Progressive, 24, Cta::Ratio64x27},
    {87, 2560, 1080, Progressive, 25, Cta::Ratio64x27},
    {88, 2560, 1080, Progressive, 30, Cta::Ratio64x27},
    {89, 2560, 1080, Progressive, 50, Cta::Ratio64x27},
    {90, 2560, 1080, Progressive, 60, Cta::Ratio64x27},
    {91, 2560, 1080, Progressive, 100, Cta::Ratio64x27},
    {92, 2560, 1080, Progressive, 120, Cta::Ratio64x27},
    {93, 3840, 2160, Progressive, 24, Cta::Ratio16x9},
    {94, 3840, 2160, Progressive, 25, Cta::Ratio16x9},
    {95, 3840, 2160, Progressive, 30, Cta::Ratio16x9},
    {96, 3840, 2160, Progressive, 50, Cta::Ratio16x9},
    {97, 3840, 2160, Progressive, 60, Cta::Ratio16x9},
    {98, 4096, 2160, Progressive, 24, Cta::Ratio256x135},
    {99, 4096, 2160, Progressive, 25, Cta::Ratio256x135},
    {100, 4096, 2160, Progressive, 30, Cta::Ratio256x135},
    {101, 4096, 2160, Progressive, 50, Cta::Ratio256x135},
    {102, 4096, 2160, Progressive, 60, Cta::Ratio256x135},
    {103, 3840, 2160, Progressive, 24, Cta::Ratio64x27},
    {104, 3840, 2160, Progressive, 25, Cta::Ratio64x27},
    {105, 3840, 2160, Progressive, 30, Cta::Ratio64x27},
    {106, 3840, 2160, Progressive, 50, Cta::Ratio64x27},
    {107, 3840, 2160, Progressive, 60, Cta::Ratio64x27},
    {108, 1280, 720, Progressive, 48, Cta::Ratio16x9},
    {109, 1280, 720, Progressive, 48, Cta::Ratio64x27},
    {110, 1680, 720, Progressive, 48, Cta::Ratio64x27},
    {111, 1920, 1080, Progressive, 48, Cta::Ratio16x9},
    {112, 1920, 1080, Progressive, 48, Cta::Ratio64x27},
    {113, 2560, 1080, Progressive, 48, Cta::Ratio64x27},
    {114, 3840, 2160, Progressive, 48, Cta::Ratio16x9},
    {115, 4096, 2160, Progressive, 48, Cta::Ratio256x135},
    {116, 3840, 2160, Progressive, 48, Cta::Ratio64x27},
    {117, 3840, 2160, Progressive, 100, Cta::Ratio16x9},
    {118, 3840, 2160, Progressive, 120, Cta::Ratio16x9},
    {119, 3840, 2160, Progressive, 100, Cta::Ratio64x27},
    {120, 3840, 2160, Progressive, 120, Cta::Ratio64x27},
    {121, 5120, 2160, Progressive, 24, Cta::Ratio64x27},
    {122, 5120, 2160, Progressive, 25, Cta::Ratio64x27},
    {123, 5120, 2160, Progressive, 30, Cta::Ratio64x27},
    {124, 5120, 2160, Progressive, 48, Cta::Ratio64x27},
    {125, 5120, 2160, Progressive, 50, Cta::Ratio64x27},
    {126, 5120, 2160, Progressive, 60, Cta::Ratio64x27},
    {127, 5120, 2160, Progressive, 100, Cta::Ratio64x27},
    {193, 5120, 2160, Progressive, 120, Cta::Ratio64x27},
    {194, 7680, 4320, Progressive, 24, Cta::Ratio16x9},
    {195, 7680, 4320, Progressive, 25, Cta::Ratio16x9},
    {196, 7680, 4320, Progressive, 30, Cta::Ratio16x9},
    {197, 7680, 4320, Progressive, 48, Cta::Ratio16x9},
    {198, 7680, 4320, Progressive, 50, Cta::Ratio16x9},
    {199, 7680, 4320, Progressive, 60, Cta::Ratio16x9},
    {200, 7680, 4320, Progressive, 100, Cta::Ratio16x9},
    {201, 7680, 4320, Progressive, 120, Cta::Ratio16x9},
    {202, 7680, 4320, Progressive, 24, Cta::Ratio64x27},
    {203, 7680, 4320, Progressive, 25, Cta::Ratio64x27},
    {204, 7680, 4320, Progressive, 30, Cta::Ratio64x27},
    {205, 7680, 4320, Progressive, 48, Cta::Ratio64x27},
    {206, 7680, 4320, Progressive, 50, Cta::Ratio64x27},
    {207, 7680, 4320, Progressive, 60, Cta::Ratio64x27},
    {208, 7680, 4320, Progressive, 100, Cta::Ratio64x27},
    {209, 7680, 4320, Progressive, 120, Cta::Ratio64x27},
    {210, 10240, 4320, Progressive, 24, Cta::Ratio64x27},
    {211, 10240, 4320, Progressive, 25, Cta::Ratio64x27},
    {212, 10240, 4320, Progressive, 30, Cta::Ratio64x27},
    {213, 10240, 4320, Progressive, 48, Cta::Ratio64x27},
    {214, 10240, 4320, Progressive, 50, Cta::Ratio64x27},
    {215, 10240, 4320, Progressive, 60, Cta::Ratio64x27},
    {216, 10240, 4320, Progressive, 100, Cta::Ratio64x27},
    {217, 10240, 4320, Progressive, 120, Cta::Ratio64x27},
    {218, 4096, 2160, Progressive, 100, Cta::Ratio256x135},
    {219, 4096, 2160, Progressive, 120, Cta::Ratio256x135},
};

constexpr CodedFormat HdmiRows[] = {
    {1, 3840, 2160, Progressive, 30, Hdmi::Ratio16x9},
    {2, 3840, 2160, Progressive, 25, Hdmi::Ratio16x9},
    {3, 3840, 2160, Progressive, 24, Hdmi::Ratio16x9},
    {4, 4096, 2160, Progressive, 24, Hdmi::Ratio256x135},
};

constexpr CodedFormat RidRows[] = {
    {1, 1280, 720, Progressive, Undefined, Rid::Ratio16x9},
    {2, 1280, 720, Progressive, Undefined, Rid::Ratio64x27},
    {3, 1680, 720, Progressive, Undefined, Rid::Ratio64x27},
    {4, 1920, 1080, Progressive, Undefined, Rid::Ratio16x9},
    {5, 1920, 1080, Progressive, Undefined, Rid::Ratio64x27},
    {6, 2560, 1080, Progressive, Undefined, Rid::Ratio64x27},
    {7, 3840, 1080, Progressive, Undefined, Rid::Ratio32x9},
    {8, 2560, 1440, Progressive, Undefined, Rid::Ratio16x9},
    {9, 3440, 1440, Progressive, Undefined, Rid::Ratio64x27},
    {10, 5120, 1440, Progressive, Undefined, Rid::Ratio32x9},
    {11, 3840, 2160, Progressive, Undefined, Rid::Ratio16x9},
    {12, 3840, 2160, Progressive, Undefined, Rid::Ratio64x27},
    {13, 5120, 2160, Progressive, Undefined, Rid::Ratio64x27},
    {14, 7680, 2160, Progressive, Undefined, Rid::Ratio32x9},
    {15, 5120, 2880, Progressive, Undefined, Rid::Ratio16x9},
    {16, 5120, 2880, Progressive, Undefined, Rid::Ratio64x27},
    {17, 6880, 2880, Progressive, Undefined, Rid::Ratio64x27},
    {18, 10240, 2880, Progressive, Undefined, Rid::Ratio32x9},
    {19, 7680, 4320, Progressive, Undefined, Rid::Ratio16x9},
    {20, 7680, 4320, Progressive, Undefined, Rid::Ratio64x27},
    {21, 10240, 4320, Progressive, Undefined, Rid::Ratio64x27},
    {22, 15360, 4320, Progressive, Undefined, Rid::Ratio32x9},
    {23, 11520, 6480, Progressive, Undefined, Rid::Ratio16x9},
    {24, 11520, 6480, Progressive, Undefined, Rid::Ratio64x27},
    {25, 15360, 6480, Progressive, Undefined, Rid::Ratio64x27},
    {26, 15360, 8640, Progressive, Undefined, Rid::Ratio16x9},
    {27, 15360, 8640, Progressive, Undefined, Rid::Ratio64x27},
    {28, 20480, 8640, Progressive, Undefined, Rid::Ratio64x27},
};
// clang-format on

// Each row at the index that is its code.
template <int size, std::size_t count>
constexpr std::array<VideoFormat, size> Index(const CodedFormat (&rows)[count]) {
    std::array<VideoFormat, size> table{};
    for (const CodedFormat& row : rows) {
        VideoFormat& format = table.at(static_cast<std::size_t>(row.code));
        format = {true, row.width, row.height, row.interlaced, {}, row.aspect};
        if (row.refreshRate != Undefined) format.rates.Add(Decimal(row.refreshRate));
    }
    return table;
}

template <std::size_t count>
constexpr bool IsAscending(const CodedFormat (&rows)[count]) {
    for (std::size_t i = 1; i < count; ++i) {
        if (rows[i].code <= rows[i - 1].code) return false;
    }
    return rows[0].code > 0;
}
static_assert(IsAscending(CtaRows) && IsAscending(HdmiRows) && IsAscending(RidRows));

constexpr auto CtaTable = Index<220>(CtaRows);
constexpr auto HdmiTable = Index<5>(HdmiRows);
constexpr auto RidTable = Index<32>(RidRows);

}  // namespace

constexpr VideoFormatTable VideoFormatTable::CtaCodes{CtaTable, Cta::Texts, Cta::Ratio16x9In1250Lines};
constexpr VideoFormatTable VideoFormatTable::HdmiCodes{HdmiTable, Hdmi::Texts};
constexpr VideoFormatTable VideoFormatTable::CtaFormatIds{RidTable, Rid::Texts};

}  // namespace VNT

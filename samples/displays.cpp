#include "samples/displays.h"

namespace Samples {

namespace {

constexpr const char* MonitorClass = "{4D36E96E-E325-11CE-BFC1-08002BE10318}";
constexpr int NameTag = 0xFC;
constexpr int SerialTag = 0xFF;
constexpr int TextTag = 0xFE;

const Timing FullHd60{14850, 1920, 280, 88, 44, 1080, 45, 4, 5, 531, 299};
const Timing Hd60{7425, 1280, 370, 110, 40, 720, 30, 5, 5, 531, 299};

// A plain desk monitor.
Base PlainMonitor() {
    Base base{.vendor = "QOR", .product = 0x2401, .serial = 20260107, .week = 7, .year = 2023};
    base.width = 53;
    base.height = 30;
    base.established = {0x21, 0x08, 0x00};
    base.standard = {0xD1, 0xC0, 0x81, 0xC0, 0x95, 0x00, 0x81, 0x80};
    base.slots = {Detailed(FullHd60), RangeLimits(50, 76, 30, 83, 170), Text(NameTag, "QORVEL 24"),
                  Text(SerialTag, "Q24-000107")};
    return base;
}

Block Ultrawide() {
    Base base{.vendor = "ZUB", .product = 0x3414, .serial = 34, .week = 30, .year = 2024, .revision = 4, .input = 0xB5};
    base.width = 80;
    base.height = 33;
    base.features = 0x3B;
    base.established = {0x21, 0x08, 0x00};
    base.standard = {0xB3, 0x00, 0xD1, 0xC0};
    const Timing wide60{31975, 3440, 160, 48, 32, 1440, 41, 3, 10, 797, 334, 0x1A};
    base.slots = {Detailed(wide60), RangeLimits(48, 144, 30, 222, 800), Text(NameTag, "ZUBEN WIDE 34")};
    base.extensions = 1;
    const Timing wide100{53950, 3440, 160, 48, 32, 1440, 69, 3, 10};
    const Timing wide144{79900, 3440, 160, 48, 32, 1440, 101, 3, 10};
    return BaseBlock(base) + DisplayId({DisplayIdBlock(0x03, 1, DisplayIdTiming(wide100) + DisplayIdTiming(wide144))});
}

Block Television() {
    Base base{.vendor = "KLR", .product = 0x5501, .serial = 0x01010101, .week = 1, .year = 2022};
    base.width = 121;
    base.height = 68;
    base.features = 0x0A;
    base.established = {0x21, 0x08, 0x00};
    base.standard = {0x81, 0xC0, 0xD1, 0xC0};
    Timing picture = FullHd60;
    picture.imageWidth = 1210;
    picture.imageHeight = 680;
    base.slots = {Detailed(picture), Detailed(Hd60), Text(NameTag, "KELLAR TV"), RangeLimits(24, 75, 15, 135, 600)};
    base.extensions = 1;
    const std::vector<Block> dataBlocks{
        DataBlock(2, {0x90, 0x61, 0x60, 0x5F, 0x1F, 0x14, 0x05, 0x13, 0x04, 0x02, 0x11,
                      0x01}),                                            // video codes, 1080p60 native
        DataBlock(1, {0x09, 0x07, 0x07, 0x15, 0x07, 0x50}),              // LPCM, AC-3
        DataBlock(4, {0x4F, 0x00, 0x00}),                                // speakers
        DataBlock(3, {0x03, 0x0C, 0x00, 0x10, 0x00, 0x38, 0x3C, 0x20}),  // HDMI
        DataBlock(3, {0xD8, 0x5D, 0xC4, 0x01, 0x78, 0x88, 0x03}),        // HDMI Forum
        ExtendedDataBlock(0, {0x0F}),                                    // video capability
        ExtendedDataBlock(5, {0xC3, 0x00}),                              // colorimetry
        ExtendedDataBlock(6, {0x0D, 0x01, 0x60, 0x50, 0x10}),            // HDR static metadata
        ExtendedDataBlock(14, {0x61, 0x60}),                             // 4:2:0 video
    };
    return BaseBlock(base) + Cta(0xF1, dataBlocks, {Detailed(Hd60)});
}

Block OldTube() {
    Base base{
        .vendor = "VDM", .product = 0x1700, .serial = 771, .week = 44, .year = 1998, .revision = 1, .input = 0x0E};
    base.width = 33;
    base.height = 24;
    base.gamma = 144;
    base.features = 0xE8;
    base.established = {0xBF, 0xEE, 0x80};
    base.standard = {0x31, 0x59, 0x45, 0x59, 0x61, 0x59, 0x81, 0x4F};
    const Timing xga85{9450, 1024, 352, 48, 96, 768, 40, 1, 3, 300, 225, 0x1E};
    base.slots = {Detailed(xga85), RangeLimits(50, 120, 30, 70, 110), Text(NameTag, "VIDAMO 17"),
                  Text(TextTag, "{text}")};
    return BaseBlock(base);
}

Block LaptopPanel() {
    Base base{.vendor = "LQP", .product = 0x1416, .week = 0xFF, .year = 2021, .revision = 4, .input = 0x95};
    base.width = 31;
    base.height = 17;
    base.features = 0x03;
    const Timing panel{14000, 1920, 160, 48, 32, 1080, 40, 3, 6, 309, 174, 0x18};
    Timing slow = panel;
    slow.clock = 11200;
    base.slots = {Detailed(panel), Detailed(slow), Text(TextTag, "LUQ PANEL"), Text(TextTag, "LP140-FHD")};
    return BaseBlock(base);
}

// A monitor that lies: wrong checksums, more blocks than it counts, an empty slot in the middle, no valid vendor.
Block Liar() {
    Base base = PlainMonitor();
    base.vendor = "@B_";
    base.extensions = 1;
    base.slots = {Detailed(FullHd60), Block(18), Text(NameTag, "LIAR\x01")};
    Block all = BaseBlock(base) + Cta(0x70, {DataBlock(2, {0x10, 0x04})}, {}) + Cta(0x00, {}, {}) + Block(128, 0xA5);
    all[127] ^= 0x10;
    all[255] ^= 0x01;
    return all;
}

}  // namespace

std::vector<Display> MakeDisplays() {
    const auto driver = [](int number) { return std::string(MonitorClass) + "\\000" + std::to_string(number); };
    const std::string generic = "Generic PnP Monitor";
    Base edited = PlainMonitor();
    edited.product = 0x2402;
    edited.slots[0] = Detailed({16400, 1920, 160, 48, 32, 1080, 66, 3, 5, 531, 299, 0x1A});
    return {
        {R"(DISPLAY\QOR2401\5&1A2B3C&0&UID256)", generic, driver(1), true, BaseBlock(PlainMonitor()), {}},
        {R"(DISPLAY\ZUB3414\5&1A2B3C&0&UID257)", "Zuben Wide 34", driver(2), true, Ultrawide(), {}},
        {R"(DISPLAY\KLR5501\5&1A2B3C&0&UID258)", generic, driver(3), true, Television(), {}},
        {R"(DISPLAY\VDM1700\4&77AA00&0&UID1)", generic, driver(4), true, OldTube(), {}},
        {R"(DISPLAY\LQP1416\4&77AA00&0&UID265)", "Integrated panel", driver(5), true, LaptopPanel(), {}},
        {R"(DISPLAY\LIA0001\6&5150&0&UID3)", "Monitor (unreliable)", driver(6), true, Liar(), {}},
        {R"(DISPLAY\QOR2402\5&1A2B3C&0&UID300)", generic, driver(7), false, BaseBlock(edited),
         BaseBlock(PlainMonitor())},
        {R"(DISPLAY\QOR2401\5&9F00&0&UID1)", generic, driver(8), false, BaseBlock(PlainMonitor()), {}},
    };
}

}  // namespace Samples

// The displays that the guide tells of: makers and models are fictional.
#include "samples/displays.h"

#include "model/core/text_string.h"
#include "tests/guide/player.h"

namespace Guide {

using namespace Samples;

namespace {

// A monitor for games, with FreeSync and HDR.
Block MakeGameMonitor() {
    Base base{.vendor = "GLT", .product = 0x2716, .serial = 27, .week = 12, .year = 2025};
    base.width = 60;
    base.height = 34;
    base.established = {0x21, 0x08, 0x00};
    base.standard = {0xD1, 0xC0, 0x81, 0xC0};
    const Timing wide60{24150, 2560, 160, 48, 32, 1440, 41, 3, 5, 597, 336, 0x1A};
    const Timing wide144{58657, 2560, 160, 48, 32, 1440, 84, 3, 5, 597, 336, 0x1A};
    constexpr int nameTag = 0xFC;
    base.slots = {Detailed(wide60), RangeLimits(48, 144, 30, 222, 600), Text(nameTag, "GLANTOR 27")};
    base.extensions = 1;
    const std::vector<Block> dataBlocks{
        DataBlock(2, {0x90, 0x1F, 0x04, 0x13}),                          // video codes
        DataBlock(1, {0x09, 0x07, 0x07}),                                // LPCM
        DataBlock(4, {0x01, 0x00, 0x00}),                                // speakers
        DataBlock(3, {0x1A, 0x00, 0x00, 0x02, 0x01, 0x30, 0x90, 0xE6}),  // FreeSync, 48 to 144 Hz
        ExtendedDataBlock(6, {0x0D, 0x01, 0x60, 0x50, 0x10}),            // HDR static metadata
    };
    return BaseBlock(base) + Cta(0xF0, dataBlocks, {Detailed(wide144)});
}

void Add(VNT::MemoryPlatform& platform, const std::string& instanceId, const Block& edid) {
    VNT::Bytes bytes(static_cast<int>(edid.size()), 0);
    for (int i = 0; i < bytes.Size(); ++i) bytes.At(i) = edid[static_cast<std::size_t>(i)];
    VNT::MemoryDevice device{VNT::String(instanceId).ToWide(), true};
    device.description = L"Generic PnP Monitor";
    device.hardwareKey->values.Put(L"EDID", bytes);
    platform.devices.push_back(device);
}

}  // namespace

void AddGuideDisplays(VNT::MemoryPlatform& platform) {
    // The first three of the samples are the ones that everybody has: a monitor, a wide one, a television.
    const auto samples = MakeDisplays();
    Add(platform, samples[0].instanceId, samples[0].edid);
    Add(platform, R"(DISPLAY\QOR2401\5&1A2B3C&0&UID260)", samples[0].edid);
    Add(platform, samples[2].instanceId, samples[2].edid);
    Add(platform, R"(DISPLAY\GLT2716\5&1A2B3C&0&UID261)", MakeGameMonitor());
}

}  // namespace Guide

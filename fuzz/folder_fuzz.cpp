// The store over any folder: whatever stands in it loads, what is saved is what the next load shows, and a reset leaves
// no override of a device that it says to be free of one.

#include <fstream>

#include "fuzz/fuzz.h"
#include "fuzz/fuzz_folder.h"
#include "model/core/bytes.h"
#include "store/directory/directory_platform.h"
#include "store/load.h"
#include "store/reset.h"
#include "store/save.h"

namespace {

using namespace VNT;
namespace fs = std::filesystem;

constexpr int MostEntries = 8;

// Names that mean something below a store, and some that nearly do.
constexpr const char* Devices[] = {
    "DISPLAY#LIA0001#1", "display#lia0001#1", "DISPLAY#ABC1234#4&1&0&UID0", "A", "#", "-"};
constexpr const char* Values[] = {"EDID",
                                  "EDID_OVERRIDE/0",
                                  "EDID_OVERRIDE/1",
                                  "EDID_OVERRIDE/2",
                                  "EDID_OVERRIDE",
                                  "Active",
                                  "DeviceDesc",
                                  "Driver",
                                  "edid",
                                  "EDID_OVERRIDE/x",
                                  "EDID.new",
                                  "EDID_OVERRIDE/0/0",
                                  "edid_override/0",
                                  "EDID/0",
                                  "Active/0",
                                  "EDID_OVERRIDE/255"};

// A block that says how many follow it, of the input's bytes where it has them.
Bytes BlockFrom(ByteRange& input, int size) {
    Bytes bytes(input.Take(size));
    bytes.Resize(size, 0x5A);
    return bytes;
}

void Fill(const fs::path& folder, ByteRange& input) {
    constexpr int sizes[] = {128, 0, 127, 256, 1, 129, 16, 300};
    for (int left = MostEntries; left > 0 && input.RemainingBytes() > 0; --left) {
        const std::uint32_t device = input.ReadLsb(8) % std::size(Devices);
        const std::uint32_t value = input.ReadLsb(4);
        const int size = sizes[input.ReadLsb(3)];
        const bool isLink = input.ReadLsb(1) != 0;
        const fs::path path = folder / Devices[device] / Values[value];
        std::error_code ignored;
        fs::create_directories(path.parent_path(), ignored);
        if (isLink && size == 300) {
            fs::create_symlink(folder / Devices[0], path, ignored);
        } else {
            const Bytes bytes = BlockFrom(input, size);
            std::ofstream(path, std::ios::binary)
                .write(reinterpret_cast<const char*>(bytes.View().data()), bytes.Size());
        }
    }
}

void CheckSave(DirectoryPlatform& platform, ByteRange& input) {
    DisplayList displays;
    if (!LoadDisplays(platform, displays, true)) return;
    if (displays.empty()) return;
    Display& edited = displays[input.ReadLsb(8) % displays.size()];
    edited.SetData(BlockFrom(input, 128 * static_cast<int>(input.ReadLsb(2))));
    const Display wanted = edited;
    SaveDisplays(platform, displays);
    DisplayList after;
    Require(LoadDisplays(platform, after, true), "a store that loads loads again");
    for (std::size_t i = 0; i < displays.size(); ++i) {
        if (displays[i].InstanceId != wanted.InstanceId || !displays[i].Saved || wanted.CurrentData.IsEmpty()) continue;
        bool isShown = false;
        for (const Display& display : after) {
            if (display.InstanceId == wanted.InstanceId) isShown = display.OverrideData == displays[i].OverrideData;
        }
        Require(isShown, "what is saved is what the next load shows");
    }
}

void CheckReset(DirectoryPlatform& platform) {
    std::vector<ResetOutcome> outcomes;
    if (!ResetAllOverrides(platform, outcomes)) return;
    DisplayList after;
    Require(LoadDisplays(platform, after, true), "a store that is reset loads");
    for (const ResetOutcome& outcome : outcomes) {
        Require((outcome.Result == ResetResult::Failed) == !outcome.Reason.empty(), "a failure has a reason");
        if (outcome.Result == ResetResult::Failed) continue;
        for (const Display& display : after) {
            if (display.InstanceId == outcome.InstanceId)
                Require(display.OverrideData.IsEmpty(), "a device that was reset has no override");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FuzzFolder folder("folder_fuzz");
    folder.Clear();
    const Bytes bytes(std::vector<std::uint8_t>(data, data + size));
    ByteRange input = bytes;
    Fill(folder.Path(), input);
    DirectoryPlatform platform(folder.Path());
    CheckSave(platform, input);
    CheckReset(platform);
    return 0;
}

#include "store/match.h"

#include <algorithm>
#include <optional>

namespace VNT {

namespace {

// Takes the first record that meets `test` out of the list.
template <class Record, class Test>
std::optional<Record> TakeFirst(std::vector<Record>& records, Test test) {
    const auto found = std::find_if(records.begin(), records.end(), test);
    if (found == records.end()) return std::nullopt;
    Record record = std::move(*found);
    records.erase(found);
    return record;
}

bool EqualBlocks(const Bytes& a, const Bytes& b, int offset) {
    return a.Slice(offset, EdidBlockSize) == b.Slice(offset, EdidBlockSize);
}

bool EqualBaseBlocks(const Bytes& a, const Bytes& b) {
    return a.Size() >= EdidBlockSize && b.Size() >= EdidBlockSize && EqualBlocks(a, b, 0);
}

// Bytes that the base block promises, by its count of extensions.
int PromisedSize(const Bytes& data) { return (data.At(EdidExtensionCountOffset) + 1) * EdidBlockSize; }

using Matcher = bool (*)(const Bytes&, const Bytes&);

struct GpuPass {
    bool byName;         // the adapter's name equals the record's display name
    Matcher edid;        // what the display reports against what the driver reports
    Matcher overriding;  // the override against what the driver reports; null: not looked at
};

constexpr GpuPass GpuPasses[] = {
    {true, MatchesExactly, nullptr},         {true, MatchesLoosely, MatchesExactly},
    {true, MatchesLoosely, MatchesLoosely},  {true, MatchesLoosely, nullptr},
    {false, MatchesExactly, nullptr},        {false, MatchesLoosely, MatchesExactly},
    {false, MatchesLoosely, MatchesLoosely}, {false, MatchesLoosely, nullptr},
};

bool MayTakeGpuDisplay(const Display& display, const GpuPass& pass) {
    return display.Active && display.GpuDisplay.IsEmpty() && !display.EdidData.IsEmpty() &&
           !(pass.byName && display.DisplayDevice.DriverKey.empty()) &&
           !(pass.overriding != nullptr && display.OverrideData.IsEmpty());
}

bool Meets(const Display& display, const GpuDisplayRecord& record, const GpuPass& pass) {
    return !(pass.byName && display.DisplayDevice.AdapterName != record.DisplayName) &&
           pass.edid(display.EdidData, record.EdidData) &&
           (pass.overriding == nullptr || pass.overriding(display.OverrideData, record.EdidData));
}

}  // namespace

bool MatchesExactly(const Bytes& display, const Bytes& driver) {
    if (!EqualBaseBlocks(display, driver)) return false;
    const int promised = PromisedSize(display);
    if (std::min(display.Size(), driver.Size()) < promised) return false;
    for (int offset = EdidBlockSize; offset < promised; offset += EdidBlockSize) {
        if (display.At(offset) == 0 || !EqualBlocks(display, driver, offset)) return false;
    }
    return true;
}

bool MatchesLoosely(const Bytes& display, const Bytes& driver) {
    if (!EqualBaseBlocks(display, driver)) return false;
    const int limit = std::min({display.Size(), driver.Size(), PromisedSize(display)});
    for (int offset = EdidBlockSize; offset + EdidBlockSize <= limit; offset += EdidBlockSize) {
        if (display.At(offset) != 0 && driver.At(offset) != 0 && !EqualBlocks(display, driver, offset)) return false;
    }
    return true;
}

void AttachWmi(Display& display, std::vector<WmiMonitorRecord>& records) {
    if (!display.Active || display.InstanceId.empty()) return;
    auto record = TakeFirst(records, [&](const auto& r) { return r.InstanceId == display.InstanceId; });
    if (!record) return;
    display.WmiMonitor = std::move(*record);
    display.EdidData = display.WmiMonitor.EdidData;
}

void AttachDisplayDevice(Display& display, std::vector<DisplayDeviceRecord>& records) {
    if (!display.Active || display.DriverKey.empty()) return;
    auto record = TakeFirst(records, [&](const auto& r) { return r.DriverKey == display.DriverKey; });
    if (record) display.DisplayDevice = std::move(*record);
}

void AttachGpuDisplays(DisplayList& list, std::vector<WindowsGpuDisplay>& records) {
    for (const GpuPass& pass : GpuPasses) {
        for (Display& display : list) {
            if (!MayTakeGpuDisplay(display, pass)) continue;
            auto record = TakeFirst(records, [&](const auto& r) { return Meets(display, r.GetRecord(), pass); });
            if (record) display.GpuDisplay = std::move(*record);
        }
    }
}

void SettleData(Display& display) {
    const Bytes& reported = display.GpuDisplay.GetRecord().EdidData;
    if (reported.Size() > display.EdidData.Size()) display.EdidData = reported;
    display.CurrentData = display.OverrideData.IsEmpty() ? display.EdidData : display.OverrideData;
}

}  // namespace VNT

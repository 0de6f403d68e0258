// What a user of the editor waits for after each input: the refresh of each form, and a key in the resolution form.
#include <benchmark/benchmark.h>

#include "editor/all_forms.h"
#include "editor/main_window.h"
#include "samples/displays.h"
#include "ui/headless/driver.h"

namespace {

using namespace VNT;
using UI::Headless::Driver;

// Does `work` with the window that `open` runs in front, and closes it; false if none opens.
bool WithWindow(const std::function<void()>& open, const std::function<void(Driver&)>& work) {
    Driver driver;
    driver.Then([&] {
        work(driver);
        driver.ClickCloseBox();
    });
    open();
    return driver.CountStepsLeft() == 0;
}

void MeasureUpdate(benchmark::State& state, const std::function<void()>& open) {
    WithWindow(open, [&](Driver& driver) {
        auto& form = dynamic_cast<AnyWindow&>(driver.GetWindow());
        for (auto _ : state) form.Update();
    });
}

// An EDID of so many blocks, all but the first CTA-861 blocks full of data blocks.
Bytes MakeEdid(int blocks) {
    Bytes bytes(Samples::MakeDisplays()[2].edid);
    const Bytes extension = bytes.Slice(Edid::BlockSize, Edid::BlockSize);
    bytes.Resize(Edid::BlockSize);
    while (bytes.Size() < blocks * Edid::BlockSize) bytes.Append(extension);
    bytes.At(126) = static_cast<std::uint8_t>(blocks - 1);
    return bytes;
}

void WithMainWindow(int blocks, const std::function<void(Driver&)>& work) {
    Display display;
    display.CurrentData = display.EdidData = MakeEdid(blocks);
    MainWindow window(DisplayList{display});
    WithWindow([&window] { window.Run(); }, work);
}

void MainWindowUpdate(benchmark::State& state) {
    WithMainWindow(static_cast<int>(state.range(0)), [&](Driver& driver) {
        auto& window = dynamic_cast<AnyWindow&>(driver.GetWindow());
        for (auto _ : state) window.Update();
    });
}
BENCHMARK(MainWindowUpdate)->Arg(1)->Arg(2)->Arg(256)->Unit(benchmark::kMicrosecond);

// The same behind an edit, which is written and read back.
void MainWindowToggle(benchmark::State& state) {
    WithMainWindow(static_cast<int>(state.range(0)), [&](Driver& driver) {
        auto& box = driver.Find<UI::Controls::CheckBox>(L"640x480 @ 60 Hz");
        for (auto _ : state) driver.Click(box);
    });
}
BENCHMARK(MainWindowToggle)->Arg(1)->Arg(2)->Arg(256)->Unit(benchmark::kMicrosecond);

// A digit into "Active:" and away again, with one of the timing modes at work.
void TypeDigit(benchmark::State& state, const std::string& mode) {
    EdidDetailedResolution item;
    EdidDetailedResolutionWindow window(nullptr);
    WithWindow([&] { window.Run(item); },
               [&](Driver& driver) {
                   driver.Choose(driver.Find<UI::Controls::ComboBox>(L"Timing:"), String(mode).ToWide());
                   driver.Enter(driver.Find<UI::Controls::TextBox>(L"Active:", 1), L"1440");
                   driver.Enter(driver.Find<UI::Controls::TextBox>(L"Active:"), L"256");
                   // A key and its taking back: two refreshes, of which the costlier counts.
                   for (auto _ : state) {
                       driver.Type(L"0");
                       state.PauseTiming();
                       driver.Press(UI::Key::Back);
                       state.ResumeTiming();
                   }
               });
}

const bool formsAdded = [] {
    Forms::ForEachForm([](const auto& sample) {
        benchmark::RegisterBenchmark(("Update/" + sample.name).c_str(), [sample](benchmark::State& state) {
            MeasureUpdate(state, [&sample] {
                auto item = sample.item;
                sample.edit(nullptr, item, sample.bytes);
            });
        });
    });
    for (const auto& mode : DetailedResolutionTimingEnum::Texts) {
        benchmark::RegisterBenchmark(
            (std::string("Key/") + mode.text).c_str(),
            [text = std::string(mode.text)](benchmark::State& state) { TypeDigit(state, text); });
    }
    return true;
}();

}  // namespace

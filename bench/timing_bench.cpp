#include <benchmark/benchmark.h>

#include "model/timing/displayid_detailed_resolution.h"
#include "model/timing/edid_detailed_resolution.h"

namespace VNT {

namespace {

using Timing = DetailedResolutionTimingEnum;

DetailedResolutionFields Picture(Timing::Enum mode, int width, int height, int rate) {
    DetailedResolutionFields fields;
    fields.timing = mode;
    fields.hactive = width;
    fields.vactive = height;
    fields.vrate = Decimal(rate);
    return fields;
}

void RunCalculate(benchmark::State& state, const DetailedResolutionFields& entered) {
    const DetailedResolutionLimits limits = DisplayId2DetailedResolution().GetLimits();
    for (auto _ : state) {
        DetailedResolutionFields fields = entered;
        Calculate(fields, limits);
        benchmark::DoNotOptimize(fields);
    }
}

// What a keystroke costs, by mode: a picture that no table has, so that lookups go to their end.
void CalculateMode(benchmark::State& state) {
    const auto& mode = Timing::Texts[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(mode.text);
    RunCalculate(state, Picture(mode.value, 2560, 1600, 75));
}
BENCHMARK(CalculateMode)->DenseRange(0, Timing::Count - 1);

// The picture and rate that OVT searches longest for: of three million random ones and then the best one's neighbours.
void CalculateOvtAtItsWorst(benchmark::State& state) { RunCalculate(state, Picture(Timing::Ovt, 1940, 2887, 2102)); }
BENCHMARK(CalculateOvtAtItsWorst);

const Bytes FullHd{0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58,
                   0x2C, 0x45, 0x00, 0x55, 0x50, 0x21, 0x00, 0x00, 0x1E};

void ReadEdidDetailedResolution(benchmark::State& state) {
    EdidDetailedResolution item;
    for (auto _ : state) benchmark::DoNotOptimize(item.Read(FullHd));
}
BENCHMARK(ReadEdidDetailedResolution);

void WriteEdidDetailedResolution(benchmark::State& state) {
    EdidDetailedResolution item;
    item.Read(FullHd);
    Bytes bytes(AnyEdidDescriptor::FrameSize, 0);
    for (auto _ : state) benchmark::DoNotOptimize(item.Write(bytes));
}
BENCHMARK(WriteEdidDetailedResolution);

void DescribeEdidDetailedResolution(benchmark::State& state) {
    EdidDetailedResolution item;
    item.Read(FullHd);
    String text;
    for (auto _ : state) {
        item.GetText(text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(DescribeEdidDetailedResolution);

}  // namespace

}  // namespace VNT

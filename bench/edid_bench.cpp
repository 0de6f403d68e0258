#include <benchmark/benchmark.h>
#include <sstream>

#include "cli/show.h"
#include "model/edid/edid.h"
#include "samples/displays.h"

namespace VNT {

namespace {

// The samples: 0 has the base block alone, 2 a CTA-861 block full of data blocks.
Bytes SampleOf(std::size_t index, int blocks) {
    Bytes bytes(Samples::MakeDisplays()[index].edid);
    while (bytes.Size() < blocks * Edid::BlockSize) {
        bytes.Append(bytes.Slice(Edid::BlockSize, Edid::BlockSize));
        bytes.At(126) = static_cast<std::uint8_t>(bytes.Size() / Edid::BlockSize - 1);
    }
    return bytes;
}

// What a reader costs grows with the blocks and no faster.
void ReadBlocks(benchmark::State& state) {
    const Bytes bytes = SampleOf(2, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Edid edid;
        benchmark::DoNotOptimize(edid.Read(bytes));
    }
    state.counters["per block"] = benchmark::Counter(static_cast<double>(state.range(0) * state.iterations()),
                                                     benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(ReadBlocks)->RangeMultiplier(4)->Range(2, 256);

void ReadWrite(benchmark::State& state) {
    const Bytes bytes = SampleOf(2, static_cast<int>(state.range(0)));
    Bytes written(bytes.Size(), 0);
    for (auto _ : state) {
        Edid edid;
        edid.Read(bytes);
        edid.Write(written);
        benchmark::DoNotOptimize(written);
    }
}
BENCHMARK(ReadWrite)->Arg(2)->Arg(3)->Arg(256);

void ReadDescribeWrite(benchmark::State& state) {
    const Bytes bytes = SampleOf(2, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Edid edid;
        edid.Read(bytes);
        String text;
        for (const EdidDescriptor& descriptor : edid.descriptors) descriptor.GetText(text);
        for (const EdidExtensionBlock& block : edid.extensionBlocks) block.GetText(text);
        benchmark::DoNotOptimize(edid.GetBytes());
    }
}
BENCHMARK(ReadDescribeWrite)->Arg(3);

// Every edit of the main window ends so.
void Normalise(benchmark::State& state) {
    Edid edid;
    edid.Read(SampleOf(2, 2));
    const EdidFields& fields = edid;
    for (auto _ : state) benchmark::DoNotOptimize(Edid(fields).GetBytes());
}
BENCHMARK(Normalise);

void Show(benchmark::State& state) {
    Edid edid;
    edid.Read(SampleOf(2, 2));
    for (auto _ : state) {
        std::ostringstream out;
        Cli::ShowEdid(edid, out);
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(Show);

}  // namespace

}  // namespace VNT

#include <benchmark/benchmark.h>

#include "json/edid_json.h"
#include "json/schema.h"
#include "samples/displays.h"

namespace VNT {

namespace {

// The television's, whose CTA-861 block is full of data blocks, three times behind the base block.
Bytes FourBlocks() {
    constexpr int block = 128, blocks = 4;
    Bytes bytes(Samples::MakeDisplays()[2].edid);
    while (bytes.Size() < blocks * block) bytes.Append(bytes.Slice(block, block));
    bytes.At(126) = blocks - 1;
    return bytes;
}

void MakeJson(benchmark::State& state) {
    const Bytes bytes = FourBlocks();
    for (auto _ : state) benchmark::DoNotOptimize(Json::Print(*Json::NodeOfEdid(bytes)));
}
BENCHMARK(MakeJson);

void BuildFromJson(benchmark::State& state) {
    const std::string text = Json::Print(*Json::NodeOfEdid(FourBlocks()));
    for (auto _ : state) {
        std::string problem;
        Json::Building building;
        benchmark::DoNotOptimize(Json::BuildEdid(*Json::Parse(text, problem), building));
    }
}
BENCHMARK(BuildFromJson);

void MakeSchema(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(Json::SchemaOfEdid());
}
BENCHMARK(MakeSchema);

}  // namespace

}  // namespace VNT

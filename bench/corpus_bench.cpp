// Over many EDIDs at once: the samples, and the corpus where it lies beside the project. Per EDID.
#include <benchmark/benchmark.h>

#include "cli/check.h"
#include "model/edid/edid.h"
#include "tests/support/edids.h"

namespace VNT {

namespace {

void CountEdids(benchmark::State& state, const std::vector<Testing::NamedEdid>& edids) {
    const auto all = static_cast<double>(edids.size()) * static_cast<double>(state.iterations());
    state.counters["per EDID"] = benchmark::Counter(all, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void ReadAll(benchmark::State& state, const std::vector<Testing::NamedEdid>& edids) {
    for (auto _ : state) {
        for (const Testing::NamedEdid& sample : edids) {
            Edid edid;
            benchmark::DoNotOptimize(edid.Read(sample.bytes));
        }
    }
    CountEdids(state, edids);
}

void CheckAll(benchmark::State& state, const std::vector<Testing::NamedEdid>& edids) {
    for (auto _ : state) {
        for (const Testing::NamedEdid& sample : edids) {
            Edid edid;
            if (edid.Read(sample.bytes)) benchmark::DoNotOptimize(Cli::CheckEdid(edid, sample.bytes));
        }
    }
    CountEdids(state, edids);
}

const bool isAdded = [] {
    for (const std::string& set : Testing::EdidSets(VANTELLE_SOURCE_DIR)) {
        const auto edids = Testing::EdidsOf(set, VANTELLE_SOURCE_DIR);
        const auto add = [&](const char* name, void (*run)(benchmark::State&, const std::vector<Testing::NamedEdid>&)) {
            benchmark::RegisterBenchmark((name + set).c_str(), [edids, run](benchmark::State& state) {
                run(state, edids);
            })->Unit(benchmark::kMicrosecond);
        };
        add("Read", &ReadAll);
        add("Check", &CheckAll);
    }
    return true;
}();

}  // namespace

}  // namespace VNT

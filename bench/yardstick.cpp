// The same EDIDs as in corpus_bench.cpp, read by libdisplay-info: what a fast reader takes on the same machine in the
// same run. Built where that library is installed.
#include <benchmark/benchmark.h>

extern "C" {  // which the header leaves to its users
#include <libdisplay-info/info.h>
}

#include "tests/support/edids.h"

namespace {

using VNT::Testing::NamedEdid;

void ReadAll(benchmark::State& state, const std::vector<NamedEdid>& edids) {
    for (auto _ : state) {
        for (const NamedEdid& sample : edids) {
            di_info* info = di_info_parse_edid(sample.bytes.View().data(), sample.bytes.View().size());
            benchmark::DoNotOptimize(info);
            if (info != nullptr) di_info_destroy(info);
        }
    }
    const auto all = static_cast<double>(edids.size()) * static_cast<double>(state.iterations());
    state.counters["per EDID"] = benchmark::Counter(all, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

const bool isAdded = [] {
    for (const std::string& set : VNT::Testing::EdidSets(VANTELLE_SOURCE_DIR)) {
        const auto edids = VNT::Testing::EdidsOf(set, VANTELLE_SOURCE_DIR);
        benchmark::RegisterBenchmark(("LibdisplayInfoReads" + set).c_str(), [edids](benchmark::State& state) {
            ReadAll(state, edids);
        })->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

}  // namespace

#include <benchmark/benchmark.h>

#include "model/core/bytes.h"
#include "model/core/decimal.h"
#include "model/core/list.h"
#include "model/core/text.h"

namespace VNT {

namespace {

// A list as far as a caption asks: its count and bytes.
struct Counted {
    int count;
    int GetCount() const { return count; }
};

// A data block as large as a CTA-861 extension block can carry: what a hex box shows at most.
constexpr int HexBytes = 126;

// A caption above a list, as every refresh of a form makes it.
void CaptionOfList(benchmark::State& state) {
    const SlotListLimits limits{8, 2};
    const Counted list{3};
    const SizeTextFormat format;
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetListText(limits, list, format, U"Standard resolutions ({countlefttext})"));
    }
}
BENCHMARK(CaptionOfList);

void HexTextOf126Bytes(benchmark::State& state) {
    const Bytes bytes(HexBytes, 0xA5);
    for (auto _ : state) benchmark::DoNotOptimize(HexText(bytes));
}
BENCHMARK(HexTextOf126Bytes);

void HexFromTextOf126Bytes(benchmark::State& state) {
    const String text = HexText(Bytes(HexBytes, 0xA5));
    Bytes bytes;
    for (auto _ : state) benchmark::DoNotOptimize(HexFromText(text, bytes));
}
BENCHMARK(HexFromTextOf126Bytes);

// A refresh rate: the scaled dividend fits 64 bits.
void DecimalDivisionOfSmallNumbers(benchmark::State& state) {
    Decimal dividend(1485, 1);
    Decimal divisor(2475, 3);
    for (auto _ : state) {
        benchmark::DoNotOptimize(dividend);
        benchmark::DoNotOptimize(divisor);
        benchmark::DoNotOptimize(dividend / divisor);
    }
}
BENCHMARK(DecimalDivisionOfSmallNumbers);

// The scaled dividend doesn't fit: digit by digit.
void DecimalDivisionOfGreatNumbers(benchmark::State& state) {
    Decimal dividend(9000000000000);
    Decimal divisor(7);
    for (auto _ : state) {
        benchmark::DoNotOptimize(dividend);
        benchmark::DoNotOptimize(divisor);
        benchmark::DoNotOptimize(dividend / divisor);
    }
}
BENCHMARK(DecimalDivisionOfGreatNumbers);

}  // namespace

}  // namespace VNT

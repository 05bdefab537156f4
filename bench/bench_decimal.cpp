// Decimal arithmetic costs (ns per operation): TKDecimal's add, multiply and divide next to
// GCC's _Decimal128 (std::decimal::decimal128, libgcc's software decimal) on the same values.
// Short operands stay within 64 bits; wide ones use most of the 96-bit mantissa. Dividing by 3
// never comes out even, so those quotients run to the last place and are rounded.
#include <benchmark/benchmark.h>

#include <vector>

#include "vxutil/decimal/TKDecimal.h"
#include "vxutil/decimal/TKErrorHandlers.h"

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)
#define VX_BENCH_DECIMAL128 1
#include <decimal/decimal>
#endif

namespace {

// A pair of operands as coefficient and number of places.
struct Operands {
    long long a;
    int aPlaces;
    long long b;
    int bPlaces;
};

constexpr Operands kShort{1234567, 2, 35, 1};             // 12345.67 and 3.5
constexpr Operands kWide{987654321987654321LL, 9, 3, 0};  // 987654321.987654321 and 3
const Operands* const kCases[] = {&kShort, &kWide};

// Inexact quotients are expected here: silence their reports, as a caller checking the
// status would.
void Ignore(const TKxmsg&) {}

TKDecimal Decimal(long long coefficient, int places) {
    TKDecimal value = TKDecimal::FromInteger(coefficient);
    return TKDecimal(value.GetHigh(), value.GetMiddle(), value.GetLow(), places);
}

template <TKStatus (*Operation)(const TKDecimal&, const TKDecimal&, TKDecimal&)>
void TKDecimalOperation(benchmark::State& state) {
    TKErrorHandler previous = TKSetErrorHandler(Ignore);
    const Operands& operands = *kCases[state.range(0)];
    const TKDecimal a = Decimal(operands.a, operands.aPlaces);
    const TKDecimal b = Decimal(operands.b, operands.bPlaces);
    TKDecimal result;
    for (auto _ : state) {
        benchmark::DoNotOptimize(Operation(a, b, result));
        benchmark::DoNotOptimize(result);
    }
    TKSetErrorHandler(previous);
}

BENCHMARK_TEMPLATE(TKDecimalOperation, TKDecimal::Add)->Arg(0)->Arg(1)->Name("TKDecimal/add");
BENCHMARK_TEMPLATE(TKDecimalOperation, TKDecimal::Multiply)
    ->Arg(0)
    ->Arg(1)
    ->Name("TKDecimal/multiply");
BENCHMARK_TEMPLATE(TKDecimalOperation, TKDecimal::Divide)->Arg(0)->Arg(1)->Name("TKDecimal/divide");

#ifdef VX_BENCH_DECIMAL128
using std::decimal::decimal128;

enum class Op { kAdd, kMultiply, kDivide };

template <Op operation>
void Decimal128Operation(benchmark::State& state) {
    const Operands& operands = *kCases[state.range(0)];
    decimal128 a = std::decimal::make_decimal128(operands.a, -operands.aPlaces);
    decimal128 b = std::decimal::make_decimal128(operands.b, -operands.bPlaces);
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(b);
        decimal128 result = operation == Op::kAdd        ? a + b
                            : operation == Op::kMultiply ? a * b
                                                         : a / b;
        benchmark::DoNotOptimize(result);
    }
}

BENCHMARK_TEMPLATE(Decimal128Operation, Op::kAdd)->Arg(0)->Arg(1)->Name("_Decimal128/add");
BENCHMARK_TEMPLATE(Decimal128Operation, Op::kMultiply)
    ->Arg(0)
    ->Arg(1)
    ->Name("_Decimal128/multiply");
BENCHMARK_TEMPLATE(Decimal128Operation, Op::kDivide)->Arg(0)->Arg(1)->Name("_Decimal128/divide");
#endif

}  // namespace

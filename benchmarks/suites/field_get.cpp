#include <benchmark/benchmark.h>

#include <array>

#include "Catalogue.h"

static void getField(benchmark::State& state, std::int32_t index) {
  const FilledStore store(state.range(0));
  Cycle keys(store.keys());
  std::array<char, VCM_FIELD_VALUE_LENGTH> value;
  for (auto _ : state) {
    VcmGetField(keys.next(), index, value.data());
    benchmark::DoNotOptimize(value);
  }
}
#define OF_EACH_STORE Arg(kSmallStore)->Arg(kLargeStore)
BENCHMARK_CAPTURE(getField, integer, VCM_FIELD_EPOCHREV)->OF_EACH_STORE;
BENCHMARK_CAPTURE(getField, text, VCM_FIELD_DRAGMODEL)->OF_EACH_STORE;
BENCHMARK_CAPTURE(getField, date, VCM_FIELD_EPOCH)->OF_EACH_STORE;
BENCHMARK_CAPTURE(getField, fixed, VCM_FIELD_ECIPOSX)->OF_EACH_STORE;
BENCHMARK_CAPTURE(getField, general, VCM_FIELD_BDOT)->OF_EACH_STORE;

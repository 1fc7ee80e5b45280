#include <benchmark/benchmark.h>

#include "Catalogue.h"

static void listKeys(benchmark::State& state, std::int32_t order) {
  const FilledStore store(state.range(0));
  std::vector<std::int64_t> keys(store.keys().size());
  for (auto _ : state) {
    VcmGetLoaded(order, keys.data());
    benchmark::DoNotOptimize(keys.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
#define OF_A_LARGE_STORE Arg(kLargeStore)->Unit(benchmark::kMillisecond)
BENCHMARK_CAPTURE(listKeys, bySatellite, VCM_ORDER_SATELLITE)->OF_A_LARGE_STORE;
BENCHMARK_CAPTURE(listKeys, bySatelliteReverse, VCM_ORDER_SATELLITE_REVERSE)->OF_A_LARGE_STORE;
BENCHMARK_CAPTURE(listKeys, asLoaded, VCM_ORDER_LOADED)->OF_A_LARGE_STORE;
BENCHMARK_CAPTURE(listKeys, byKey, VCM_ORDER_KEY)->OF_A_LARGE_STORE;

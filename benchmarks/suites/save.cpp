#include <benchmark/benchmark.h>

#include "Catalogue.h"

// To nowhere: what the disk takes is its own.
static void save(benchmark::State& state) {
  const FilledStore store(state.range(0));
  for (auto _ : state) {
    VcmSaveFile("/dev/null", 0);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(save)->Arg(kSmallStore)->Unit(benchmark::kMillisecond);

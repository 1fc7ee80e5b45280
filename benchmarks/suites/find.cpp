#include <benchmark/benchmark.h>

#include "Catalogue.h"

static void find(benchmark::State& state) {
  const FilledStore store(state.range(0));
  Cycle keys(store.keys());
  for (auto _ : state) {
    const vcm::BorrowedRecord record(vcm::mediaVcm, keys.next());
    benchmark::DoNotOptimize(&*record);
  }
}
BENCHMARK(find)->Arg(kSmallStore)->Arg(kLargeStore);

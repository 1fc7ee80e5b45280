#include <benchmark/benchmark.h>

#include "Catalogue.h"

// Ascending keys into a growing store, as a file brings them.
static void insert(benchmark::State& state) {
  Cycle records(catalogueRecords());
  vcm::VcmRecord record;
  for (auto _ : state) {
    state.PauseTiming();
    VcmRemoveAllSats();
    state.ResumeTiming();
    for (std::int32_t satNum = 1; satNum <= state.range(0); ++satNum) {
      record = records.next();
      record.satNum = satNum;
      benchmark::DoNotOptimize(vcm::AddVcmToMem(record));
    }
  }
  VcmRemoveAllSats();
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(insert)->Arg(kSmallStore)->Arg(kLargeStore)->Unit(benchmark::kMillisecond);

#include <benchmark/benchmark.h>

#include "Catalogue.h"

static void load(benchmark::State& state, const char* file) {
  std::int64_t messages = 0;
  for (auto _ : state) {
    VcmLoadFile(file);
    state.PauseTiming();
    messages += VcmGetCount();
    VcmRemoveAllSats();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(messages);
}
BENCHMARK_CAPTURE(load, multiLine, kCatalogueLines)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(load, oneLine, kCatalogueOneLine)->Unit(benchmark::kMicrosecond);

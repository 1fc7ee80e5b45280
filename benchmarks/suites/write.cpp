#include <benchmark/benchmark.h>

#include <array>

#include "Catalogue.h"
#include "VCM/VcmTree/MultiLineWriter.h"
#include "VCM/VcmTree/OneLineWriter.h"

template <class Write>
static void writeMessages(benchmark::State& state, Write write) {
  Cycle records(catalogueRecords());
  std::array<char, VCM_TEXT_LENGTH> text;
  for (auto _ : state) {
    write(records.next(), std::span<char>(text));
    benchmark::DoNotOptimize(text);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK_CAPTURE(writeMessages, multiLine, [](const vcm::VcmRecord& record, std::span<char> text) {
  vcm::Vcm2VcmLines(record, text);
});
BENCHMARK_CAPTURE(writeMessages, oneLine, [](const vcm::VcmRecord& record, std::span<char> text) {
  vcm::Vcm2Vcm1Line(record, text.first(VCM_ONE_LINE_LENGTH));
});

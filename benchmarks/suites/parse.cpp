#include <benchmark/benchmark.h>

#include <memory>

#include "Catalogue.h"
#include "VCM/VcmCardReading/InputFile.h"
#include "VCM/VcmCardReading/MultiLineParser.h"

// From cards, without the way into the store.
static void parseMultiLine(benchmark::State& state) {
  vcm::OpenFile file;
  vcm::openInputFile(kCatalogueLines, file);
  vcm::CardReader cards(file.get());
  std::int64_t messages = 0;
  for (auto _ : state) {
    cards.rewind();
    while (cards.next()) {
      if (vcm::fileCardType(cards.card()) == vcm::CardType::multiLineHeader) {
        benchmark::DoNotOptimize(
            vcm::ReadVCMFrFileUnit(cards, vcm::CardType::multiLineHeader).satNum);
        ++messages;
      }
    }
  }
  state.SetItemsProcessed(messages);
}
BENCHMARK(parseMultiLine);

static void parseOneLine(benchmark::State& state) {
  Cycle lines(oneLineMessages());
  for (auto _ : state) {
    benchmark::DoNotOptimize(vcm::Vcm1Line2Vcm(lines.next()).satNum);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(parseOneLine);

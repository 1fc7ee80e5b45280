#include <benchmark/benchmark.h>

#include <memory>

#include "Catalogue.h"
#include "VCM/VcmCardReading/CardReader.h"
#include "VCM/VcmCardReading/InputFile.h"

static void scanCards(benchmark::State& state, const char* name) {
  vcm::OpenFile file;
  vcm::openInputFile(name, file);
  vcm::CardReader cards(file.get());
  std::int64_t characters = 0;
  for (auto _ : state) {
    cards.rewind();
    while (cards.next()) {
      characters += static_cast<std::int64_t>(cards.card().size()) + 1;
    }
  }
  state.SetBytesProcessed(characters);
}
BENCHMARK_CAPTURE(scanCards, multiLine, kCatalogueLines);
BENCHMARK_CAPTURE(scanCards, oneLine, kCatalogueOneLine);

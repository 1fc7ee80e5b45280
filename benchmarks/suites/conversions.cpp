#include <benchmark/benchmark.h>

#include <array>

#include "Catalogue.h"

using LineText = std::array<char, VCM_ONE_LINE_LENGTH>;
using MessageText = std::array<char, VCM_TEXT_LENGTH>;

static void oneLineToMultiLine(benchmark::State& state) {
  Cycle lines(oneLineMessages());
  MessageText text;
  for (auto _ : state) {
    Vcm1LineToMultiLine(lines.next().c_str(), text.data());
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(oneLineToMultiLine);

static void multiLineToOneLine(benchmark::State& state) {
  std::vector<MessageText> messages(oneLineMessages().size());
  for (std::size_t i = 0; i < messages.size(); ++i) {
    Vcm1LineToMultiLine(oneLineMessages()[i].c_str(), messages[i].data());
  }
  Cycle texts(messages);
  LineText line;
  for (auto _ : state) {
    VcmMultiLineTo1Line(texts.next().data(), line.data());
    benchmark::DoNotOptimize(line);
  }
}
BENCHMARK(multiLineToOneLine);

static void toArrays(benchmark::State& state) {
  const FilledStore store(state.range(0));
  Cycle keys(store.keys());
  std::array<char, VCM_CHAR_ARRAY_LENGTH> texts;
  std::array<double, VCM_NUM_ARRAY_LENGTH> numbers;
  for (auto _ : state) {
    VcmRetrieveAllData(keys.next(), texts.data(), numbers.data());
    benchmark::DoNotOptimize(numbers);
  }
}
BENCHMARK(toArrays)->Arg(kSmallStore);

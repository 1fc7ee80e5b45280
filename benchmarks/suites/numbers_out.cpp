#include <benchmark/benchmark.h>

#include <array>

#include "Catalogue.h"
#include "VCM/VcmFormats/NumberWriting.h"

static const std::array<double, 4> kPositions = {-11044.90753274, 160.44109363, -3856.85847183,
                                                 6221.00051833};
static const std::array<double, 4> kCoefficients = {0.112473E-02, -0.529024E-10, 0.12828E+01,
                                                    -0.47250E-12};

template <class Write>
static void writeNumbers(benchmark::State& state, const std::array<double, 4>& numbers,
                         Write write) {
  Cycle cycle(numbers);
  std::array<char, 40> text;
  for (auto _ : state) {
    write(text.data(), cycle.next());
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK_CAPTURE(writeNumbers, position, kPositions,
                  [](char* out, double value) { vcm::writeFixed(out, 16, 8, value); });
BENCHMARK_CAPTURE(writeNumbers, field, kPositions,
                  [](char* out, double value) { vcm::writeFixed(out, 35, 15, value); });
BENCHMARK_CAPTURE(writeNumbers, scientific, kCoefficients,
                  [](char* out, double value) { vcm::writeScientific(out, 13, 6, value); });
BENCHMARK_CAPTURE(writeNumbers, general, kCoefficients,
                  [](char* out, double value) { vcm::writeGeneral(out, value); });

static void writeInteger(benchmark::State& state) {
  const std::array<std::int64_t, 4> numbers = {5513, 62072, 1, 366};
  Cycle cycle(numbers);
  std::array<char, 5> text;
  for (auto _ : state) {
    vcm::writeInteger(text.data(), 5, cycle.next());
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(writeInteger);

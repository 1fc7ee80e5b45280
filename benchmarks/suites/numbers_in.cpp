#include <benchmark/benchmark.h>

#include <array>

#include "Catalogue.h"
#include "VCM/VcmFormats/NumberReading.h"

static void readReal(benchmark::State& state, std::array<std::string_view, 4> fields) {
  Cycle cycle(fields);
  double value = 0.0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(vcm::readReal(cycle.next(), 0, value));
    benchmark::DoNotOptimize(value);
  }
}
using Texts = std::array<std::string_view, 4>;
BENCHMARK_CAPTURE(readReal, position,
                  Texts{" -11044.90753274", "    160.44109363", "  -3856.85847183",
                        "   6221.00051833"});
BENCHMARK_CAPTURE(readReal, velocity,
                  Texts{"  2.903593388458", " -1.353680574461", "  0.151192951162",
                        " -7.728767765599"});
BENCHMARK_CAPTURE(readReal, scientific,
                  Texts{" 0.112473E-02", "-.529024E-10", " 0.12828E+01", "-0.47250E-12"});
BENCHMARK_CAPTURE(readReal, manyDigits,
                  Texts{"0.12345678901234567891E+02", "1.7976931348623157E+308",
                        "123456789012345678901234.5", "4.9406564584124654E-324"});

static void readInteger(benchmark::State& state) {
  const std::array<std::string_view, 4> fields = {" 5513", "62072", "    1", "  366"};
  Cycle cycle(fields);
  std::int32_t value = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(vcm::readInteger(cycle.next(), value));
    benchmark::DoNotOptimize(value);
  }
}
BENCHMARK(readInteger);

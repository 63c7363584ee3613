// Measures the passes over the source table when a chart is built.

#include <benchmark/benchmark.h>
#include <iostream>

#include "bench/TemporaryBook.h"
#include "builder/SourceValidation.h"
#include "builder/maps/PivotMap.h"
#include "builder/sheet/DataSheet.h"
#include "cli/Session.h"
#include "common/RunVariables.h"

namespace plotsmith {
namespace {

constexpr std::uint32_t kRows = 20'000;

/// A workbook with one chart, whose definition was validated and mapped.
class Build {
 public:
  Build() {
    session_.LoadTablesAndCharts();
    chart_ = colCharts->Item("VEX_Chart1").selectSingleNode("chart");
    if (!ValidateSourceData(chart_) || !BuildPivotMap(chart_)) std::abort();
  }
  const dom::IXMLDOMElement& Chart() const { return chart_; }

 private:
  bench::TemporaryBook file_{kRows};
  cli::GlobalOptions options_;
  cli::Session session_{file_.Path(), options_, {std::cin, std::cout, std::cerr}};
  dom::IXMLDOMElement chart_;
};

void BuildTheMap(benchmark::State& state) {
  const Build build;
  for (auto _ : state) benchmark::DoNotOptimize(BuildPivotMap(build.Chart()));
  state.SetItemsProcessed(std::int64_t{kRows} * state.iterations());
}
BENCHMARK(BuildTheMap)->Unit(benchmark::kMicrosecond);

void RunTheMap(benchmark::State& state) {
  const Build build;
  for (auto _ : state) benchmark::DoNotOptimize(GetSourceData(build.Chart()));
  state.SetItemsProcessed(std::int64_t{kRows} * state.iterations());
}
BENCHMARK(RunTheMap)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace plotsmith

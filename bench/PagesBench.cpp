// Measures opening a page of the wizard on a wide and long table, and the search for tables, which each run
// of the wizard does once.

#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>

#include "bench/Books.h"
#include "cli/ConsoleDesktop.h"
#include "common/RunVariables.h"
#include "controller/System.h"
#include "forms/UnattendedView.h"
#include "metadata/MetadataStore.h"
#include "metadata/NewChart.h"
#include "metadata/TableDefinitions.h"
#include "pages/Navigation.h"
#include "pages/frmPSLayoutABC.h"
#include "pages/frmPSLayoutBubble.h"
#include "pages/frmPSLayoutPie.h"
#include "pages/frmPSSelectTable.h"
#include "xlsx/Application.h"

namespace plotsmith {
namespace {

constexpr std::uint32_t kRows = 100'000, kColumns = 200;

class NoMoves final : public Navigation {
 public:
  void PSJumpToStep(std::int32_t, std::int32_t, Page*) override {}
};

/// A run of the wizard that shows its first page.
class Run {
 public:
  Run() {
    const auto path = std::filesystem::temp_directory_path() /
                      ("plotsmith-bench-wide-" + std::to_string(getpid()) + ".xlsx");
    bench::WriteWideBook(path, kRows, kColumns);
    StartSystem(std::make_shared<cli::ConsoleDesktop>(), std::make_shared<forms::UnattendedView>());
    host_->Open(path);
    std::filesystem::remove(path);
    oApplication = host_;
    oWorkbook = host_->ActiveWorkbook();
    RetrieveTableDefinitions();
    RetrieveChartDefinitions();
    sTableID = "Data1";
    sChartType = "column";
    CreateChartDoc();
  }
  ~Run() { StopSystem(); }

 private:
  std::shared_ptr<xlsx::Application> host_ = xlsx::Application::Create();
};

/// All benchmarks share one run, because the workbook is large.
void Prepare() { static const Run run; }

template <class Form>
void OpenAPage(benchmark::State& state) {
  Prepare();
  NoMoves moves;
  for (auto _ : state) {
    Form page(moves);
    page.Load();
    benchmark::DoNotOptimize(page.Controls().size());
  }
}
BENCHMARK(OpenAPage<frmPSSelectTable>)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAPage<frmPSLayoutABC>)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAPage<frmPSLayoutPie>)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAPage<frmPSLayoutBubble>)->Unit(benchmark::kMillisecond);

void FindTheTables(benchmark::State& state) {
  Prepare();
  for (auto _ : state) RetrieveTableDefinitions();
}
BENCHMARK(FindTheTables)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace plotsmith

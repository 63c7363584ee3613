// Measures parts of the embedded host.

#include <benchmark/benchmark.h>

#include "bench/TemporaryBook.h"
#include "host/excel/Excel.h"
#include "xlsx/Application.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/numberformat/NumberFormat.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/Package.h"
#include "xlsx/sheet/RowShifts.h"
#include "xlsx/sheet/SheetScanner.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::int32_t kRows = 20'000;

void ScanASheet(benchmark::State& state) {
  const std::string sheet = bench::DataSheet(kRows);
  for (auto _ : state) {
    MemoryStream source(sheet);
    benchmark::DoNotOptimize(ScanSheet(source, DateSystem::k1900).cells.CellCount());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(sheet.size()) * state.iterations());
}
BENCHMARK(ScanASheet)->Unit(benchmark::kMillisecond);

void ShowNumbers(benchmark::State& state, const char* code) {
  const auto format = NumberFormat::Parse(code);
  std::string text;
  double value = 43831.25;
  for (auto _ : state) {
    text.clear();
    format->AppendNumber(text, value, DateSystem::k1900);
    benchmark::DoNotOptimize(text.data());
    value = value < 60'000 ? value + 1.37 : 43831.25;
  }
}
BENCHMARK_CAPTURE(ShowNumbers, General, "General");
BENCHMARK_CAPTURE(ShowNumbers, Thousands, "#,##0.00;[Red]-#,##0.00");
BENCHMARK_CAPTURE(ShowNumbers, Date, "m/d/yyyy");
BENCHMARK_CAPTURE(ShowNumbers, Fraction, "# ?\?/??");

void ParseAFormat(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(NumberFormat::Parse("_(* #,##0.00_);[Red](* #,##0.00);\"-\"??"));
}
BENCHMARK(ParseAFormat);

/// Reads the displayed texts of a column in the large table: shared strings, dates, or decimals.
void ReadTexts(benchmark::State& state, std::int32_t column) {
  const bench::TemporaryBook file(kRows);
  const auto host = Application::Create();
  excel::Worksheet& sheet = *host->Open(file.Path()).FindWorksheet("Data1");
  std::string scratch;
  for (auto _ : state) {
    for (std::int32_t row = 2; row <= kRows; ++row) {
      benchmark::DoNotOptimize(sheet.CellTextAt(row, column, scratch).size());
    }
  }
  state.SetItemsProcessed((kRows - 1) * state.iterations());
}
BENCHMARK_CAPTURE(ReadTexts, Shared, 2);
BENCHMARK_CAPTURE(ReadTexts, Dates, 1);
BENCHMARK_CAPTURE(ReadTexts, Decimals, 7);

void ReadValues(benchmark::State& state) {
  const bench::TemporaryBook file(kRows);
  const auto host = Application::Create();
  excel::Worksheet& sheet = *host->Open(file.Path()).FindWorksheet("Data1");
  for (auto _ : state) {
    for (std::int32_t row = 2; row <= kRows; ++row) {
      benchmark::DoNotOptimize(sheet.CellValueAt(row, 7).number);
    }
  }
  state.SetItemsProcessed((kRows - 1) * state.iterations());
}
BENCHMARK(ReadValues);

/// Updates the references of a chart after rows were inserted and deleted at several positions.
void FollowRows(benchmark::State& state) {
  RowShifts shifts;
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    shifts.Add("VEX_ChartData", static_cast<std::int32_t>(10 * i + 5), i % 2 == 0 ? 3 : -2);
  }
  for (auto _ : state) benchmark::DoNotOptimize(shifts.Follow("VEX_ChartData!$B$5002:$B$5013", "", 0));
  state.SetComplexityN(state.range(0));
}
BENCHMARK(FollowRows)->RangeMultiplier(8)->Range(1, 512)->Complexity(benchmark::oN);

void OpenAndSave(benchmark::State& state) {
  const bench::TemporaryBook file(kRows, static_cast<std::uint32_t>(state.range(0)));
  for (auto _ : state) Package::Open(file.Path()).Save(file.Path());
  state.SetComplexityN(state.range(0));
}
BENCHMARK(OpenAndSave)->RangeMultiplier(4)->Range(1, 256)->Unit(benchmark::kMillisecond);

/// Draws a chart like a refresh, with a number of series of twelve points, up to the maximum.
void DrawAChart(benchmark::State& state) {
  constexpr std::int32_t kPoints = 12;
  const auto series = static_cast<std::int32_t>(state.range(0));
  const auto host = Application::Create();
  const auto sheet = host->NewWorkbook().FindWorksheet("Sheet1");
  for (std::int32_t row = 1; row <= kPoints + 1; ++row) {
    for (std::int32_t column = 1; column <= series + 1; ++column)
      sheet->SetCellValueAt(row, column, row * column);
  }
  const auto chart = sheet->ChartObjects()->Add(0, 0, 400, 300)->Chart();
  const auto collection = chart->SeriesCollection();
  const auto block = [](std::int32_t column) {
    const std::string c = "C" + std::to_string(column);
    return "=Sheet1!R2" + c + ":R13" + c;
  };
  for (auto _ : state) {
    for (std::int32_t i = collection->Count(); i >= 1; --i) collection->Item(i)->Delete();
    chart->SetChartType(excel::xlBarClustered);
    for (std::int32_t column = 2; column <= series + 1; ++column) {
      const auto one = collection->NewSeries();
      one->SetName("=Sheet1!R1C" + std::to_string(column));
      one->SetXValues(block(1));
      one->SetValues(block(column));
    }
    chart->SetChartType(excel::xlColumnStacked);
  }
  state.SetItemsProcessed(series * state.iterations());
  state.SetComplexityN(series);
}
BENCHMARK(DrawAChart)->Arg(8)->Arg(32)->Arg(128)->Arg(254)->Unit(benchmark::kMillisecond)->Complexity();

}  // namespace
}  // namespace plotsmith::xlsx

BENCHMARK_MAIN();

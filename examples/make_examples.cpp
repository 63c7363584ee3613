// Makes the example workbooks through the product's own interfaces: a host with an empty workbook, cells, names,
// chart frames and definitions, and then one refresh. Usage: make_examples FOLDER

#include <array>
#include <cmath>
#include <iostream>
#include <string>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "common/App.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "xlsx/Application.h"
#include "xlsx/Worksheet.h"

namespace {

using namespace plotsmith;
using runtime::Variant;

/// A workbook in the making.
class ExampleBook {
 public:
  ExampleBook() : desktop_(std::make_shared<cli::ConsoleDesktop>()), host_(xlsx::Application::Create()) {
    ResetRunVariables();
    App = {"", desktop_, desktop_};
    host_->NewWorkbook();
  }
  ~ExampleBook() {
    ResetRunVariables();
    App = {};
  }

  /// The first call names the sheet that every new workbook has.
  excel::Ref<excel::Worksheet> Sheet(const std::string& name) {
    auto& book = host_->Book();
    const auto sheet = sheets_++ == 0 ? book.AllSheets().front()->worksheet : book.AddWorksheet(book.AllSheets().size());
    sheet->SetName(name);
    return sheet;
  }

  void Name(const std::string& name, const std::string& refersTo) { host_->Book().DefineName(name, refersTo); }

  /// Puts the frame of a chart on a sheet (points) and stores its definition, whose id is added.
  void Chart(const excel::Ref<excel::Worksheet>& sheet, double left, double top, double width, double height,
             const std::string& attributes, const std::string& content) {
    if (!colCharts) {
      oApplication = host_;
      oWorkbook = host_->ActiveWorkbook();
      RetrieveTableDefinitions();
      RetrieveChartDefinitions();
    }
    const std::string id = "VEX_Chart" + std::to_string(++charts_);
    const auto frame = sheet->ChartObjects()->Add(left, top, width, height);
    sheet->Shapes()->Item(frame->Name())->SetAlternativeText(id);
    frame->Chart()->ChartArea()->Interior()->SetColorIndex(excel::xlColorIndexNone);
    auto document = NewXMLDocument();
    if (!document.loadXML("<chart id=\"" + id + "\" name=\"Chart" + std::to_string(charts_) + "\" " + attributes + ">" +
                          content + "</chart>")) {
      throw std::runtime_error("a definition that doesn't parse: " + content);
    }
    SaveChartDefinition(document);
  }

  /// The comment box of the last chart, at its top right corner.
  void Comment(const excel::Ref<excel::Worksheet>& sheet, double right, double top, const std::string& text) {
    const auto box = sheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, right - 5, top + 5, 180, 120);
    box->SetAlternativeText("VEX_Chart" + std::to_string(charts_));
    box->TextFrame()->Characters()->SetText(text);
  }

  void Finish(const std::string& path) {
    ResetRunVariables();
    host_->Book().AllSheets().front()->object->Activate();
    CPlotsmithController().RefreshPlotsmithData(host_, "make_examples", "");
    for (const std::string& message : desktop_->Messages()) std::cerr << path << ": " << message << '\n';
    host_->Book().Save(path);
  }

 private:
  std::shared_ptr<cli::ConsoleDesktop> desktop_;
  std::shared_ptr<xlsx::Application> host_;
  int sheets_ = 0;
  int charts_ = 0;
};

void Fill(excel::Worksheet& sheet, int row, const std::vector<Variant>& values) {
  int column = 1;
  for (const Variant& value : values) sheet.SetCellValueAt(row, column++, value);
}

std::string Columns(const std::string& element, const std::string& headingsIn, std::initializer_list<const char*> names) {
  std::string xml = "<" + element + (headingsIn.empty() ? "" : " headings-in=\"" + headingsIn + "\"") + ">";
  for (const char* name : names) xml += std::string("<column name=\"") + name + "\"/>";
  return xml + "</" + element + ">";
}

std::string Axes(const std::string& label, const std::string& value) {
  const auto axis = [](const char* type, const std::string& text) {
    return text.empty() ? "" : std::string("<axis type=\"") + type + "\" label=\"" + text + "\" sticky=\"no\"/>";
  };
  return "<axes>" + axis("label", label) + axis("value", value) + "</axes>";
}

std::string Settings(std::initializer_list<const char*> names) {
  std::string xml = "<dynamic-attributes>";
  for (const char* name : names) xml += std::string("<attribute setting=\"") + name + "\"/>";
  return xml + "</dynamic-attributes>";
}

const std::string kLabels = "<data-labels><data-label show=\"values\"/></data-labels>";

/// A range table, marked by its name: sales of a bicycle maker, a row for each quarter, region and line.
void MakeSales(const std::string& path) {
  ExampleBook book;
  const auto sheet = book.Sheet("Sales");
  sheet->SetCellValueAt(1, 1, "Bicycle sales 2025");
  sheet->SetCellValueAt(2, 1, "thousands of euros");
  Fill(*sheet, 3, {"Quarter", "Region", "Line", "Units", "Revenue", "Cost"});
  constexpr std::array kRegions = {"North", "South", "East", "West"};
  constexpr std::array kLines = {"City", "Trekking", "E-Bike"};
  constexpr std::array kPrices = {0.62, 0.95, 2.7};  // thousands of euros a piece
  constexpr int kUnits[4][3] = {{310, 180, 150}, {420, 260, 240}, {190, 140, 95}, {280, 310, 205}};
  constexpr std::array kSeason = {0.7, 1.35, 1.15, 0.8};
  int row = 3;
  for (int quarter = 0; quarter < 4; ++quarter) {
    for (int region = 0; region < 4; ++region) {
      for (int line = 0; line < 3; ++line) {
        const double trend = line == 2 ? 1 + 0.08 * quarter : 1 - 0.01 * quarter;
        const double units = std::round(kUnits[region][line] * kSeason[static_cast<std::size_t>(quarter)] * trend);
        const double revenue = std::round(units * kPrices[static_cast<std::size_t>(line)] * 10) / 10;
        Fill(*sheet, ++row,
             {"Q" + std::to_string(quarter + 1), kRegions[static_cast<std::size_t>(region)],
              kLines[static_cast<std::size_t>(line)], units, revenue, std::round(revenue * (line == 2 ? 7.4 : 6.6)) / 10});
      }
    }
  }
  sheet->Range("$E$4", "$F$" + std::to_string(row))->SetNumberFormat("#,##0.0");
  book.Name("VEX_TableRange_Sales", "Sales!$A$1:$F$" + std::to_string(row));

  const auto charts = book.Sheet("Charts");
  const std::string table = "table-id=\"VEX_TableRange_Sales\" number-format=\"#,##0\" ";
  const double w = 380, h = 270;
  book.Chart(charts, 10, 10, w, h, table + "type=\"column\" title=\"Revenue by quarter and region\"",
             Columns("categories", "rows", {"Quarter"}) + Columns("series", "rows", {"Region"}) +
                 Columns("values", "", {"Revenue"}) + Axes("Quarter", "Revenue") + Settings({}));
  book.Chart(charts, 400, 10, w, h, table + "type=\"bar\" title=\"What each region sells\"",
             Columns("categories", "rows", {"Region"}) + Columns("series", "rows", {"Line"}) +
                 Columns("values", "", {"Revenue"}) + Axes("", "Revenue") + kLabels + Settings({"stacked"}));
  book.Chart(charts, 10, 300, w, h, table + "type=\"area\" title=\"Share of the lines\"",
             Columns("categories", "rows", {"Quarter"}) + Columns("series", "rows", {"Line"}) +
                 Columns("values", "", {"Revenue"}) + Axes("", "") + Settings({"stacked", "100%"}));
  book.Chart(charts, 400, 300, w, h, table + "type=\"column\" title=\"Revenue and cost\"",
             Columns("categories", "rows", {"Line"}) + Columns("series", "columns", {"Revenue", "Cost"}) + Axes("Line", "") +
                 Settings({"3D"}));
  book.Chart(charts, 10, 590, w, h, table + "type=\"bar\" title=\"Units in all\"",
             Columns("categories", "rows", {"Line"}) + Columns("series", "none", {}) + Columns("values", "", {"Units"}) +
                 Axes("", "Pieces") + kLabels + Settings({}));
  book.Comment(charts, 10 + w, 590, "City bikes sell best, but it is the E-Bikes that bring the money.");
  book.Finish(path);
}

/// A data sheet, recognised by the name Data1: electricity of Germany by source, in TWh, rounded.
void MakeElectricity(const std::string& path) {
  ExampleBook book;
  const auto sheet = book.Sheet("Data1");
  Fill(*sheet, 1, {"Year", "Source", "Kind", "TWh"});
  struct Source {
    const char* name;
    const char* kind;
    std::array<double, 6> generation;
  };
  const Source kSources[] = {{"Lignite", "fossil", {131, 102, 83, 99, 104, 77}},
                             {"Hard coal", "fossil", {72, 48, 35, 47, 56, 36}},
                             {"Gas", "fossil", {44, 55, 59, 53, 47, 46}},
                             {"Nuclear", "nuclear", {72, 71, 61, 65, 33, 7}},
                             {"Wind", "renewable", {109, 125, 131, 113, 124, 140}},
                             {"Solar", "renewable", {42, 43, 47, 47, 56, 56}},
                             {"Biomass", "renewable", {45, 44, 45, 44, 43, 42}},
                             {"Hydro", "renewable", {17, 20, 18, 19, 17, 19}}};
  int row = 1;
  for (std::size_t year = 0; year < 6; ++year) {
    for (const Source& source : kSources) {
      Fill(*sheet, ++row, {"'" + std::to_string(2018 + year), source.name, source.kind, source.generation[year]});
    }
  }
  const auto charts = book.Sheet("Charts");
  const std::string table = "table-id=\"Data1\" ";
  book.Chart(charts, 10, 10, 420, 290, table + "type=\"area\" title=\"Electricity by kind\" number-format=\"0\"",
             Columns("categories", "rows", {"Year"}) + Columns("series", "rows", {"Kind"}) +
                 Columns("values", "", {"TWh"}) + Axes("", "TWh") + Settings({"stacked"}));
  book.Chart(charts, 450, 10, 420, 290, table + "type=\"column\" title=\"Electricity by source\" number-format=\"0\"",
             Columns("categories", "rows", {"Year"}) + Columns("series", "rows", {"Source"}) +
                 Columns("values", "", {"TWh"}) + Axes("", "TWh") + Settings({"stacked", "100%"}));
  book.Chart(charts, 10, 320, 420, 290, table + "type=\"area\" title=\"Fossil, nuclear, renewable\" number-format=\"0\"",
             Columns("categories", "rows", {"Year"}) + Columns("series", "rows", {"Kind"}) +
                 Columns("values", "", {"TWh"}) + Axes("", "") + Settings({"3D"}));
  book.Finish(path);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_examples FOLDER\n";
    return 2;
  }
  try {
    const std::string folder = argv[1];
    MakeSales(folder + "/bicycle-sales.xlsx");
    MakeElectricity(folder + "/electricity.xlsx");
    return 0;
  } catch (const std::exception& e) {
    std::cerr << "make_examples: " << e.what() << '\n';
    return 3;
  }
}

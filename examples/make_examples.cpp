// Makes the example workbooks. Usage: make_examples FOLDER

#include <array>
#include <cmath>
#include <iostream>
#include <string>

#include "ExampleBook.h"

namespace {

using namespace plotsmith::examples;
namespace excel = plotsmith::excel;

/// A range table with a defined name: the sales of a bicycle maker, one row for each quarter, region and
/// line.
void MakeSales(const std::string& path) {
  ExampleBook book;
  const auto sheet = book.Sheet("Sales");
  sheet->SetCellValueAt(1, 1, "Bicycle sales 2025");
  sheet->SetCellValueAt(2, 1, "thousands of euros");
  Fill(*sheet, 3, {"Quarter", "Region", "Line", "Units", "Revenue", "Cost"});
  constexpr std::array kRegions = {"North", "South", "East", "West"};
  constexpr std::array kLines = {"City", "Trekking", "E-Bike"};
  constexpr std::array kPrices = {0.62, 0.95, 2.7};  // In thousands of euros per unit.
  constexpr int kUnits[4][3] = {{310, 180, 150}, {420, 260, 240}, {190, 140, 95}, {280, 310, 205}};
  constexpr std::array kSeason = {0.7, 1.35, 1.15, 0.8};
  int row = 3;
  for (int quarter = 0; quarter < 4; ++quarter) {
    for (int region = 0; region < 4; ++region) {
      for (int line = 0; line < 3; ++line) {
        const double trend = line == 2 ? 1 + 0.08 * quarter : 1 - 0.01 * quarter;
        const double units =
            std::round(kUnits[region][line] * kSeason[static_cast<std::size_t>(quarter)] * trend);
        const double revenue = std::round(units * kPrices[static_cast<std::size_t>(line)] * 10) / 10;
        Fill(*sheet, ++row,
             {"Q" + std::to_string(quarter + 1), kRegions[static_cast<std::size_t>(region)],
              kLines[static_cast<std::size_t>(line)], units, revenue,
              std::round(revenue * (line == 2 ? 7.4 : 6.6)) / 10});
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
                 Columns("values", "", {"Revenue"}) + Axes("", "Revenue") + Labels("values") +
                 Settings({"stacked"}));
  book.Chart(charts, 10, 300, w, h, table + "type=\"area\" title=\"Share of the lines\"",
             Columns("categories", "rows", {"Quarter"}) + Columns("series", "rows", {"Line"}) +
                 Columns("values", "", {"Revenue"}) + Axes("", "") + Settings({"stacked", "100%"}));
  book.Chart(charts, 400, 300, w, h, table + "type=\"column\" title=\"Revenue and cost\"",
             Columns("categories", "rows", {"Line"}) + Columns("series", "columns", {"Revenue", "Cost"}) +
                 Axes("Line", "") + Settings({"3D"}));
  book.Chart(charts, 10, 590, w, h, table + "type=\"bar\" title=\"Units in all\"",
             Columns("categories", "rows", {"Line"}) + Columns("series", "none", {}) +
                 Columns("values", "", {"Units"}) + Axes("", "Pieces") + Labels("values") + Settings({}));
  book.Comment(charts, "City bikes sell best, but it is the E-Bikes that bring the money.");
  book.Finish(path);
}

/// A data sheet with the name Data1: electricity in Germany by source, in TWh, rounded.
void MakeElectricity(const std::string& path) {
  ExampleBook book;
  const auto sheet = book.Sheet("Data1");
  Fill(*sheet, 1, {"Year", "Source", "Kind", "TWh"});
  struct Source {
    const char* name;
    const char* kind;
    std::array<double, 6> generation;
  };
  // Nuclear power comes first, because in a 3-D area chart larger values hide the values behind them.
  const Source kSources[] = {{"Nuclear", "nuclear", {72, 71, 61, 65, 33, 7}},
                             {"Lignite", "fossil", {131, 102, 83, 99, 104, 77}},
                             {"Hard coal", "fossil", {72, 48, 35, 47, 56, 36}},
                             {"Gas", "fossil", {44, 55, 59, 53, 47, 46}},
                             {"Wind", "renewable", {109, 125, 131, 113, 124, 140}},
                             {"Solar", "renewable", {42, 43, 47, 47, 56, 56}},
                             {"Biomass", "renewable", {45, 44, 45, 44, 43, 42}},
                             {"Hydro", "renewable", {17, 20, 18, 19, 17, 19}}};
  int row = 1;
  for (std::size_t year = 0; year < 6; ++year) {
    for (const Source& source : kSources) {
      Fill(*sheet, ++row,
           {"'" + std::to_string(2018 + year), source.name, source.kind, source.generation[year]});
    }
  }
  const auto charts = book.Sheet("Charts");
  const std::string table = "table-id=\"Data1\" ";
  book.Chart(charts, 10, 10, 420, 290,
             table + "type=\"area\" title=\"Electricity by kind\" number-format=\"0\"",
             Columns("categories", "rows", {"Year"}) + Columns("series", "rows", {"Kind"}) +
                 Columns("values", "", {"TWh"}) + Axes("", "TWh") + Settings({"stacked"}));
  book.Chart(charts, 450, 10, 420, 290,
             table + "type=\"column\" title=\"Electricity by source\" number-format=\"0\"",
             Columns("categories", "rows", {"Year"}) + Columns("series", "rows", {"Source"}) +
                 Columns("values", "", {"TWh"}) + Axes("", "Share of the year") +
                 Settings({"stacked", "100%"}));
  book.Chart(charts, 10, 320, 420, 290,
             table + "type=\"area\" title=\"Fossil, nuclear, renewable\" number-format=\"0\"",
             Columns("categories", "rows", {"Year"}) + Columns("series", "rows", {"Kind"}) +
                 Columns("values", "", {"TWh"}) + Axes("", "") + Settings({"3D"}));
  book.Finish(path);
}

/// Bubble charts: income, life expectancy, urbanization, internet use and population of countries. The
/// countries are large, few and different enough that their names don't overlap.
void MakeCountries(const std::string& path) {
  ExampleBook book;
  const auto sheet = book.Sheet("Countries");
  sheet->SetCellValueAt(1, 1, "Countries in 2019");
  sheet->SetCellValueAt(2, 1,
                        "Approximate, after the World Bank's World Development Indicators; dollars, years, "
                        "millions, per cent, per cent");
  Fill(*sheet, 3,
       {"Country", "Region", "GDP per head", "Life expectancy", "Population", "City dwellers", "Online"});
  struct Country {
    const char* name;
    const char* region;
    double gdpPerHead, lifeExpectancy, population, cityDwellers, online;
  };
  const Country kCountries[] = {{"China", "Asia", 10100, 78, 1408, 60, 64},
                                {"India", "Asia", 2050, 71, 1383, 34, 29},
                                {"United States", "Americas", 65100, 79, 328, 82, 89},
                                {"Indonesia", "Asia", 4150, 71, 270, 56, 48},
                                {"Pakistan", "Asia", 1450, 67, 223, 37, 17},
                                {"Brazil", "Americas", 8900, 75, 212, 87, 74},
                                {"Nigeria", "Africa", 2350, 53, 203, 51, 34},
                                {"Bangladesh", "Asia", 2150, 73, 166, 37, 13},
                                {"Russia", "Europe", 11500, 73, 144, 75, 83},
                                {"Japan", "Asia", 40500, 84, 127, 92, 93},
                                {"Mexico", "Americas", 10100, 74, 125, 80, 70},
                                {"Philippines", "Asia", 3400, 72, 110, 47, 43},
                                {"Egypt", "Africa", 2850, 71, 106, 43, 57},
                                {"Vietnam", "Asia", 3450, 74, 96, 37, 69},
                                {"Thailand", "Asia", 7650, 79, 71, 51, 67},
                                {"France", "Europe", 40500, 83, 67, 81, 83},
                                {"United Kingdom", "Europe", 42700, 81, 67, 84, 93},
                                {"South Africa", "Africa", 6700, 66, 58, 67, 68},
                                {"Kenya", "Africa", 1950, 63, 51, 27, 23},
                                {"Colombia", "Americas", 6400, 77, 50, 81, 65},
                                {"Argentina", "Americas", 9950, 77, 45, 92, 80},
                                {"Poland", "Europe", 15700, 78, 38, 60, 80},
                                {"Canada", "Americas", 46300, 82, 38, 82, 97},
                                {"Chile", "Americas", 14600, 80, 19, 88, 86}};
  int row = 3;
  for (const Country& country : kCountries) {
    Fill(*sheet, ++row,
         {country.name, country.region, country.gdpPerHead, country.lifeExpectancy, country.population,
          country.cityDwellers, country.online});
  }
  sheet->Range("$C$4", "$C$" + std::to_string(row))->SetNumberFormat("#,##0");
  book.Name("VEX_TableRange_Countries", "Countries!$A$1:$G$" + std::to_string(row));

  const auto charts = book.Sheet("Charts");
  const std::string table = "table-id=\"VEX_TableRange_Countries\" type=\"bubble\" number-format=\"#,##0\" ";
  const auto content = [](const char* x, const char* y) {
    return Columns("categories", "rows", {"Country"}) + Columns("series", "rows", {"Region"}) +
           Columns("values", "", {y}) + Columns("x-values", "", {x}) +
           Columns("bubble-sizes", "", {"Population"}) + Axes(x, y) + Settings({});
  };
  const double w = 840, h = 560;
  const auto wealth = book.Chart(charts, 10, 10, w, h, table + "title=\"Wealth and health of nations\"",
                                 content("GDP per head", "Life expectancy"));
  book.Chart(charts, 10, 590, w, h, table + "title=\"In town and online, in per cent\"",
             content("City dwellers", "Online") +
                 Settings({"quadrants", "autoscale-x", "autoscale-y"}, "static-attributes"));
  book.Refresh();
  // The scales are set on the chart, like by hand. On a linear axis the poor countries would overlap, and no
  // life expectancy is below 50 years.
  constexpr std::int32_t kLogarithmic = -4133;  // xlScaleLogarithmic
  const auto gdp = wealth->Chart()->Axes(excel::xlCategory, excel::xlPrimary);
  gdp->SetScaleType(kLogarithmic);
  gdp->SetMinimumScale(1000);
  gdp->SetMaximumScale(100000);
  const auto years = wealth->Chart()->Axes(excel::xlValue, excel::xlPrimary);
  years->SetMinimumScale(50);
  years->SetMaximumScale(90);
  book.Finish(path);
}

/// A strategic bucket chart: the investments of a bicycle maker by strategy, compared with the targets.
void MakeInvestments(const std::string& path) {
  ExampleBook book;
  const auto sheet = book.Sheet("Investments");
  sheet->SetCellValueAt(1, 1, "Investments 2026");
  sheet->SetCellValueAt(2, 1, "millions of euros");
  Fill(*sheet, 3, {"Project", "Programme", "Strategy", "Amount", "Priority"});
  struct Project {
    const char* name;
    const char* programme;
    const char* strategy;
    double amount, priority;
  };
  const Project kProjects[] = {{"Paint shop", "Plant", "Keep going", 2.4, 60},
                               {"Fire protection", "Plant", "Keep going", 0.9, 95},
                               {"New payroll", "Digital", "Keep going", 0.7, 40},
                               {"E-Bike line", "Plant", "Grow", 4.8, 90},
                               {"Own motor", "Product", "Grow", 3.1, 70},
                               {"City frame", "Product", "Grow", 1.2, 55},
                               {"Dealer portal", "Digital", "Grow", 1.5, 65},
                               {"Robot welding", "Plant", "Get leaner", 2.2, 75},
                               {"Stock planning", "Digital", "Get leaner", 0.8, 80},
                               {"Cargo bike", "Product", "Try out", 2.2, 50},
                               {"Rental fleet", "Service", "Try out", 0.8, 35},
                               {"Repair at home", "Service", "Try out", 0.7, 30}};
  int row = 3;
  for (const Project& project : kProjects) {
    Fill(*sheet, ++row,
         {project.name, project.programme, project.strategy, project.amount, project.priority});
  }
  sheet->Range("$D$4", "$D$" + std::to_string(row))->SetNumberFormat("0.0");
  book.Name("VEX_TableRange_Investments", "Investments!$A$1:$E$" + std::to_string(row));

  const auto charts = book.Sheet("Charts");
  // The headings connect the bucket table with the other table.
  const auto targets = book.Sheet("Targets");
  targets->SetCellValueAt(1, 1, "Targets 2026");
  targets->SetCellValueAt(2, 1, "millions of euros");
  Fill(*targets, 3, {"Strategy", "Amount"});
  Fill(*targets, 4, {"Keep going", 2.9});
  Fill(*targets, 5, {"Grow", 12.0});
  Fill(*targets, 6, {"Get leaner", 4.0});
  Fill(*targets, 7, {"Try out", 1.8});
  book.Name("VEX_SB_Targets", "Targets!$A$1:$B$7");

  const std::string table = "table-id=\"VEX_TableRange_Investments\" number-format=\"0.0\" ";
  book.Chart(charts, 10, 10, 620, 460,
             table +
                 "type=\"strategic bucket\" strategic-bucket-table-id=\"VEX_SB_Targets\" "
                 "title=\"Investments against their targets\"",
             Columns("categories", "rows", {"Project"}) + Columns("series", "rows", {"Programme"}) +
                 Columns("values", "", {"Amount"}) +
                 "<sort-order sort=\"descending\"><column name=\"Priority\"/></sort-order>" +
                 Axes("", "Millions of euros") + "<data-labels manual-labels=\"yes\"/>" + Settings({}));
  const std::string pie = Columns("series", "none", {}) + Columns("values", "", {"Amount"});
  book.Chart(
      charts, 640, 10, 330, 225, table + "type=\"pie\" title=\"By strategy\"",
      Columns("categories", "rows", {"Strategy"}) + pie + Labels("percentages") + Settings({"exploded"}));
  book.Chart(charts, 640, 245, 330, 225, table + "type=\"pie\" title=\"By programme\"",
             Columns("categories", "rows", {"Programme"}) + pie + Labels("values") + Settings({"3D"}));
  book.Finish(path);
}

/// Two simple tables for first steps: orders, and sales targets by region.
void MakeOrders(const std::string& path) {
  ExampleBook book;
  const auto orders = book.Sheet("Data1");
  Fill(*orders, 1, {"Region", "Product", "Quarter", "Amount", "Cost", "Units"});
  constexpr std::array kRegions = {"North", "South", "East", "West"};
  constexpr std::array kProducts = {"Kettle", "Lamp", "Radio"};
  constexpr std::array kPrices = {24.0, 38.0, 61.0};
  constexpr int kUnits[4][3] = {{120, 80, 45}, {95, 130, 60}, {70, 55, 90}, {150, 40, 30}};
  int row = 1;
  for (int quarter = 1; quarter <= 4; ++quarter) {
    for (std::size_t region = 0; region < kRegions.size(); ++region) {
      for (std::size_t product = 0; product < kProducts.size(); ++product) {
        const double units = kUnits[region][product] + 10 * ((quarter + static_cast<int>(product)) % 4);
        const double amount = units * kPrices[product];
        Fill(*orders, ++row,
             {kRegions[region], kProducts[product], "Q" + std::to_string(quarter), amount,
              std::round(amount * (product == 2 ? 0.8 : 0.65)), units});
      }
    }
  }
  const auto targets = book.Sheet("Targets");
  targets->SetCellValueAt(1, 1, "Targets of the year");
  Fill(*targets, 3, {"Region", "Amount"});
  row = 3;
  for (const char* region : kRegions) {
    const double target = 45000.0 - 2500.0 * (row % 3);
    Fill(*targets, ++row, {region, target});
  }
  book.Name("VEX_SB_Targets", "Targets!$A$1:$B$" + std::to_string(row));
  book.FinishAsData(path);
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
    MakeCountries(folder + "/countries.xlsx");
    MakeInvestments(folder + "/investments.xlsx");
    MakeOrders(folder + "/data/orders.xlsx");
    return 0;
  } catch (const std::exception& e) {
    std::cerr << "make_examples: " << e.what() << '\n';
    return 3;
  }
}

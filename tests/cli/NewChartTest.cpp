#include <gtest/gtest.h>
#include <vector>

#include "runtime/Strings.h"
#include "tests/support/Files.h"
#include "tests/support/Patterns.h"
#include "tests/support/VerbsTest.h"
#include "xlsx/package/Package.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;

struct NewChart {
  S type;
  std::vector<S> options;  ///< Options of the layout.
  S block;                 ///< Its rows on the data sheet.
  S definition;            ///< The part that the pages write.
};

const NewChart kNewCharts[] = {
    {"area",
     {"--series-columns", "cost", "Amount"},
     "\t\tAmount\tCost\n\tEast\t18\t13\n\tWest\t5\t4\n",
     R"(<categories headings-in="rows"><column name="Region"/></categories>
<series headings-in="columns"><column name="Amount"/><column name="Cost"/></series><dynamic-attributes/>
<axes><axis type="label" label="Region" sticky="no"/><axis type="value" label="" sticky="yes"/></axes>
<data-labels/>)"},
    {"bar",
     {"--category-columns", "Amount", "Cost", "--x-axis", "Sum"},
     "\t\tValue\n\tAmount\t23\n\tCost\t17\n",
     R"(<categories headings-in="columns"><column name="Amount"/><column name="Cost"/></categories>
<series headings-in="none"/><dynamic-attributes/>
<axes><axis type="label" label="" sticky="yes"/><axis type="value" label="Sum" sticky="yes"/></axes>
<data-labels/>)"},
    {"column",
     {"--categories", "PRODUCT", "--series", "Region", "--values", "Cost", "--set", "100%", "stacked"},
     "\t\tEast\tWest\n\tWidget\t8\t4\n\tGadget\t5\n",
     R"(<categories headings-in="rows"><column name="Product"/></categories>
<series headings-in="rows"><column name="Region"/></series><values><column name="Cost"/></values>
<dynamic-attributes><attribute setting="stacked"/><attribute setting="100%"/></dynamic-attributes>
<axes><axis type="label" label="Product" sticky="no"/><axis type="value" label="Cost" sticky="no"/></axes>
<data-labels/>)"},
    {"pie",
     {"--categories", "Product", "--labels", "percentages", "--set", "exploded", "--comment", "a b"},
     "\t\tAmount\n\tWidget\t16\n\tGadget\t7\n",
     R"(<categories headings-in="rows"><column name="Product"/></categories><series headings-in="none"/>
<values><column name="Amount"/></values>
<dynamic-attributes><attribute setting="exploded"/></dynamic-attributes>
<data-labels><data-label show="percentages"/></data-labels><comment>a b</comment>)"},
    {"bubble",
     {"--x-values", "Cost", "--series", "Product", "--sizes", "Amount", "--set", "show-zero-bubbles"},
     "\t\t[-BubbleColor-]\t[-XAxisValue-]\t[-YAxisValue-]\t[-BubbleSize-]\n\tEast\tWidget\t13\t18\t18\n"
     "\tWest\tWidget\t4\t5\t5\n",
     R"(<categories headings-in="rows"><column name="Region"/></categories>
<series headings-in="rows"><column name="Product"/></series><values><column name="Amount"/></values>
<x-values><column name="Cost"/></x-values><bubble-sizes><column name="Amount"/></bubble-sizes>
<static-attributes><attribute setting="show-zero-bubbles"/></static-attributes><dynamic-attributes/>
<axes><axis type="label" label="Cost" sticky="no"/><axis type="value" label="Amount" sticky="no"/></axes>
<data-labels><data-label show="values"/></data-labels>)"},
    {"strategic bucket",
     {"--categories", "Product", "--bucket-table", "VEX_SB1", "--labels", "names", "--sort-by", "Cost",
      "--descending", "--number-format", "0.0"},
     "\t\t[-BlockColor-]\t[-BlockSort-]\tEAST\tWEST\n\t[-StrategicBuckets-]\t\t\t100.0\t50.0\n"
     "\tWidget\t[none]\t12.0\t11.0\t5.0\n\tGadget\t[none]\t5.0\t7.0\n",
     R"(<categories headings-in="rows"><column name="Product"/></categories><series headings-in="none"/>
<values><column name="Amount"/></values><sort-order sort="descending"><column name="Cost"/></sort-order>
<dynamic-attributes/>
<axes><axis type="label" label="Region" sticky="no"/><axis type="value" label="Amount" sticky="no"/></axes>
<data-labels manual-labels="yes"><data-label show="values"/></data-labels>)"},
};

class NewChartTest : public VerbsTest {
 protected:
  /// Returns the arguments of `new` that make the chart.
  static std::vector<S> Arguments(const S& book, const NewChart& chart) {
    return Joined({"new", book, "--table", "Data1", "--type", chart.type, "--title", "A " + chart.type},
                  chart.options);
  }
  /// Returns the rows of the only chart on the data sheet, without its id.
  static S Block(const S& book) {
    const S cells = RunCommand({"cells", book, "VEX_ChartData!A1:F9"}).out;
    return ReplaceMatches(ReplaceMatches(cells, "VEX_Chart1|\t+(?=\n)", ""), "\n+$", "\n");
  }
  /// Returns the definition without the parts that a load reads from the chart or that a refresh copies from
  /// the table.
  static S Written(const S& book) {
    return ReplaceMatches(StoredDefinition(book, "VEX_Chart1"),
                          " (table-top-row|table-left-column|table-height|header-row-count|data-start-row|"
                          "worksheet-column-number|bucket-[a-z]+-column-position)=\"[0-9]+\"|"
                          "<auto-persistence>.*</auto-persistence>",
                          "");
  }
  /// Returns the part of the only chart, without its legend.
  static S ChartPart(const S& book) {
    const S part = xlsx::Package::Open(book).Read("/xl/charts/chart1.xml");
    return ReplaceMatches(part, "<c:legend>.*</c:legend>", "");
  }
};

TEST_F(NewChartTest, ChartsOfAllTypesAreMadeOnAPlainWorkbookAndARefreshChangesNothing) {
  const S book = Write(PlainSales()), out = folder_ / "out.xlsx", refreshed = folder_ / "refreshed.xlsx";
  for (const NewChart& chart : kNewCharts) {
    const CommandResult result = RunCommand(Joined(Arguments(book, chart), {"-o", out}));
    EXPECT_EQ(result.code, 0) << chart.type;
    EXPECT_EQ(result.out + result.err, "") << chart.type;
    EXPECT_EQ(Charts(out), "VEX_Chart1  \"A " + chart.type + "\"\n  " + chart.type +
                               " chart on sheet Data1, from table Data1 on sheet Data1\n  ok\n");
    EXPECT_EQ(Block(out), chart.block) << chart.type;
    const S definition = Written(out);
    EXPECT_EQ(definition.substr(definition.find("><") + 1),
              runtime::Replace(chart.definition, "\n", "") + "</chart>\n")
        << chart.type;
    ASSERT_EQ(RunCommand({"refresh", out, "-o", refreshed}).code, 0) << chart.type;
    EXPECT_EQ(definition, Written(refreshed)) << chart.type;
    EXPECT_EQ(Block(refreshed), chart.block) << chart.type;
    // A legend gets the font that was read back from it.
    EXPECT_EQ(ChartPart(out), ChartPart(refreshed)) << chart.type;
  }
}

TEST_F(NewChartTest, ThePrintedScriptMakesTheSameChart) {
  const S book = Write(PlainSales()), out = folder_ / "out.xlsx", played = folder_ / "played.xlsx";
  const S before = BytesOf(book);
  for (const NewChart& chart : kNewCharts) {
    ASSERT_EQ(RunCommand(Joined(Arguments(book, chart), {"-o", out})).code, 0) << chart.type;
    const CommandResult printed = RunCommand(Joined(Arguments(book, chart), {"--print-script"}));
    EXPECT_EQ(printed.code, 0) << chart.type;
    EXPECT_EQ(BytesOf(book), before);
    EXPECT_EQ(Wizard(book, printed.out, {"-o", played}).code, 0) << printed.out;
    EXPECT_EQ(BytesOf(played), BytesOf(out)) << chart.type;
  }
  EXPECT_EQ(RunCommand(Joined(Arguments(book, kNewCharts[2]), {"--new-sheet", "Mine", "--print-script"})).out,
            R"(page frmPSSelectTable
select grdTables Data1
choose optType(1)
press cmdNext
page frmPSLayoutABC
type txtTitle "A column"
choose cboCategories Product
choose optSeries(1)
choose cboSeries Region
choose cboValues Cost
check chkStacked
check chk100Pct
press cmdNext
page frmPSChartLocation
choose optTargetSheet(0)
type txtSheet Mine
press cmdFinish
page none
)");
}

}  // namespace
}  // namespace plotsmith::cli

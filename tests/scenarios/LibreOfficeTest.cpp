#include <cstdlib>

#include "tests/support/HostTest.h"
#include "xlsx/Package.h"
#include "xlsx/Xml.h"

namespace plotsmith {
namespace {

using test::Definition;
using S = std::string;

/// A second reader that no one here wrote: LibreOffice opens what was saved and says what its charts hold.
class LibreOfficeTest : public test::HostTest {
 protected:
  void SetUp() override {
    if (std::system("command -v soffice > /dev/null 2>&1") != 0)
      GTEST_SKIP() << "LibreOffice isn't installed";
  }

  /// The saved workbook's charts as LibreOffice writes them, by their number in its package.
  std::vector<S> Charts() {
    const S command = "soffice -env:UserInstallation=file://" + (folder_ / "profile") +
                      " --headless --convert-to ods --outdir " + folder_.Path().string() + " " +
                      (folder_ / "saved.xlsx") + " > /dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
    const xlsx::Archive archive(folder_ / "saved.ods");
    std::vector<S> charts;
    for (int n = 1;; ++n) {
      const S name = "Object " + std::to_string(n) + "/content.xml";
      const auto& entries = archive.Entries();
      const auto entry =
          std::find_if(entries.begin(), entries.end(), [&](const auto& e) { return e.name == name; });
      if (entry == entries.end()) return charts;
      S text(entry->size, '\0');
      const auto stream = archive.Open(static_cast<std::size_t>(entry - entries.begin()));
      std::size_t total = 0;
      while (const auto count = stream->Read(text.data() + total, text.size() - total)) total += count;
      charts.push_back(text);
    }
  }

  /// The data of a chart, rows by "\n", cells by "|".
  static S Data(const S& content) {
    pugi::xml_document document;
    xlsx::xml::Parse(document, content);
    S text;
    const auto table = document.select_node("//table:table[@table:name='local-table']").node();
    for (const auto& row : table.select_nodes(".//table:table-row")) {
      if (!text.empty()) text += '\n';
      bool first = true;
      for (const auto& cell : row.node().children("table:table-cell")) {
        if (!first) text += '|';
        first = false;
        const S value = cell.attribute("office:value").value();
        text += value == "NaN" ? S() : !value.empty() ? value : xlsx::xml::Text(cell.child("text:p"));
      }
    }
    return text;
  }
  static S Class(const S& content) {
    const auto at = content.find("chart:class=\"chart:");
    return content.substr(at + 19, content.find('"', at + 19) - at - 19);
  }
};

TEST_F(LibreOfficeTest, SeesTheSameSeries) {
  Definition bar{"VEX_Chart1", "bar"}, area{"VEX_Chart2", "area"},
      column{"VEX_Chart3", "column", "table-id=\"Data1\" title=\"3-D\""};
  bar.rest = "<dynamic-attributes><attribute setting=\"stacked\"/></dynamic-attributes>";
  column.rest =
      "<data-labels><data-label show=\"values\"/></data-labels><dynamic-attributes><attribute "
      "setting=\"3D\"/></dynamic-attributes>";
  column.series = "<series headings-in=\"columns\"><column name=\"Amount\"/><column name=\"Cost\"/></series>";
  Open(test::SalesBook({bar, area, column}));
  Refresh();
  SaveAndReopen();
  const auto charts = Charts();
  ASSERT_EQ(charts.size(), 3u);
  EXPECT_EQ(Data(charts[0]), "|Widget|Gadget\nEast|11|7\nWest|5|");
  EXPECT_EQ(Data(charts[1]), "|Widget|Gadget\nEast|11|7\nWest|5|");
  EXPECT_EQ(Data(charts[2]), "|Amount|Cost\nEast|18|13\nWest|5|4");
  EXPECT_EQ(Class(charts[0]), "bar");
  EXPECT_EQ(Class(charts[1]), "area");
  EXPECT_EQ(Class(charts[2]), "bar");
  EXPECT_NE(charts[0].find("chart:vertical=\"true\""), S::npos);
  EXPECT_NE(charts[0].find("chart:stacked=\"true\""), S::npos);
  EXPECT_EQ(charts[2].find("chart:vertical=\"true\""), S::npos);
  EXPECT_NE(charts[2].find("chart:three-dimensional=\"true\""), S::npos);
  EXPECT_NE(charts[2].find("chart:data-label-number=\"value\""), S::npos);
  EXPECT_NE(charts[2].find(">3-D<"), S::npos);
}

}  // namespace
}  // namespace plotsmith

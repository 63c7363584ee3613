#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "tests/support/HostTest.h"
#include "tests/support/Paths.h"
#include "tests/support/SchemaFaults.h"
#include "tests/support/VerbsTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;
using S = std::string;

/// Checks all written and changed parts with the published schemas. A part of another program may keep its
/// errors.
class SchemaTest : public HostTest {
 protected:
  static void SetUpTestSuite() {
    if (Schemas::Present()) schemas_ = std::make_unique<Schemas>();
  }
  static void TearDownTestSuite() { schemas_.reset(); }
  void SetUp() override {
    if (!schemas_) GTEST_SKIP() << "the schemas are missing";
  }

  /// Returns the errors in `after` that aren't in `before`. If `before` is an empty path, returns all errors.
  static S Faults(const S& before, const S& after) {
    return schemas_->NewFaults(before.empty() ? xlsx::Package() : xlsx::Package::Open(before),
                               xlsx::Package::Open(after));
  }
  /// Refreshes the file twice with the host version, and checks the result each time.
  void RefreshTwice(const S& path, const S& version) {
    SCOPED_TRACE(version);
    const S first = folder_ / "first.xlsx", second = folder_ / "second.xlsx";
    const auto refresh = [&](const S& from, const S& to) {
      const auto result = RunCommand({"refresh", from, "-o", to, "--host-version", version});
      EXPECT_LE(result.code, 1) << result.err;
      if (result.code <= 1) {
        EXPECT_EQ(Faults(path, to), "");
      }
    };
    refresh(path, first);
    refresh(first, second);
  }

  static std::unique_ptr<Schemas> schemas_;
};
std::unique_ptr<Schemas> SchemaTest::schemas_;

constexpr const char* kVersions[] = {"16.0", "11.0"};

/// Returns a definition of any type for the sales table.
Definition SalesDefinition(const S& id, const S& type, const S& rest = "") {
  Definition definition{id, type};
  definition.rest = rest;
  if (type == "bubble") {
    definition.rest +=
        "<x-values><column name=\"Cost\"/></x-values><bubble-sizes><column name=\"Amount\"/></bubble-sizes>";
  }
  if (type == "strategic bucket") {
    definition.attributes += " strategic-bucket-table-id=\"VEX_SB1\"";
    definition.categories = "<categories headings-in=\"rows\"><column name=\"Product\"/></categories>";
    definition.rest += "<data-labels manual-labels=\"yes\"><data-label show=\"values\"/></data-labels>";
  }
  return definition;
}

/// Returns a definition for each chart family, with the settings that change the written elements.
std::vector<Definition> AllKinds() {
  const S axes =
      "<axes><axis type=\"label\" label=\"L\" sticky=\"no\"/><axis type=\"value\" label=\"V\" "
      "sticky=\"no\"/></axes>";
  const S labels = "<data-labels><data-label show=\"values\"/></data-labels>";
  const S look =
      "<auto-persistence><persist property=\"legend-visibility\" value=\"show\"/><persist "
      "property=\"legend-left\" value=\"20\"/><persist property=\"legend-top\" "
      "value=\"30\"/></auto-persistence>";
  return {SalesDefinition("", "column", axes + labels + Settings({"stacked"})),
          SalesDefinition("", "bubble", axes + Settings({"quadrants", "autoscale-x"}, "static-attributes")),
          SalesDefinition("", "pie", labels + Settings({"exploded"})),
          SalesDefinition("", "strategic bucket", axes),
          SalesDefinition("", "area", labels + Settings({"3D"})),
          SalesDefinition("", "bar", look + Settings({"3D", "stacked", "100%"})),
          SalesDefinition("", "pie", Settings({"3D", "exploded"}) + look),
          SalesDefinition("", "bubble", Settings({"3D"}) + look),
          SalesDefinition("", "unknown")};
}

TEST_F(SchemaTest, TheExamplesAndTheGallery) {
  const S gallery = folder_ / "gallery.xlsx";
  const S command = S(kMakeGallery) + " " + folder_.Path().string() + " > /dev/null 2>&1";
  ASSERT_EQ(std::system(command.c_str()), 0);
  std::vector<S> books = {gallery};
  for (const auto& file : fs::directory_iterator(fs::path(kSourceFolder) / "examples")) {
    if (file.path().extension() == ".xlsx") books.push_back(file.path().string());
  }
  EXPECT_EQ(books.size(), 5u);
  for (const S& book : books) {
    SCOPED_TRACE(book);
    EXPECT_EQ(Faults("", book), "") << "made through the host";
    for (const char* version : kVersions) RefreshTwice(book, version);
  }
  EXPECT_GT(schemas_->Judged(), 100);
}

TEST_F(SchemaTest, ChartsOfEveryKindFromEmptyFrames) {
  std::vector<Definition> definitions = AllKinds();
  for (std::size_t i = 0; i < definitions.size(); ++i)
    definitions[i].id = "VEX_Chart" + std::to_string(i + 1);
  auto book = SalesBook(definitions);
  book.sheets.push_back(PlainSales().Sheet("Targets"));
  book.names = PlainSales().names;
  const S path = folder_ / "book.xlsx";
  book.Write(path);
  const S strict = folder_ / "strict.xlsx";
  MakeStrict(path, strict);
  for (const char* version : kVersions) {
    RefreshTwice(path, version);
    RefreshTwice(strict, version);
    for (const S& part : xlsx::Package::Open(folder_ / "second.xlsx").Parts()) {
      const S bytes = xlsx::Package::Open(folder_ / "second.xlsx").Read(part);
      EXPECT_EQ(bytes.find("openxmlformats.org/drawingml/2006"), S::npos) << part << " is transitional";
    }
  }
}

TEST_F(SchemaTest, ChartsOfTheCorpusWithADefinition) {
  int taken = 0;
  std::size_t book = 0;
  const auto kinds = AllKinds();
  std::vector<fs::path> files;
  for (const char* folder : {"charts", "real"}) {
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator(fs::path(kCorpusFolder) / folder, ignored)) {
      files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  if (files.empty()) GTEST_SKIP() << "the corpus is missing";
  for (const fs::path& file : files) {
    // Three of the nine types begin in each workbook, so that each begins in a third of them.
    for (std::size_t pass = book++ % 3; pass < kinds.size(); pass += 3) {
      const S version = kVersions[pass % 2];
      SCOPED_TRACE(file.filename().string() + ", beginning with a " + kinds[pass].type + " " + version);
      OpenFile(file.string(), version);
      if (Book().ProtectStructure()) break;
      const auto add = [&](const S& name, const std::vector<PlainRow>& rows) {
        if (Book().Tabs().Find(name)) return Book().FindWorksheet(name);
        const auto sheet = Book().Tabs().Add(Book().Tabs().All().size());
        Book().Tabs().Rename(*Book().Tabs().Find(sheet->SheetName()), name);
        for (std::size_t r = 0; r < rows.size(); ++r) {
          for (std::size_t c = 0; c < rows[r].size(); ++c) {
            const auto row = static_cast<std::int32_t>(r + 1), column = static_cast<std::int32_t>(c + 1);
            if (const auto* number = std::get_if<double>(&rows[r][c]))
              sheet->SetCellValueAt(row, column, *number);
            if (const auto* text = std::get_if<S>(&rows[r][c])) sheet->SetCellValueAt(row, column, *text);
          }
        }
        return sheet;
      };
      std::vector<PlainRow> definitions = {{S("Plotsmith Version 2.0")}};
      const auto sheets = Book().Tabs().Worksheets();
      for (const auto& sheet : sheets) {
        const auto shapes = sheet->Shapes();
        for (int i = 1; i <= shapes->Count(); ++i) {
          if (shapes->Item(i)->Type() != excel::msoChart) continue;
          Definition definition = kinds[(pass + definitions.size() - 1) % kinds.size()];
          definition.id = "VEX_Chart" + std::to_string(definitions.size());
          shapes->Item(i)->SetAlternativeText(definition.id);
          // Remove the series, because otherwise the type and the look of the chart take precedence over the
          // definition, except for the unknown one.
          const auto series = sheet->ChartObjects()->Item(shapes->Item(i)->Name())->Chart();
          if (definition.type != "unknown") {
            for (auto all = series->SeriesCollection(); all->Count() > 0;) all->Item(1)->Delete();
          }
          definitions.push_back({definition.Xml()});
        }
      }
      if (definitions.size() == 1) break;
      add("Data1", SalesSheet().rows);
      add("Targets", PlainSales().Sheet("Targets").rows);
      Book().DefinedNames().Define("VEX_SB1", "Targets!$A$1:$B$5");
      add("VEX_ChartDefinitions", definitions);
      for (int refresh = 1; refresh <= 2; ++refresh) {
        RefreshAndReopen();
        EXPECT_EQ(Faults(file.string(), folder_ / "saved.xlsx"), "") << "refresh " << refresh;
      }
      ++taken;
    }
  }
  EXPECT_GT(taken, 150);
}

TEST_F(SchemaTest, OutputOfTheWizardsVerbs) {
  const S book = folder_ / "book.xlsx", before = folder_ / "before.xlsx";
  PlainSales().Write(book);
  const std::vector<std::vector<S>> verbs = {
      {"new", "--table", "Data1", "--type", "column", "--series", "Product", "--comment", "a b"},
      {"new", "--table", "Data1", "--type", "bar", "--new-sheet"},
      {"new", "--table", "Data1", "--type", "area", "--labels", "values"},
      {"new", "--table", "Data1", "--type", "pie", "--labels", "percentages"},
      {"new", "--table", "Data1", "--type", "bubble", "--x-values", "Cost", "--sizes", "Amount"},
      {"new", "--table", "Data1", "--type", "strategic bucket", "--categories", "Product", "--bucket-table",
       "VEX_SB1"},
      {"copy", "VEX_Chart1"},
      {"copy", "VEX_Chart5"},
      {"copy", "VEX_Chart6"},
      {"modify", "VEX_Chart5", "--title", "Bubbles"},
      {"delete", "VEX_Chart2"},
      {"delete", "VEX_Chart5"}};
  for (const char* version : kVersions) {
    for (std::vector<S> arguments : verbs) {
      SCOPED_TRACE(::testing::PrintToString(arguments) + version);
      fs::copy_file(book, before, fs::copy_options::overwrite_existing);
      arguments.insert(arguments.begin() + 1, book);
      if (arguments.back() == "--new-sheet") arguments.push_back("Bars " + S(version));
      arguments.insert(arguments.end(), {"--host-version", version});
      const auto result = RunCommand(arguments);
      EXPECT_LE(result.code, 1) << result.err;
      EXPECT_EQ(Faults(before, book), "");
    }
  }
  // Without their table, all charts become unavailable.
  EditPart(book, "/xl/workbook.xml", [](S& xml) {
    const auto at = xml.find("\"Data1\"");
    ASSERT_NE(at, S::npos);
    xml.replace(at, 7, "\"Gone\"");
  });
  for (const char* version : kVersions) RefreshTwice(book, version);
}

}  // namespace
}  // namespace plotsmith

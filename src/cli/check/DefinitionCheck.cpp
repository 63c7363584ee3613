#include "cli/check/DefinitionCheck.h"

#include <map>

#include "cli/check/ChartMarkers.h"
#include "cli/check/DefinitionFormat.h"
#include "cli/check/SourceCheck.h"
#include "cli/check/Words.h"
#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "metadata/MetadataStore.h"
#include "runtime/Strings.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::cli {
namespace {

constexpr std::int32_t kFirstRow = 2;
/// How sentences end about what makes a load remove the row.
constexpr const char* kRemoved = ", so the next refresh removes this definition.";

/// The walk over the rows of one sheet.
class DefinitionCheck {
 public:
  DefinitionCheck(xlsx::Workbook& book, xlsx::Worksheet& sheet)
      : book_(book), sheet_(sheet), markers_(book) {}

  std::vector<CheckedDefinition> Run() {
    CheckHead();
    std::int32_t expected = kFirstRow;
    for (std::int32_t row = kFirstRow - 1; (row = sheet_.NextRowAt(row, 1)) != 0;) {
      const std::string text = TextAt(row);
      if (text.empty()) continue;
      CheckedDefinition& definition = Add(row);
      if (row > expected) {
        Report(definition, FindingKind::kUnread,
               "This definition is never read, because " + Place(expected) + " is blank and ends the list.");
      } else {
        ++expected;
      }
      CheckRow(definition, text);
    }
    return std::move(definitions_);
  }

 private:
  std::string TextAt(std::int32_t row) { return runtime::CStr(GetCellValue(sheet_, row, 1, cell::kString)); }
  std::string Place(std::int32_t row) const { return CellText(sheet_.SheetName(), row, 1); }
  CheckedDefinition& Add(std::int32_t row) {
    CheckedDefinition& definition = definitions_.emplace_back();
    definition.place = Place(row);
    return definition;
  }
  static void Report(CheckedDefinition& definition, FindingKind kind, std::string sentence) {
    definition.findings.push_back({definition.place, kind, std::move(sentence)});
  }

  /// The first row is for the mark of the sheet.
  void CheckHead() {
    if (!TextAt(1).starts_with('<')) return;
    Report(Add(1), FindingKind::kUnread,
           "This definition is never read, because the list begins in " + Place(kFirstRow) + ".");
  }

  void CheckRow(CheckedDefinition& definition, const std::string& text) {
    auto document = NewXMLDocument();
    if (!document.loadXML(text)) {
      const dom::IXMLDOMParseError& error = document.parseError();
      Report(definition, FindingKind::kXml,
             "The text is not well-formed XML (" + error.reason + " in line " + std::to_string(error.line) +
                 ", character " + std::to_string(error.linepos) + ")" + kRemoved);
      return;
    }
    const auto chart = document.selectSingleNode("chart");
    if (!chart) {
      Report(definition, FindingKind::kXml,
             "The root element is " + Quoted(document.documentElement().tagName()) + " and not 'chart'" +
                 kRemoved);
      return;
    }
    definition.id = GetAttributeText(chart, "id");
    definition.name = GetAttributeText(chart, "name");
    definition.type = GetAttributeText(chart, "type");
    definition.table = GetAttributeText(chart, "table-id");
    CheckChart(definition);
    for (Findings more :
         {CheckFormat(chart, definition.place), CheckSource(book_, chart, definition.place)}) {
      definition.findings.insert(definition.findings.end(), more.begin(), more.end());
    }
  }

  /// The tie to the chart: an id that no earlier row has, and one chart that bears it.
  void CheckChart(CheckedDefinition& definition) {
    if (definition.id.empty()) {
      Report(definition, FindingKind::kId, std::string("The definition has no 'id'") + kRemoved);
      return;
    }
    definition.chartSheet = markers_.SheetOf(definition.id);
    if (definition.chartSheet.empty()) {
      Report(definition, FindingKind::kChart,
             "The next refresh removes this definition, because " + markers_.Absence(definition.id) + ".");
      return;
    }
    const auto [first, isNew] = rowsById_.emplace(runtime::UCase(definition.id), definition.place);
    if (!isNew) {
      Report(definition, FindingKind::kId,
             "The id " + Quoted(definition.id) + " is that of " + first->second + " already" + kRemoved);
    } else if (!IsReadable(definition)) {
      Report(definition, FindingKind::kChart, std::string("The chart can't be read") + kRemoved);
    }
  }

  /// A chart that is known by its data alone was read for that.
  static bool IsReadable(const CheckedDefinition& definition) {
    return ValueOr(false, [&] {
      if (const auto chart = FindChartObject(definition.id, definition.chartSheet))
        chart->SeriesCollection()->Count();
      return true;
    });
  }

  xlsx::Workbook& book_;
  xlsx::Worksheet& sheet_;
  ChartMarkers markers_;
  std::map<std::string, std::string> rowsById_;  ///< cells of definitions by their upper-cased ids
  std::vector<CheckedDefinition> definitions_;
};

}  // namespace

std::vector<CheckedDefinition> CheckDefinitions(xlsx::Workbook& book) {
  const auto sheet = book.FindWorksheet(kDefinitionsSheet);
  if (!sheet) return {};
  return DefinitionCheck(book, *sheet).Run();
}

}  // namespace plotsmith::cli

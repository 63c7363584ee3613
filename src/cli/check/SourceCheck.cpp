#include "cli/check/SourceCheck.h"

#include <algorithm>
#include <set>
#include <vector>

#include "cli/check/ColumnCells.h"
#include "cli/check/DefinitionFormat.h"
#include "cli/check/TableCheck.h"
#include "cli/check/Words.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "metadata/StrategicBuckets.h"
#include "runtime/Strings.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::cli {
namespace {

using dom::IXMLDOMElement;
using dom::IXMLDOMNodeList;

constexpr const char* kBucketType = "strategic bucket";
constexpr const char* kBrokenBucketType = "column";

/// Returns the existing tables as the end of a sentence.
std::string OtherTables() { return ThereAre(LoadedTableIds()); }

std::string Headings(const IXMLDOMNodeList& columns) {
  std::vector<std::string> names;
  for (const IXMLDOMElement& column : columns) names.push_back(GetAttributeText(column, "name"));
  return Listed(names);
}

/// Checks a definition. Each method finds one kind of problem.
class SourceCheck {
 public:
  SourceCheck(xlsx::Workbook& book, const IXMLDOMElement& chart, const std::string& place,
              NamedColumns& named)
      : book_(book), chart_(chart), place_(place), named_(named), type_(GetAttributeText(chart, "type")) {}

  Findings Run() {
    for (const ColumnGroup& group : ColumnGroups()) CheckGroup(group);
    CheckValuesHaveASource();
    CheckHeadingsInColumns();
    table_ = FindTable("table-id", "table");
    if (table_) {
      columns_ = Columns();
      CheckTableServes();
      for (const ColumnGroup& group : ColumnGroups()) CheckColumns(group);
    }
    CheckBucketTable();
    return std::move(findings_);
  }

 private:
  void Report(FindingKind kind, std::string sentence) {
    findings_.push_back({place_, kind, std::move(sentence)});
  }

  std::string Subject() const { return Capitalized(ChartOf(type_)); }
  IXMLDOMElement Group(const char* element) const { return chart_.selectSingleNode(element); }
  std::string HeadingsIn(const char* element) const {
    const auto group = Group(element);
    return group ? GetAttributeText(group, "headings-in") : "";
  }

  /// Checks that an element exists if the type needs it, and that it names the right number of columns.
  void CheckGroup(const ColumnGroup& group) {
    const std::string quoted = Quoted(group.element);
    const auto element = Group(group.element);
    if (!element) {
      if (group.IsNeededFor(type_)) {
        Report(FindingKind::kFormat, Subject() + " needs the element " + quoted + ".");
      }
      return;
    }
    const std::string headingsIn = GetAttributeText(element, "headings-in");
    if (!group.IsReadFor(type_) || headingsIn == "none") return;
    const auto columns = element.selectNodes("column");
    const std::size_t count = columns.size();
    if (count == 0) {
      Report(FindingKind::kFormat, "The element " + quoted + " names no column.");
    } else if (count > 1 && headingsIn != "columns") {
      Report(FindingKind::kFormat, "The element " + quoted +
                                       (headingsIn == "rows" ? " with headings in rows" : "") +
                                       " needs exactly one column, but names " + std::to_string(count) + ".");
    }
    std::set<std::string> names;
    for (const IXMLDOMElement& column : columns) {
      const std::string name = GetAttributeText(column, "name");
      // One column is enough for headings in rows, and another one was reported above.
      if (names.insert(runtime::UCase(name)).second || headingsIn != "columns") continue;
      Report(FindingKind::kColumn,
             "The element " + quoted + " names the column " + Quoted(name) + " twice, ignoring case.");
    }
  }

  /// Checks that values come from the element `values`, or from number columns in `categories` or `series`.
  void CheckValuesHaveASource() {
    const bool isPivot = type_ == "area" || type_ == "bar" || type_ == "column" || type_ == "pie";
    if (!isPivot || Group("values")) return;
    if (HeadingsIn("categories") == "columns" || HeadingsIn("series") == "columns") return;
    Report(FindingKind::kFormat,
           Subject() + " needs the element 'values', unless its headings are in columns.");
  }

  void CheckHeadingsInColumns() {
    const bool categories = HeadingsIn("categories") == "columns", series = HeadingsIn("series") == "columns";
    if (categories && series) {
      Report(FindingKind::kFormat,
             "Categories and series both have their headings in columns, but only one of them can.");
    }
    if ((categories || series) && (type_ == "bubble" || type_ == kBucketType)) {
      Report(FindingKind::kFormat,
             Subject() + " can't have headings in columns; 'headings-in' must be rows, or none for series.");
    }
  }

  /// Returns the table that an attribute names, or Nothing and a finding if it doesn't exist.
  IXMLDOMElement FindTable(const char* attribute, const std::string& noun) {
    const std::string id = GetAttributeText(chart_, attribute);
    if (id.empty()) {
      Report(FindingKind::kTable, "The definition has no " + Quoted(attribute) + "; " + OtherTables() + ".");
    } else if (CollectionHasKey(id, colTables)) {
      return colTables->Item(id).selectSingleNode("table");
    } else {
      const std::string why = WhyNot(id);
      const bool tellsOfSheets = noun == "table" && why.empty();
      Report(FindingKind::kTable,
             "There is no " + noun + " " + Quoted(id) + why + "; " + OtherTables() +
                 (tellsOfSheets ? "; a sheet is a table only if its name is exactly one of Data1 to Data5."
                                : "."));
    }
    return {};
  }

  /// Explains why a data sheet is no table: it has no data.
  std::string WhyNot(const std::string& id) const {
    const auto sheet = book_.FindWorksheet(id);
    return id.starts_with("Data") && sheet && sheet->UsedCells().row2 < 2
               ? ", because its sheet has no row of data"
               : "";
  }

  void CheckTableServes() {
    const auto quoted = [&] { return "The table " + Quoted(GetAttributeText(table_, "id")); };
    if (!TableArea(table_).HasData()) Report(FindingKind::kTable, quoted() + " has no row of data.");
    for (const char* kind : {"label", "number"}) {
      if (!table_.selectSingleNode((std::string(kind) + "-column").c_str())) {
        Report(FindingKind::kTable, quoted() + " has no " + kind + " column, which a chart needs; it has " +
                                        Headings(table_.childElements()) + ".");
      }
    }
  }

  /// Checks that the table has the columns of a group, and numbers in number columns. A refresh searches the
  /// columns of all groups for every type.
  void CheckColumns(const ColumnGroup& group) {
    const auto element = Group(group.element);
    if (!element) return;
    const bool takesNumbers = group.content == ColumnGroup::Content::kNumbers;
    const bool numbers = group.IsReadFor(type_) && (takesNumbers || HeadingsIn(group.element) == "columns");
    for (const IXMLDOMElement& column : element.selectNodes("column")) {
      const std::string name = GetAttributeText(column, "name");
      if (name.empty()) continue;
      if (const auto found = FindColumn(columns_, name)) {
        if (numbers && found.tagName() == "label-column") CheckNumbers(group, found);
      } else {
        Report(FindingKind::kColumn, "The table " + Quoted(GetAttributeText(table_, "id")) +
                                         " has no column " + Quoted(name) + " for " + Quoted(group.element) +
                                         "; it has " + Headings(table_.childElements()) +
                                         RenamingHint(column) + ".");
      }
    }
  }

  /// Returns the end of a sentence about a missing column: how to update the name if the column was probably
  /// renamed.
  std::string RenamingHint(const IXMLDOMElement& missing) {
    const std::string renamed = ColumnInPlaceOf(missing);
    if (renamed.empty()) return "";
    return "; " + Quoted(renamed) +
           " is in its place. If that is its new name, plotsmith rename-columns BOOK"
           " --table " +
           ShellWord(GetAttributeText(table_, "id")) + " " +
           ShellWord(GetAttributeText(missing, "name") + "=" + renamed) + " renames it in the charts";
  }

  /// Returns the heading at the position where the column was at the last refresh. It is "" if there is none,
  /// or if the definition names that column itself.
  std::string ColumnInPlaceOf(const IXMLDOMElement& missing) {
    const std::int32_t drawnAt = StoredNumber(missing, "worksheet-column-number");
    const std::int32_t drawnLeft = StoredNumber(chart_, "table-left-column");
    if (drawnAt == 0 || drawnLeft == 0) return "";
    const std::int32_t number = drawnAt + TableArea(table_).leftColumn - drawnLeft;
    for (const IXMLDOMElement& column : columns_) {
      if (GetAttributeLong(column, "worksheet-column-number") != number) continue;
      const std::string name = GetAttributeText(column, "name");
      // The own definition isn't loaded if only the definitions are checked.
      const bool isNamed = ColumnsNamedIn(chart_).contains(runtime::UCase(name)) ||
                           named_.Contains(GetAttributeText(chart_, "table-id"), name);
      return isNamed ? "" : name;
    }
    return "";
  }

  /// Returns a number that the last refresh has stored in the definition, or 0.
  static std::int32_t StoredNumber(const IXMLDOMElement& element, const char* attribute) {
    return ValueOr(std::int32_t{0}, [&] { return GetAttributeLong(element, attribute); });
  }

  /// Returns the columns, label columns first, as in a refresh.
  IXMLDOMNodeList Columns() const {
    IXMLDOMNodeList columns = table_.childElements();
    std::stable_partition(columns.begin(), columns.end(),
                          [](const IXMLDOMElement& column) { return column.tagName() == "label-column"; });
    return columns;
  }

  /// Reports the cell that makes a required number column a label column. Dates count as numbers here.
  void CheckNumbers(const ColumnGroup& group, const IXMLDOMElement& column) {
    const TableArea area(table_);
    const auto sheet = book_.FindWorksheet(area.sheet);
    if (!sheet) return;
    const std::int32_t number = GetAttributeLong(column, "worksheet-column-number");
    const ColumnCells cells(*sheet, area, number);
    if (cells.LabelRow() == 0) return;
    findings_.push_back({CellText(area.sheet, cells.LabelRow(), number), FindingKind::kColumn,
                         "The column " + Quoted(GetAttributeText(column, "name")) +
                             " isn't a number column, which " + Quoted(group.element) +
                             " needs, because this cell contains " + cells.LabelCell() +
                             ", which counts as 0."});
  }

  void CheckBucketTable() {
    if (GetAttributeText(chart_, "strategic-bucket-table-id").empty() && type_ != kBucketType) return;
    const auto bucketTable = FindTable("strategic-bucket-table-id", "bucket table");
    if (!bucketTable || !table_) return;
    const std::string id = GetAttributeText(bucketTable, "id"), quoted = "The table " + Quoted(id);
    if (id == GetAttributeText(table_, "id")) {
      Report(FindingKind::kTable, quoted + " can't be the bucket table of its own chart.");
    } else if (GetAttributeText(bucketTable, "is-bucket-candidate") != "yes") {
      Report(FindingKind::kTable, quoted +
                                      " can't be a bucket table, which is a range table with a label column "
                                      "followed by a number column.");
    } else {
      CheckBucketColumn(bucketTable, "bucket-name-column", "label");
      CheckBucketColumn(bucketTable, "bucket-value-column", "number");
      if (type_ == kBucketType || type_ == kBrokenBucketType) CheckBucketCount(id);
    }
  }

  /// The chart refers to the names of its buckets with a single letter for the last column, beginning with E.
  /// After Z come six characters that aren't letters, then lower-case letters, which are read as A to Z. If
  /// the drawing of a chart has failed for this reason, the chart is read back as a column chart with a
  /// bucket table.
  void CheckBucketCount(const std::string& id) {
    constexpr std::int32_t kMost = 22, kFirstMisnamed = 29, kLastMisnamed = 54;
    if (HostVersion(oApplication) <= kLastClassicVersion) return;
    const std::int32_t count = GetStrategicBuckets(colTables->Item(id))->Count();
    if (count <= kMost) return;
    const std::string start = "The bucket table " + Quoted(id) + " has " + std::to_string(count) +
                              " buckets, but a chart can show the names of at most " + std::to_string(kMost);
    const std::string mend = "; keep at most " + std::to_string(kMost) + " buckets";
    if (count < kFirstMisnamed || count > kLastMisnamed) {
      Report(FindingKind::kTable,
             start + ", so its drawing stops and leaves a column chart without a legend" + mend +
                 ", draw the chart again with plotsmith modify BOOK CHART --type 'strategic bucket', and "
                 "switch on its legend in a spreadsheet program; the next refresh draws the legend.");
    } else if (type_ == kBucketType) {
      Report(FindingKind::kTable, start + ", so the columns have wrong names" + mend + ".");
    }
  }

  /// Checks that the source table has a column with the same heading and kind.
  void CheckBucketColumn(const IXMLDOMElement& bucketTable, const char* attribute, const std::string& kind) {
    const std::string heading = GetAttributeText(bucketTable, attribute);
    const auto columns = table_.selectNodes((kind + "-column").c_str());
    if (FindColumn(columns, heading)) return;
    Report(FindingKind::kTable, "The bucket table " + Quoted(GetAttributeText(bucketTable, "id")) +
                                    " doesn't match the table " + Quoted(GetAttributeText(table_, "id")) +
                                    ", which has no " + kind + " column " + Quoted(heading) + "; its " +
                                    kind + " columns are " + Headings(columns) + ".");
  }

  xlsx::Workbook& book_;
  const IXMLDOMElement& chart_;
  const std::string& place_;
  NamedColumns& named_;
  std::string type_;
  IXMLDOMElement table_;     ///< The source table, or Nothing.
  IXMLDOMNodeList columns_;  ///< The columns of the source table.
  Findings findings_;
};

}  // namespace

Findings CheckSource(xlsx::Workbook& book, const IXMLDOMElement& chart, const std::string& place,
                     NamedColumns& named) {
  return SourceCheck(book, chart, place, named).Run();
}

Findings CheckSources(xlsx::Workbook& book, const IXMLDOMElement& chart, NamedColumns& named) {
  Findings findings = CheckSource(book, chart, "", named);
  Append(findings, CheckUsedCells(book, chart));
  return findings;
}

}  // namespace plotsmith::cli

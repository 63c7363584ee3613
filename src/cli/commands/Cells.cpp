#include "cli/commands/Cells.h"

#include <CLI/CLI.hpp>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

#include "cli/Failures.h"
#include "cli/Session.h"
#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Limits.h"
#include "xlsx/sheet/IsoDate.h"

namespace plotsmith::cli {
namespace {

using Json = nlohmann::ordered_json;
using Kind = excel::CellValue::Kind;

Json ValueOf(const excel::CellValue& value) {
  switch (value.kind) {
    case Kind::kEmpty:
      return nullptr;
    case Kind::kNumber:
    case Kind::kDate:
      return value.number;
    case Kind::kBoolean:
      return value.number != 0;
    case Kind::kError:
    case Kind::kText:
      break;
  }
  return std::string(value.text);
}

/// Adds the ISO 8601 text of a date, time or duration to a number, according to its format. Other values
/// don't change.
Json WithIsoText(Json value, xlsx::Workbook& book, std::uint32_t style) {
  if (!value.is_number()) return value;
  const double number = value.get<double>();
  const std::string iso = xlsx::IsoText(number, book.Styles().Format(style).FieldsOf(number), book.Dates());
  if (iso.empty()) return value;
  return {{"number", number}, {"iso", iso}};
}

/// Returns a value for a line of tab-separated values.
std::string Flat(const Json& value) {
  if (value.is_null()) return {};
  if (value.is_boolean()) return value.get<bool>() ? "TRUE" : "FALSE";
  if (value.is_number()) return runtime::NumberText(value.get<double>());
  std::string text = value.get<std::string>();
  for (char& c : text) {
    if (c == '\t' || c == '\n' || c == '\r') c = ' ';
  }
  return text;
}

void PrintLine(const Json& cells, std::ostream& out) {
  for (std::size_t i = 0; i < cells.size(); ++i) out << (i > 0 ? "\t" : "") << Flat(cells[i]);
  out << '\n';
}

/// Returns a range in which whole columns end at the last used row, and whole rows at the last used column.
xlsx::CellRange UsedPart(xlsx::CellRange range, xlsx::Worksheet& sheet) {
  const xlsx::CellRange used = sheet.UsedCells();
  if (range.RowCount() == xlsx::limits::kRows) range.row2 = used.row2;
  if (range.ColumnCount() == xlsx::limits::kColumns) range.column2 = used.column2;
  return range;
}

}  // namespace

void CellsCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_option("RANGE", range_, "The range, such as 'Sheet1!A1:D9'")->required();
  verb.add_flag("--value", value_, "Print values instead of displayed texts");
  verb.add_flag(
      "--json", json_,
      "Print JSON, a list of rows; the values of dates and times have a number and a text in ISO 8601");
}

int CellsCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  const auto range = xlsx::ParseSheetRange(range_);
  if (!range)
    throw CommandError(exit_code::kUsage, "\"" + range_ + "\" isn't a range such as 'Sheet1!A1:D9'.");
  const auto sheet = session.Book().FindWorksheet(range->sheet);
  if (!sheet) {
    std::vector<std::string> names;
    for (const auto& worksheet : session.Book().Tabs().Worksheets()) names.push_back(worksheet->Name());
    throw NotInBook(book_, "worksheet", range->sheet, names);
  }

  Json rows = Json::array();
  std::string scratch;
  const auto cellAt = [&](std::int32_t row, std::int32_t column) -> Json {
    if (!value_) return std::string(sheet->CellTextAt(row, column, scratch));
    Json value = ValueOf(sheet->Stored(row, column));
    return json_ ? WithIsoText(std::move(value), session.Book(), sheet->StyleAt(row, column)) : value;
  };
  try {
    const xlsx::CellRange shown = UsedPart(range->range, *sheet);
    for (std::int32_t row = shown.row1; row <= shown.row2; ++row) {
      Json cells = Json::array();
      for (std::int32_t column = shown.column1; column <= shown.column2; ++column) {
        cells.push_back(cellAt(row, column));
      }
      if (json_) {
        rows.push_back(std::move(cells));
      } else {
        PrintLine(cells, streams.out);
      }
    }
  } catch (const runtime::RuntimeError&) {
    session.Finish();  // This reports damage.
    throw;
  }
  if (json_) streams.out << rows.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
  return session.Finish();
}

}  // namespace plotsmith::cli

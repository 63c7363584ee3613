#include "xlsx/chart/rules/SeriesData.h"

#include <optional>

#include "runtime/Strings.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Limits.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/book/CellSource.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartTypes.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::CellValue;
using runtime::Variant;

namespace {

/// Returns the text of a formula that is only a quoted text: a "b" for ="a ""b""".
std::optional<std::string> QuotedText(std::string_view formula) {
  if (!formula.starts_with("=\"")) return std::nullopt;
  std::string_view rest = formula.substr(1);
  std::string text = runtime::TakeQuoted(rest);
  if (formula.substr(1) != runtime::InQuotes(text, '"')) return std::nullopt;
  return text;
}

struct Source {
  std::shared_ptr<CellSource> sheet;
  CellRange range;
  std::string formula;

  std::size_t CellCount() const { return static_cast<std::size_t>(range.CellCount()); }
};

const char* PropertyName(SeriesData which) {
  switch (which) {
    case SeriesData::kName:
      return "Name";
    case SeriesData::kCategories:
      return "XValues";
    case SeriesData::kBubbleSizes:
      return "BubbleSizes";
    case SeriesData::kValues:
      break;
  }
  return "Values";
}

/// Finds the cells that a formula, without its equals sign, refers to. Returns nothing if no sheet has them,
/// or if they are too many for a cache.
std::optional<Source> FindCells(ChartPart& part, std::string_view formula) {
  const auto range = ParseSheetRange(formula);
  auto sheet = range ? part.Book().FindCells(range->sheet) : nullptr;
  if (!sheet || range->range.CellCount() > limits::kCachePoints) return std::nullopt;
  const std::string name = sheet->SheetName();
  return Source{std::move(sheet), range->range, SheetRangeAddress({name, range->range})};
}

Source FindSource(ChartPart& part, SeriesData which, const std::string& reference) {
  auto source =
      reference.starts_with('=') ? FindCells(part, std::string_view(reference).substr(1)) : std::nullopt;
  if (!source) throw CantSet(PropertyName(which), "Series");
  return *std::move(source);
}

/// Finds the cells of a series' data if the part has no cache of them.
std::optional<Source> FindUncached(ChartPart& part, pugi::xml_node data) {
  for (const pugi::xml_node& reference : data.children()) {
    const auto formula = xml::Child(reference, "f");
    if (!formula) continue;
    for (const char* cache : {"strCache", "numCache", "multiLvlStrCache"}) {
      if (xml::Child(reference, cache)) return std::nullopt;
    }
    return FindCells(part, xml::Text(formula));
  }
  return std::nullopt;
}

/// Calls `visit` with each cell's index (from 0), address and value.
template <class Visit>
void ForEachCell(const Source& source, const Visit& visit) {
  std::size_t index = 0;
  for (std::int32_t row = source.range.row1; row <= source.range.row2; ++row) {
    for (std::int32_t column = source.range.column1; column <= source.range.column2; ++column) {
      visit(index++, row, column, source.sheet->Stored(row, column));
    }
  }
}

bool HoldsText(const Source& source) {
  bool text = false;
  ForEachCell(source, [&](std::size_t, std::int32_t, std::int32_t, const CellValue& value) {
    text |= value.kind == CellValue::Kind::kText;
  });
  return text;
}

void FillTexts(pugi::xml_node reference, const Source& source) {
  CacheWriter cache(schema::Ensure(reference, "strCache"), source.CellCount());
  std::string scratch;
  ForEachCell(source, [&](std::size_t index, std::int32_t row, std::int32_t column, const CellValue& value) {
    if (value.kind == CellValue::Kind::kEmpty) return;
    cache.Add(index, source.sheet->CellTextAt(row, column, scratch));
  });
}

void FillNumbers(pugi::xml_node reference, const Source& source) {
  const pugi::xml_node numbers = schema::Ensure(reference, "numCache");
  xml::SetText(schema::Ensure(numbers, "formatCode"),
               source.sheet->NumberFormatAt(source.range.row1, source.range.column1));
  CacheWriter cache(numbers, source.CellCount());
  ForEachCell(source, [&](std::size_t index, std::int32_t, std::int32_t, const CellValue& value) {
    if (value.kind == CellValue::Kind::kEmpty) return;
    const bool number = value.kind == CellValue::Kind::kNumber || value.kind == CellValue::Kind::kDate;
    // Excel draws a text among numbers as 0.
    cache.Add(index, number                                  ? xml::Number(value.number)
                     : value.kind == CellValue::Kind::kError ? std::string(value.text)
                                                             : "0");
  });
}

/// Empties the element of the series that holds the data, and returns it.
pugi::xml_node Emptied(pugi::xml_node series, std::string_view local) {
  pugi::xml_node data = schema::Ensure(series, local);
  data.remove_children();
  return data;
}

/// Returns true if the chart has room for a cache of the source. The cache serves programs that don't read
/// the cells. If a chart has too many points, its series only refer to cells, which is enough for Excel.
bool HasRoom(ChartPart& part, const Source& source) {
  constexpr std::int64_t kReferences =
      std::int64_t{3} * 255;  // 3 for each of the 255 series that Excel allows
  if (source.range.CellCount() <= limits::kCachePoints / kReferences) return true;
  std::size_t points = source.CellCount();
  for (const SeriesRef& entry : part.Series()) points += CachedPoints(entry->node);
  return points <= limits::kCachePoints;
}

void PointAt(ChartPart& part, pugi::xml_node data, const Source& source, bool texts) {
  pugi::xml_node reference = schema::Ensure(data, texts ? "strRef" : "numRef");
  xml::SetText(schema::Ensure(reference, "f"), source.formula);
  if (!HasRoom(part, source)) return;
  if (texts) {
    FillTexts(reference, source);
  } else {
    FillNumbers(reference, source);
  }
}

std::map<std::size_t, std::string> TextsOfCells(const Source& source) {
  std::map<std::size_t, std::string> texts;
  std::string scratch;
  ForEachCell(source, [&](std::size_t index, std::int32_t row, std::int32_t column, const CellValue& value) {
    if (value.kind != CellValue::Kind::kEmpty) texts[index] = source.sheet->CellTextAt(row, column, scratch);
  });
  return texts;
}

}  // namespace

std::map<std::size_t, std::string> DataTexts(ChartPart& part, pugi::xml_node data) {
  const auto source = FindUncached(part, data);
  return source ? TextsOfCells(*source) : CachedTexts(data);
}

std::size_t DataPoints(ChartPart& part, pugi::xml_node data) {
  const auto source = FindUncached(part, data);
  return source ? source->CellCount() : PointCount(data);
}

std::string SourceText(ChartPart& part, pugi::xml_node tx) {
  constexpr std::size_t kMostCells = 1000;  // A chart may have many series that refer to large ranges.
  if (xml::Child(tx, "v")) return CachedText(tx);
  const auto cells = FindUncached(part, tx);
  if (cells && cells->CellCount() > kMostCells) return {};
  std::string all;
  for (const auto& [point, text] : cells ? TextsOfCells(*cells) : CachedTexts(tx)) {
    all += (all.empty() ? "" : " ") + text;
  }
  return all;
}

std::string SeriesName(ChartPart& part, pugi::xml_node series) {
  return SourceText(part, xml::Child(series, "tx"));
}

std::string ShownName(ChartPart& part, pugi::xml_node series) {
  if (xml::Child(series, "tx")) return SeriesName(part, series);
  // The number comes from the index of the series, not from its position in the file.
  return "Series" + std::to_string(schema::IntegerVal(series, "idx", 0) + 1);
}

void SetSeriesData(ChartPart& part, pugi::xml_node series, SeriesData which, const Variant& value) {
  const auto* text = value.If<std::string>();
  if (text == nullptr) throw CantSet(PropertyName(which), "Series");
  part.FollowMovedRows();  // References that are set now are up to date.
  const auto name = which != SeriesData::kName ? std::nullopt
                    : text->starts_with('=')   ? QuotedText(*text)
                                               : std::optional(*text);
  if (name) {
    SetCachedText(Emptied(series, "tx"), *name);
  } else {
    const Source source = FindSource(part, which, *text);
    const ChartTypeEntry* type = TypeOfGroup(series.parent());
    const bool hasX = type != nullptr && type->HasXValues();
    switch (which) {
      case SeriesData::kName:
        PointAt(part, Emptied(series, "tx"), source, true);
        break;
      case SeriesData::kCategories:
        PointAt(part, Emptied(series, hasX ? "xVal" : "cat"), source, HoldsText(source));
        break;
      case SeriesData::kValues:
        PointAt(part, Emptied(series, hasX ? "yVal" : "val"), source, false);
        break;
      case SeriesData::kBubbleSizes:
        PointAt(part, Emptied(series, "bubbleSize"), source, false);
        break;
    }
  }
  part.MarkChanged();
}

pugi::xml_node FindValues(pugi::xml_node series) {
  const auto values = xml::Child(series, "val");
  return values ? values : xml::Child(series, "yVal");
}

}  // namespace plotsmith::xlsx

#include "xlsx/chart/SeriesData.h"

#include <algorithm>
#include <optional>

#include "runtime/RuntimeError.h"
#include "xlsx/Limits.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/chart/ChartTextLook.h"
#include "xlsx/chart/ChartTypeRules.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/XString.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::CellValue;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

struct Source {
  std::shared_ptr<Worksheet> sheet;
  CellRange range;
  std::string formula;
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

RuntimeError CantSet(SeriesData which) {
  return RuntimeError(runtime::error::kApplication, std::string("Unable to set the ") + PropertyName(which) +
                                                        " property of the Series class");
}

Source FindSource(ChartPart& part, SeriesData which, const std::string& reference) {
  const auto range =
      reference.starts_with('=') ? ParseSheetRange(std::string_view(reference).substr(1)) : std::nullopt;
  auto sheet = range ? part.Book().FindWorksheet(range->sheet) : nullptr;
  if (!sheet || range->range.CellCount() > limits::kCachePoints) throw CantSet(which);
  const std::string name = sheet->SheetName();
  return {std::move(sheet), range->range, SheetRangeAddress({name, range->range})};
}

/// Calls `visit` with the number of each cell, from 0, its place and its value.
template <class Visit>
void ForEachCell(const Source& source, const Visit& visit) {
  int index = 0;
  for (std::int32_t row = source.range.row1; row <= source.range.row2; ++row) {
    for (std::int32_t column = source.range.column1; column <= source.range.column2; ++column) {
      visit(index++, row, column, source.sheet->Stored(row, column));
    }
  }
}

bool HoldsText(const Source& source) {
  bool text = false;
  ForEachCell(source, [&](int, std::int32_t, std::int32_t, const CellValue& value) {
    text |= value.kind == CellValue::Kind::kText;
  });
  return text;
}

void AddPoint(pugi::xml_node cache, const std::string& pointName, const std::string& valueName, int index,
              const std::string& encoded) {
  // straight to the end, past the search for the place: points come last, and there may be many
  pugi::xml_node point = cache.append_child(pointName.c_str());
  point.append_attribute("idx").set_value(index);
  point.append_child(valueName.c_str()).append_child(pugi::node_pcdata).set_value(encoded.c_str());
}

void FillTexts(pugi::xml_node reference, const Source& source) {
  pugi::xml_node cache = schema::Ensure(reference, "strCache");
  const std::string prefix(xml::Prefix(cache.name()));
  schema::SetVal(cache, "ptCount", std::to_string(source.range.CellCount()));
  std::string scratch;
  ForEachCell(source, [&](int index, std::int32_t row, std::int32_t column, const CellValue& value) {
    if (value.kind == CellValue::Kind::kEmpty) return;
    const std::string_view text = source.sheet->CellTextAt(row, column, scratch);
    AddPoint(cache, prefix + "pt", prefix + "v", index, EncodeXString(text));
  });
}

void FillNumbers(pugi::xml_node reference, const Source& source) {
  pugi::xml_node cache = schema::Ensure(reference, "numCache");
  const std::string prefix(xml::Prefix(cache.name()));
  xml::SetText(schema::Ensure(cache, "formatCode"),
               source.sheet->NumberFormatAt(source.range.row1, source.range.column1));
  schema::SetVal(cache, "ptCount", std::to_string(source.range.CellCount()));
  ForEachCell(source, [&](int index, std::int32_t, std::int32_t, const CellValue& value) {
    if (value.kind == CellValue::Kind::kEmpty) return;
    const bool number = value.kind == CellValue::Kind::kNumber || value.kind == CellValue::Kind::kDate;
    // a text among numbers is drawn as 0
    const std::string text = number                                  ? xml::Number(value.number)
                             : value.kind == CellValue::Kind::kError ? xml::EncodeText(value.text)
                                                                     : "0";
    AddPoint(cache, prefix + "pt", prefix + "v", index, text);
  });
}

/// The element of the series that holds the data, emptied.
pugi::xml_node Emptied(pugi::xml_node series, std::string_view local) {
  pugi::xml_node data = schema::Ensure(series, local);
  data.remove_children();
  return data;
}

void PointAt(pugi::xml_node data, const Source& source, bool texts) {
  pugi::xml_node reference = schema::Ensure(data, texts ? "strRef" : "numRef");
  xml::SetText(schema::Ensure(reference, "f"), source.formula);
  if (texts) {
    FillTexts(reference, source);
  } else {
    FillNumbers(reference, source);
  }
}

pugi::xml_node CacheOf(pugi::xml_node data) {
  const auto literal = schema::Find(data, "numLit");
  return literal ? literal : xml::Child(data, "numRef", "numCache");
}

std::size_t PointsIn(pugi::xml_node cache) {
  const auto count = xml::ParseInteger(schema::Val(cache, "ptCount")).value_or(0);
  return static_cast<std::size_t>(std::clamp<long long>(count, 0, limits::kCachePoints));
}

}  // namespace

std::string SeriesText(pugi::xml_node series) {
  const auto tx = schema::Find(series, "tx");
  if (const auto literal = schema::Find(tx, "v")) return xml::Text(literal);
  return TitleText(series);
}

void SetSeriesData(ChartPart& part, pugi::xml_node series, SeriesData which, const Variant& value) {
  const auto* text = value.If<std::string>();
  if (text == nullptr) throw CantSet(which);
  part.CatchUp();  // what is set now is as of now
  if (which == SeriesData::kName && !text->starts_with('=')) {
    xml::SetText(schema::Ensure(Emptied(series, "tx"), "v"), *text);
  } else {
    const Source source = FindSource(part, which, *text);
    const ChartTypeEntry* type = TypeOfGroup(series.parent());
    const bool hasX = type != nullptr && type->HasXValues();
    switch (which) {
      case SeriesData::kName:
        PointAt(Emptied(series, "tx"), source, true);
        break;
      case SeriesData::kCategories:
        PointAt(Emptied(series, hasX ? "xVal" : "cat"), source, HoldsText(source));
        break;
      case SeriesData::kValues:
        PointAt(Emptied(series, hasX ? "yVal" : "val"), source, false);
        break;
      case SeriesData::kBubbleSizes:
        PointAt(Emptied(series, "bubbleSize"), source, false);
        break;
    }
  }
  part.MarkChanged();
}

pugi::xml_node FindValues(pugi::xml_node series) {
  const auto values = schema::Find(series, "val");
  return values ? values : schema::Find(series, "yVal");
}

std::vector<Variant> CachedNumbers(pugi::xml_node data) {
  const auto cache = CacheOf(data);
  std::vector<Variant> numbers(PointsIn(cache));
  for (const pugi::xml_node& point : xml::Children(cache, "pt")) {
    const auto index = static_cast<unsigned long long>(xml::IntegerAttribute(point, "idx", -1));
    const auto number = xml::ParseDouble(xml::Text(xml::Child(point, "v")));
    if (index < numbers.size() && number) numbers[index] = *number;
  }
  return numbers;
}

std::size_t PointCount(pugi::xml_node series) { return PointsIn(CacheOf(FindValues(series))); }

}  // namespace plotsmith::xlsx

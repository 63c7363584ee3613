#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "render/model/ChartReader.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/book/CellSource.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;
using excel::CellValue;

namespace {

constexpr std::string_view kUnavailable = "#N/A";
constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

/// Returns how many points of a cache may be read if it claims to have `claimed` points. Adds a note if this
/// is fewer.
std::size_t Admitted(ReadingContext& context, long long claimed) {
  const auto wanted = static_cast<std::size_t>(std::max(claimed, 0LL));
  const std::size_t count = std::min({wanted, kMostPoints, context.pointsLeft});
  context.pointsLeft -= count;
  if (count < wanted) {
    const std::string sentence = "The chart has more points than are drawn; the rest is left out.";
    if (std::find(context.notes.begin(), context.notes.end(), sentence) == context.notes.end()) {
      context.notes.push_back(sentence);
    }
  }
  return count;
}

/// The cells of a reference without a cache.
struct Cells {
  std::shared_ptr<xlsx::CellSource> sheet;
  xlsx::CellRange range;

  template <class Visit>
  void ForEach(std::size_t count, const Visit& visit) const {
    std::size_t index = 0;
    for (std::int32_t row = range.row1; row <= range.row2; ++row) {
      for (std::int32_t column = range.column1; column <= range.column2; ++column) {
        if (index == count) return;
        visit(index++, row, column);
      }
    }
  }
};

std::optional<Cells> CellsOf(ReadingContext& context, pugi::xml_node reference) {
  const auto formula = xml::Child(reference, "f");
  if (!formula) return std::nullopt;
  const auto range = xlsx::ParseSheetRange(xml::Text(formula));
  auto sheet = range ? context.part.Book().FindCells(range->sheet) : nullptr;
  if (!sheet) return std::nullopt;
  return Cells{std::move(sheet), range->range};
}

std::vector<double> NumbersOfCells(ReadingContext& context, const Cells& cells,
                                   std::set<std::size_t>* unavailable) {
  std::vector<double> numbers(Admitted(context, cells.range.CellCount()), kNothing);
  cells.ForEach(numbers.size(), [&](std::size_t index, std::int32_t row, std::int32_t column) {
    const CellValue value = cells.sheet->Stored(row, column);
    const bool number = value.kind == CellValue::Kind::kNumber || value.kind == CellValue::Kind::kDate;
    if (number) {
      numbers[index] = value.number;
    } else if (value.kind == CellValue::Kind::kText) {
      numbers[index] = 0;  // Excel draws a text among numbers as 0.
    } else if (unavailable != nullptr && value.kind == CellValue::Kind::kError &&
               value.text == kUnavailable) {
      unavailable->insert(index);
    }
  });
  return numbers;
}

/// Reads the texts of a cache (c:strCache, c:numCache, c:multiLvlStrCache) or of literals.
std::vector<std::string> CachedCategories(ReadingContext& context, pugi::xml_node cache) {
  std::vector<std::string> texts(Admitted(context, schema::IntegerVal(cache, "ptCount", 0)));
  const bool numbers = xml::Is(cache, "numCache") || xml::Is(cache, "numLit");
  const FormatPointer format = numbers ? context.Format(xml::Text(xml::Child(cache, "formatCode"))) : nullptr;
  // If there are several levels, the first is the innermost one.
  const auto level = xml::Child(cache, "lvl");
  for (const pugi::xml_node& point : (level ? level : cache).children()) {
    if (!xml::Is(point, "pt")) continue;
    const auto index = static_cast<unsigned long long>(xml::IntegerAttribute(point, "idx", -1));
    if (index >= texts.size()) continue;
    std::string text = xlsx::CachedText(point);
    const auto number = numbers ? xml::ParseDouble(text) : std::nullopt;
    if (number) {
      text.clear();
      format->AppendNumber(text, *number, context.part.Book().Dates());
    }
    texts[index] = std::move(text);
  }
  return texts;
}

/// Reads the texts of the cells that a source refers to.
std::vector<std::string> CategoriesOfCells(ReadingContext& context, pugi::xml_node source) {
  const auto cells = CellsOf(context, source);
  if (!cells) return {};
  std::vector<std::string> texts(Admitted(context, cells->range.CellCount()));
  std::string scratch;
  cells->ForEach(texts.size(), [&](std::size_t index, std::int32_t row, std::int32_t column) {
    texts[index] = cells->sheet->CellTextAt(row, column, scratch);
  });
  return texts;
}

}  // namespace

std::vector<double> ReadNumbers(ReadingContext& context, pugi::xml_node data,
                                std::set<std::size_t>* unavailable) {
  const auto literal = xml::Child(data, "numLit");
  const auto reference = xml::Child(data, "numRef");
  const auto cache = literal ? literal : xml::Child(reference, "numCache");
  if (!cache) {
    const auto cells = CellsOf(context, reference);
    return cells ? NumbersOfCells(context, *cells, unavailable) : std::vector<double>();
  }
  std::vector<double> numbers(Admitted(context, schema::IntegerVal(cache, "ptCount", 0)), kNothing);
  for (const pugi::xml_node& point : cache.children()) {
    if (!xml::Is(point, "pt")) continue;
    const auto index = static_cast<unsigned long long>(xml::IntegerAttribute(point, "idx", -1));
    if (index >= numbers.size()) continue;
    const std::string text = xlsx::CachedText(point);
    const auto number = xml::ParseDouble(text);
    if (number && std::isfinite(*number)) numbers[index] = *number;
    if (!number && unavailable != nullptr && text == kUnavailable) unavailable->insert(index);
  }
  return numbers;
}

std::vector<std::string> ReadCategories(ReadingContext& context, pugi::xml_node data) {
  const auto source =
      data.find_child([](pugi::xml_node child) { return child.type() == pugi::node_element; });
  if (xml::Is(source, "strLit") || xml::Is(source, "numLit")) return CachedCategories(context, source);
  for (const char* name : {"strCache", "numCache", "multiLvlStrCache"}) {
    if (const auto cache = xml::Child(source, name)) return CachedCategories(context, cache);
  }
  return CategoriesOfCells(context, source);
}

std::vector<CategoryLevel> ReadOuterLevels(pugi::xml_node data, std::size_t categories) {
  std::vector<CategoryLevel> levels;
  bool isInnermost = true;
  for (auto& texts : xlsx::CachedLevels(data)) {
    if (std::exchange(isInnermost, false)) continue;
    CategoryLevel& level = levels.emplace_back();
    for (auto& [first, text] : texts) {
      if (first >= categories) break;
      if (!level.empty()) level.back().end = first;
      level.push_back({first, categories, std::move(text)});
    }
  }
  return levels;
}

}  // namespace plotsmith::render

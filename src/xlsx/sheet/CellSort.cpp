#include "xlsx/sheet/CellSort.h"

#include <algorithm>
#include <compare>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/Strings.h"

namespace plotsmith::xlsx {
namespace {

/// The characters that sort before letters, in Excel's order.
constexpr std::u16string_view kBeforeLetters = u"0123456789 !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>";
/// The letters as which U+00C0 to U+00FF are sorted; a space for a character that is sorted as itself.
constexpr std::u16string_view kBaseLetters =
    u"AAAAAAACEEEEIIII NOOOOO OUUUUY SAAAAAAACEEEEIIII NOOOOO OUUUUY Y";
constexpr char32_t kLetters = 0x100;  ///< above all weights of kBeforeLetters

char32_t Weight(char16_t unit) {
  const auto at = kBeforeLetters.find(unit);
  if (at != std::u16string_view::npos) return static_cast<char32_t>(at);
  if (unit >= 0xC0 && unit <= 0xFF && kBaseLetters[unit - 0xC0u] != u' ') unit = kBaseLetters[unit - 0xC0u];
  return kLetters + unit;
}

/// The sort keys of a text, the most significant first.
struct TextKey {
  std::u32string letters;  ///< without hyphens and apostrophes, ignoring case and accents
  std::u16string accents;  ///< the same with accents
  std::u16string marks;    ///< hyphens and apostrophes; texts without any come first
  std::u16string cases;    ///< 0 for a lower-case letter, 1 for an upper-case one

  auto operator<=>(const TextKey&) const = default;
};

TextKey KeyOf(std::string_view text, bool matchCase) {
  TextKey key;
  const std::u16string units = runtime::ToUtf16(text), upper = runtime::ToUtf16(runtime::UCase(text));
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char16_t unit = upper.size() == units.size() ? upper[i] : units[i];
    if (unit == u'-' || unit == u'\'') {
      key.marks.push_back(unit);
      continue;
    }
    key.letters.push_back(Weight(unit));
    key.accents.push_back(unit);
    if (matchCase) key.cases.push_back(unit == units[i] ? 1 : 0);
  }
  return key;
}

/// Returns a kind's position in Excel's order. Empty cells aren't included, because they come last in both
/// directions.
int Rank(const GridCell& cell) {
  using Kind = excel::CellValue::Kind;
  switch (cell.kind) {
    case Kind::kNumber:
    case Kind::kDate:
      return 0;
    case Kind::kText:
      return 1;
    case Kind::kBoolean:
      return 2;
    case Kind::kError:
    case Kind::kEmpty:
      break;
  }
  return 3;
}

struct Row {
  std::vector<GridCell> cells;
  bool empty;
  int rank;
  double number;
  TextKey text;

  bool IsBefore(const Row& other) const {
    if (rank != other.rank) return rank < other.rank;
    if (rank == 1) return text < other.text;
    return rank != 3 && number < other.number;  // All errors are equal.
  }
};

}  // namespace

void SortRows(CellGrid& grid, const CellRange& range, const SortOptions& options) {
  const std::int32_t last = std::min(range.row2, grid.RowCount());  // All cells below are empty.
  std::vector<Row> rows;
  for (std::int32_t row = range.row1; row <= last; ++row) {
    Row& taken = rows.emplace_back();
    for (std::int32_t column = range.column1; column <= range.column2; ++column) {
      taken.cells.push_back(std::move(grid.At(row, column)));
    }
    const GridCell& key = taken.cells[static_cast<std::size_t>(options.column - range.column1)];
    taken.empty = key.kind == excel::CellValue::Kind::kEmpty;
    taken.rank = Rank(key);
    taken.number = key.number;
    if (taken.rank == 1) taken.text = KeyOf(key.text, options.matchCase);
  }
  std::stable_sort(rows.begin(), rows.end(), [&](const Row& a, const Row& b) {
    if (a.empty || b.empty) return !a.empty && b.empty;
    return options.descending ? b.IsBefore(a) : a.IsBefore(b);
  });
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t c = 0; c < rows[i].cells.size(); ++c) {
      grid.At(range.row1 + static_cast<std::int32_t>(i), range.column1 + static_cast<std::int32_t>(c)) =
          std::move(rows[i].cells[c]);
    }
  }
}

}  // namespace plotsmith::xlsx

#include "windows/excel/CellReader.h"

#include <algorithm>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "windows/excel/Proxy.h"

namespace plotsmith::proxies {

using excel::CellValue;
using runtime::RuntimeError;

namespace {

/// Number of rows in the first stretch, and in the longest one.
constexpr std::int32_t kFirstSize = 16;
std::int32_t longest = 16384;

std::string Letters(std::int32_t column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26)
    letters.insert(0, 1, static_cast<char>('A' + (column - 1) % 26));
  return letters;
}

std::string AddressOf(std::int32_t row, std::int32_t column) {
  return "$" + Letters(column) + "$" + std::to_string(row);
}

/// Returns cells of one column.
com::ComPtr<IDispatch> CellsFrom(IDispatch* sheet, std::int32_t row, std::int32_t column, std::int32_t size) {
  static com::Member range(L"Range");
  const std::array corners{com::ToVariant(AddressOf(row, column)),
                           com::ToVariant(AddressOf(row + size - 1, column))};
  return com::ObjectOf(com::Call(sheet, range, com::Kind::kGet, corners).Get());
}

com::ComPtr<IDispatch> CellAt(IDispatch* sheet, std::int32_t row, std::int32_t column) {
  static com::Member cells(L"Cells");
  const std::array arguments{com::ToVariant(row), com::ToVariant(column)};
  return com::ObjectOf(com::Call(sheet, cells, com::Kind::kGet, arguments).Get());
}

com::OwnedVariant ValueOf(IDispatch* range) {
  static com::Member value(L"Value");
  return com::Call(range, value, com::Kind::kGet, {});
}

/// Returns the English text of an error value. The cell shows the text in the user's language, which TextAt
/// returns.
std::string_view ErrorText(int number) {
  switch (number) {
    case 2000:
      return "#NULL!";
    case 2007:
      return "#DIV/0!";
    case 2015:
      return "#VALUE!";
    case 2023:
      return "#REF!";
    case 2029:
      return "#NAME?";
    case 2036:
      return "#NUM!";
    default:
      return "#N/A";
  }
}

/// Returns true if the value is a text that every version of Excel shows completely.
bool IsShortText(const CellValue& value) {
  constexpr std::size_t kSurelyShown = 255;
  return value.kind == CellValue::Kind::kText && runtime::Len(value.text) <= kSurelyShown;
}

}  // namespace

void CellReader::SetLongestStretch(std::int32_t rows) { longest = rows; }

CellValue CellReader::Kept(const VARIANT& value) {
  using Kind = CellValue::Kind;
  const excel::Variant plain = com::FromVariant(value);
  if (const auto* number = plain.If<double>()) return {Kind::kNumber, *number, {}};
  if (const auto* whole = plain.If<std::int32_t>()) return {Kind::kNumber, static_cast<double>(*whole), {}};
  if (const auto* date = plain.If<excel::Variant::Date>()) return {Kind::kDate, date->serial, {}};
  if (const auto* truth = plain.If<bool>()) return {Kind::kBoolean, *truth ? 1.0 : 0.0, {}};
  if (const auto* text = plain.If<std::string>()) return {Kind::kText, 0, *texts_.insert(*text).first};
  if (const auto* failure = plain.If<excel::Variant::Error>()) {
    return {Kind::kError, static_cast<double>(failure->number), ErrorText(failure->number)};
  }
  return {};
}

std::vector<CellValue> CellReader::Fetch(std::int32_t row, std::int32_t column, std::int32_t size) {
  if (size > 1) size = std::min(size, Bottom() - row + 1);
  if (size < 2) return {};
  // Range.Value fails for all cells if it fails for one, for example for an amount that is too large for a
  // Currency. The cells are then read one by one, so that only that cell is an error.
  try {
    const com::OwnedVariant answer = ValueOf(CellsFrom(sheet_, row, column, size).Get());
    const com::CellArray cells(answer.Get());
    std::vector<CellValue> values;
    for (std::int32_t i = 0; i < cells.Rows(); ++i) values.push_back(Kept(cells.At(i, 0)));
    return values;
  } catch (const RuntimeError&) {
    return {};
  }
}

void CellReader::Refresh() {
  if (changes_ == com::ChangeCount()) return;
  changes_ = com::ChangeCount();
  stretches_.clear();
  bottom_.reset();
  showsFormulas_.reset();
}

CellReader::Stretch* CellReader::StretchWith(std::int32_t row, std::int32_t column) {
  Refresh();
  Stretch& stretch = stretches_[column];
  if (stretch.Has(row)) return &stretch;
  if (row == stretch.End()) {
    const std::int32_t size = std::min(std::max(2 * stretch.Size(), kFirstSize), longest);
    stretch = {.first = row, .values = Fetch(row, column, size)};
    if (stretch.Has(row)) return &stretch;
  }
  stretch = {.first = row + 1};
  return nullptr;
}

CellValue CellReader::ValueAt(std::int32_t row, std::int32_t column) {
  if (const Stretch* stretch = StretchWith(row, column)) return stretch->At(row);
  return Kept(ValueOf(CellAt(sheet_, row, column).Get()).Get());
}

std::string_view CellReader::TextAt(std::int32_t row, std::int32_t column, std::string& scratch) {
  if (Stretch* stretch = StretchWith(row, column)) {
    const CellValue& value = stretch->At(row);
    if (value.kind == CellValue::Kind::kEmpty) return {};
    if (IsShortText(value)) {
      if (!stretch->plain) stretch->plain = IsPlain(*stretch, column);
      if (*stretch->plain) return value.text;
    }
  }
  static com::Member text(L"Text");
  return scratch = Ask<std::string>(CellAt(sheet_, row, column).Get(), text, com::Kind::kGet);
}

bool CellReader::IsPlain(const Stretch& stretch, std::int32_t column) {
  // DisplayFormat includes conditional formats. Versions before Excel 2010 (14) don't have it.
  try {
    static com::Member displayFormat(L"DisplayFormat"), numberFormat(L"NumberFormat");
    const auto cells = CellsFrom(sheet_, stretch.first, column, stretch.Size());
    const auto look = com::ObjectOf(com::Call(cells.Get(), displayFormat, com::Kind::kGet, {}).Get());
    const auto format = Ask<excel::Variant>(look.Get(), numberFormat, com::Kind::kGet);
    return format == excel::Variant("General") && !ShowsFormulas(stretch, column, cells.Get());
  } catch (const RuntimeError&) {
    return false;
  }
}

// Each window of a workbook has this setting for each sheet, but older versions return only the setting of
// the active sheet. Therefore the reader checks the displayed text of the first cell whose formula computes a
// text.
bool CellReader::ShowsFormulas(const Stretch& stretch, std::int32_t column, IDispatch* cells) {
  static com::Member hasFormula(L"HasFormula"), formula(L"Formula"), text(L"Text");
  if (showsFormulas_) return *showsFormulas_;
  if (Ask<excel::Variant>(cells, hasFormula, com::Kind::kGet) == excel::Variant(false)) return false;
  const com::OwnedVariant answer = com::Call(cells, formula, com::Kind::kGet, {});
  const com::CellArray formulas(answer.Get());
  for (std::int32_t i = 0; i < stretch.Size(); ++i) {
    const std::int32_t row = stretch.first + i;
    const std::string_view result = stretch.At(row).text;
    if (!IsShortText(stretch.At(row)) || com::FromVariant(formulas.At(i, 0)) == excel::Variant(result))
      continue;
    showsFormulas_ = Ask<std::string>(CellAt(sheet_, row, column).Get(), text, com::Kind::kGet) != result;
    return *showsFormulas_;
  }
  return false;
}

std::int32_t CellReader::Bottom() {
  if (!bottom_) {
    static com::Member usedRange(L"UsedRange"), row(L"Row"), rows(L"Rows"), count(L"Count");
    const auto used = com::ObjectOf(com::Call(sheet_, usedRange, com::Kind::kGet, {}).Get());
    const auto lines = com::ObjectOf(com::Call(used.Get(), rows, com::Kind::kGet, {}).Get());
    bottom_ = Ask<std::int32_t>(used.Get(), row, com::Kind::kGet) +
              Ask<std::int32_t>(lines.Get(), count, com::Kind::kGet) - 1;
  }
  return *bottom_;
}

std::int32_t CellReader::NextRow(std::int32_t row, std::int32_t column) {
  Refresh();
  std::int32_t next = row + 1;
  const Stretch& stretch = stretches_[column];
  while (stretch.Has(next) && stretch.At(next).kind == CellValue::Kind::kEmpty) ++next;
  return next <= Bottom() ? next : 0;
}

}  // namespace plotsmith::proxies

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "xlsx/sheet/Reference.h"

/// Formulas as text: their references, without their meaning.
namespace plotsmith::xlsx {

/// Splits a formula into references and other pieces of text.
class FormulaReader {
 public:
  /// The sheet that a reference refers to.
  enum class Place {
    kHome,       ///< The sheet of the formula; the reference names no sheet.
    kSheet,      ///< The sheet that the reference names.
    kElsewhere,  ///< Another workbook, or several sheets.
  };
  /// A piece of a formula: a reference, or other text.
  struct Piece {
    std::string_view text;                 ///< The text in the formula.
    std::optional<A1Reference> reference;  ///< The reference; absent for other text.
    Place place = Place::kHome;            ///< The sheet of a reference.
    std::string sheet;                     ///< The name of the sheet, without quotes.
  };

  /// Reads `formula`, without "=", from its beginning.
  explicit FormulaReader(std::string_view formula) : rest_(formula) {}
  /// Returns the next piece, or nothing at the end.
  std::optional<Piece> Next();

 private:
  /// Sets the sheet of the next reference.
  void PointTo(std::string sheet, bool elsewhere);
  Piece Take(std::size_t length);
  Piece TakeQuoted();
  Piece TakeBracketed();
  Piece TakeName();

  std::string_view rest_;
  Place place_ = Place::kHome;  ///< The place of the next reference.
  std::string sheet_;
  std::optional<Piece> corner_;  ///< A reference before a colon; the reference after it is on the same sheet.
};

/// An insertion of `count` rows at `row` of a sheet, or a deletion if `count` is negative. Rows count from 1.
struct RowShift {
  /// The first row that moves, from 1. For a deletion it is the first row that is removed.
  std::int32_t row;
  /// The number of new rows. It is negative for removed rows.
  std::int32_t count;
  std::size_t number;  ///< The number of the change among those of all sheets.
};
/// Returns the shifts of one sheet, in order. The name is compared without regard to case.
using ShiftsOf = std::function<std::span<const RowShift>(std::string_view sheet)>;

/// Adjusts the references of a formula to insertions and deletions of rows, one after the other. Returns
/// nothing if the formula doesn't change. `home` is the sheet of references that name none; it may be empty.
/// A reference to cells that were all deleted becomes #REF!. References to several sheets don't change, as in
/// Excel.
std::optional<std::string> ShiftRows(std::string_view formula, std::string_view home,
                                     const ShiftsOf& shiftsOf);

/// Returns a formula as it becomes when it is copied `rows` down and `columns` to the right. Relative
/// references move, and become #REF! outside the sheet.
std::string OffsetFormula(std::string_view formula, std::int32_t rows, std::int32_t columns);

}  // namespace plotsmith::xlsx

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "xlsx/sheet/Reference.h"

/// Formulas as text: what they refer to, without knowing what they compute.
namespace plotsmith::xlsx {

/// Reads a formula piece by piece: references, and everything else as it stands.
class FormulaReader {
 public:
  /// Where a reference points.
  enum class Place {
    kHome,       ///< it names no sheet: the sheet that the formula stands on
    kSheet,      ///< the sheet it names
    kElsewhere,  ///< another workbook, or several sheets at once
  };
  struct Piece {
    std::string_view text;
    std::optional<A1Reference> reference;
    Place place = Place::kHome;
    std::string sheet;  ///< without its quotes
  };

  explicit FormulaReader(std::string_view formula) : rest_(formula) {}
  /// Nothing at the end.
  std::optional<Piece> Next();

 private:
  /// The sheet of the reference that comes next.
  void PointTo(std::string sheet, bool elsewhere);
  Piece Take(std::size_t length);
  Piece TakeQuoted();
  Piece TakeBracketed();
  Piece TakeName();

  std::string_view rest_;
  Place place_ = Place::kHome;  ///< of a reference that comes next
  std::string sheet_;
  std::optional<Piece> corner_;  ///< a reference with a colon behind it: what follows is on the same sheet
};

/// `count` rows inserted at `row` of a sheet, or, if it is negative, deleted.
struct RowShift {
  std::int32_t row;
  std::int32_t count;
  std::size_t number;  ///< counts the changes to all sheets
};
/// Those of one sheet, in order; case doesn't matter in its name.
using ShiftsOf = std::function<std::span<const RowShift>(std::string_view sheet)>;

/// A formula in which references follow when rows are inserted and deleted, one change after the other.
/// `home` is the sheet that references without a sheet mean, empty if there is none. Nothing if the formula
/// stays as it is. What is deleted whole becomes #REF!. References over several sheets keep their rows, as in
/// Excel.
std::optional<std::string> ShiftRows(std::string_view formula, std::string_view home,
                                     const ShiftsOf& shiftsOf);

/// A formula as it reads when it is copied to a cell so many rows below and columns to the right: relative
/// references move along. What leaves the sheet becomes #REF!.
std::string OffsetFormula(std::string_view formula, std::int32_t rows, std::int32_t columns);

}  // namespace plotsmith::xlsx

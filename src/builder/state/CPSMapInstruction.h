#pragma once

#include <cstdint>

#include "common/PSConstants.h"
#include "runtime/Variant.h"

namespace plotsmith {

/// How a map instruction finds a row or column of the rectangle.
namespace reference {
inline constexpr std::int32_t kFixed = 0;   ///< The position is the index.
inline constexpr std::int32_t kByCell = 1;  ///< The text in this sheet column determines the index.
}  // namespace reference

/// The source of a map instruction's value.
namespace value_reference {
inline constexpr std::int32_t kCell = 0;      ///< A cell of the table.
inline constexpr std::int32_t kConstant = 2;  ///< A constant in the instruction.
}  // namespace value_reference

/// An instruction of the map from the source table to the rectangle. It is applied to each row of the table.
class CPSMapInstruction {
 public:
  /// How the row (category) is found, a constant of `reference`.
  std::int32_t RowReferenceType() const { return lRowReferenceType_; }
  /// Sets how the row is found.
  void SetRowReferenceType(std::int32_t ReferenceType) { lRowReferenceType_ = ReferenceType; }
  /// A category index or a sheet column, from 1.
  std::int32_t RowReferencePosition() const { return lRowReferencePosition_; }
  /// Sets the category index or sheet column.
  void SetRowReferencePosition(std::int32_t ColumnPosition) { lRowReferencePosition_ = ColumnPosition; }
  /// How the column (series) is found, a constant of `reference`.
  std::int32_t ColReferenceType() const { return lColReferenceType_; }
  /// Sets how the column is found.
  void SetColReferenceType(std::int32_t ReferenceType) { lColReferenceType_ = ReferenceType; }
  /// A series index or a sheet column, from 1.
  std::int32_t ColReferencePosition() const { return lColReferencePosition_; }
  /// Sets the series index or sheet column.
  void SetColReferencePosition(std::int32_t ColumnPosition) { lColReferencePosition_ = ColumnPosition; }
  /// The source of the value, a constant of `value_reference`.
  std::int32_t ValueReferenceType() const { return lValueReferenceType_; }
  /// Sets the source of the value.
  void SetValueReferenceType(std::int32_t ReferenceType) { lValueReferenceType_ = ReferenceType; }
  /// The sheet column of the value, or the value itself.
  const runtime::Variant& ValuePositionOrConstant() const { return vValuePositionOrConstant_; }
  /// Sets the sheet column of the value, or the value itself.
  void SetValuePositionOrConstant(runtime::Variant ColumnPositionOrValue) {
    vValuePositionOrConstant_ = std::move(ColumnPositionOrValue);
  }
  /// `cell::kText` replaces the value in the rectangle by the displayed text; `cell::kDouble` adds the number
  /// to it.
  std::int32_t CellValueType() const { return lCellValueType_; }
  /// Sets `cell::kText` or `cell::kDouble`.
  void SetCellValueType(std::int32_t CellType) { lCellValueType_ = CellType; }

 private:
  std::int32_t lRowReferenceType_ = reference::kFixed;
  std::int32_t lRowReferencePosition_ = 0;
  std::int32_t lColReferenceType_ = reference::kFixed;
  std::int32_t lColReferencePosition_ = 0;
  std::int32_t lValueReferenceType_ = value_reference::kCell;
  runtime::Variant vValuePositionOrConstant_;
  std::int32_t lCellValueType_ = cell::kText;
};

}  // namespace plotsmith

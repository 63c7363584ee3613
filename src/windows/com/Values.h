#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Variant.h"
#include "windows/com/ComPtr.h"
#include "windows/com/OwnedVariant.h"

/// @file
/// Conversions of values between the language run-time and Automation. A VARIANT that is a reference
/// (VT_BYREF, of any depth) counts as the value that it refers to.
namespace plotsmith::com {

/// Returns a VARIANT with the same value, of type VT_EMPTY, VT_NULL, VT_BOOL, VT_I4, VT_R8, VT_DATE, VT_ERROR
/// or VT_BSTR.
OwnedVariant ToVariant(const runtime::Variant& value);
/// Returns a VARIANT of type VT_DISPATCH with its own reference to the object. Null gives Nothing.
OwnedVariant ToVariant(IDispatch* object);
/// Returns the value that a caller passes for an omitted optional argument.
OwnedVariant Missing();
/// Returns true if an argument was omitted.
bool IsMissing(const VARIANT& value);

/// Returns the value of a VARIANT. All numbers become std::int32_t or double, including Currency and Decimal.
/// A VT_ERROR becomes the error value of a cell. An object gives the value of its default member. Raises
/// error 13 for arrays, 91 for Nothing, and 438 for an object without a default member.
runtime::Variant FromVariant(const VARIANT& value);
/// Returns the object of a VARIANT, or an empty pointer for Nothing. Raises error 424 if the value isn't an
/// object.
ComPtr<IDispatch> ObjectOf(const VARIANT& value);

/// Returns true for an array of any kind.
bool IsArray(const VARIANT& value);
/// Returns the items of a one-dimensional array of any type. The list is empty for an array that isn't
/// allocated. Raises error 13 for other values, and the errors of FromVariant for an item that can't be
/// converted.
std::vector<runtime::Variant> ListOf(const VARIANT& value);
/// Returns the items of a one-dimensional array as texts. Raises error 13 or 94 for an item that can't be
/// converted.
std::vector<std::string> TextsOf(const VARIANT& value);
/// Returns a one-dimensional array of VARIANT with lower bound 0, as Visual Basic's function Array makes it.
/// @{
OwnedVariant ToArray(const std::vector<runtime::Variant>& items);
OwnedVariant ToArray(const std::vector<std::string>& items);
///@}

/// A view of a two-dimensional array of VARIANT, the type of Range.Value for several cells. It does not own
/// the array.
class CellArray {
 public:
  /// Makes a view of the array in `value`. Raises error 13 if the value isn't such an array.
  explicit CellArray(const VARIANT& value);
  ~CellArray();
  CellArray(const CellArray&) = delete;
  CellArray& operator=(const CellArray&) = delete;

  /// The number of rows.
  std::int32_t Rows() const { return rows_; }
  /// The number of columns.
  std::int32_t Columns() const { return columns_; }
  /// Returns a cell. Row and column count from 0. Raises error 9 outside the array.
  const VARIANT& At(std::int32_t row, std::int32_t column) const;

 private:
  SAFEARRAY* array_;
  const VARIANT* cells_ = nullptr;
  std::int32_t rows_ = 0;
  std::int32_t columns_ = 0;
};

/// Builds a two-dimensional array of VARIANT, the type of Range.Value for several cells. Rows and columns
/// count from 1 in the array, and from 0 here.
class CellArrayWriter {
 public:
  /// Allocates the array. Raises error 7 if there isn't enough memory.
  CellArrayWriter(std::int32_t rows, std::int32_t columns);
  /// Stores a value. Row and column count from 0. Raises error 9 outside the array.
  void Set(std::int32_t row, std::int32_t column, const runtime::Variant& value);
  /// Returns the finished array, which then belongs to the caller.
  OwnedVariant Take() { return std::move(array_); }

 private:
  OwnedVariant array_;
};

}  // namespace plotsmith::com

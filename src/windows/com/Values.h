#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Variant.h"
#include "windows/com/ComPtr.h"
#include "windows/com/OwnedVariant.h"

/// @file
/// Values between the language run-time and Automation. A VARIANT that is a reference (VT_BYREF, of any
/// depth) counts as the value that it refers to.
namespace plotsmith::com {

/// A VARIANT of the same value: VT_EMPTY, VT_NULL, VT_BOOL, VT_I4, VT_R8, VT_DATE, VT_ERROR or VT_BSTR.
OwnedVariant ToVariant(const runtime::Variant& value);
/// A VT_DISPATCH with a reference of its own; null is Nothing.
OwnedVariant ToVariant(IDispatch* object);
/// What a caller passes for an optional argument that is left out.
OwnedVariant Missing();
/// Whether an argument was left out.
bool IsMissing(const VARIANT& value);

/// The value of a VARIANT. All numbers become std::int32_t or double, a Currency or Decimal among them. An
/// error is one of a cell. Of an object it is what its default member answers. Error 13 for arrays, 91 for
/// Nothing, 438 for an object without a default member.
runtime::Variant FromVariant(const VARIANT& value);
/// The object of a VARIANT, or Nothing. Error 424 for a value that is no object.
ComPtr<IDispatch> ObjectOf(const VARIANT& value);

/// Whether the value is an array of any kind.
bool IsArray(const VARIANT& value);
/// The items of a one-dimensional array of any type, none for an array that isn't allocated; error 13 for
/// anything else, and for an item that is no value.
std::vector<runtime::Variant> ListOf(const VARIANT& value);
/// The same as texts: error 13 or 94 for an item that can't be converted.
std::vector<std::string> TextsOf(const VARIANT& value);
/// A one-dimensional array of VARIANT from 0, as the language's function Array makes it.
///@{
OwnedVariant ToArray(const std::vector<runtime::Variant>& items);
OwnedVariant ToArray(const std::vector<std::string>& items);
///@}

/// The cells of a two-dimensional array of VARIANT, as Range.Value gives it for several cells. It does not
/// own the array.
class CellArray {
 public:
  /// Error 13 for a value that is no such array.
  explicit CellArray(const VARIANT& value);
  ~CellArray();
  CellArray(const CellArray&) = delete;
  CellArray& operator=(const CellArray&) = delete;

  std::int32_t Rows() const { return rows_; }
  std::int32_t Columns() const { return columns_; }
  /// Counted from 0. Error 9 outside of the array.
  const VARIANT& At(std::int32_t row, std::int32_t column) const;

 private:
  SAFEARRAY* array_;
  const VARIANT* cells_ = nullptr;
  std::int32_t rows_ = 0;
  std::int32_t columns_ = 0;
};

/// Room for the cells that Range.Value answers for several of them: rows and columns count from 1 there, here
/// from 0.
class CellArrayWriter {
 public:
  CellArrayWriter(std::int32_t rows, std::int32_t columns);
  void Set(std::int32_t row, std::int32_t column, const runtime::Variant& value);
  /// The finished array.
  OwnedVariant Take() { return std::move(array_); }

 private:
  OwnedVariant array_;
};

}  // namespace plotsmith::com

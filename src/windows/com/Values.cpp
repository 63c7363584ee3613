#include "windows/com/Values.h"

#include <limits>

#include "runtime/RuntimeError.h"
#include "windows/com/Calls.h"
#include "windows/com/Failures.h"
#include "windows/com/Texts.h"

namespace plotsmith::com {

using runtime::RuntimeError;
using runtime::Variant;
namespace error = runtime::error;

namespace {

VARIANT Typed(VARTYPE type) {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = type;
  return value;
}

Variant Plain(const VARIANT& value);

/// Returns a copy that contains no reference (VT_BYREF).
OwnedVariant Dereferenced(const VARIANT& value) {
  const VARIANT* plain = &value;
  while (V_VT(plain) == (VT_BYREF | VT_VARIANT)) plain = V_VARIANTREF(plain);
  OwnedVariant copy;
  const HRESULT result = VariantCopyInd(copy.Put(), const_cast<VARIANT*>(plain));
  if (FAILED(result)) throw ErrorOf(result);
  return copy;
}

/// Returns a whole number, as a double if it doesn't fit into 32 bits.
template <class T>
Variant WholeNumber(T number) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (std::cmp_less(number, Limits::min()) || std::cmp_greater(number, Limits::max())) {
    return static_cast<double>(number);
  }
  return static_cast<std::int32_t>(number);
}

/// A Currency counts in ten thousandths.
constexpr double kCurrencyUnits = 10000;

double DecimalNumber(const DECIMAL& decimal) {
  double number = 0;
  const HRESULT result = VarR8FromDec(const_cast<DECIMAL*>(&decimal), &number);
  if (FAILED(result)) throw ErrorOf(result);
  return number;
}

/// A cell's error value is an SCODE whose lower half is Excel's number (xlErrDiv0 is 2007).
constexpr SCODE kCellErrors = static_cast<SCODE>(0x800A0000);

/// Returns the value of an object's default member. A default member that is an object is refused, because it
/// could be the same object again.
Variant DefaultOf(const VARIANT& object) {
  const ComPtr<IDispatch> dispatch = ObjectOf(object);
  const OwnedVariant answer = Dereferenced(CallDefault(dispatch.Get()).Get());
  const VARTYPE type = V_VT(&answer.Get());
  if (type == VT_DISPATCH || type == VT_UNKNOWN) throw RuntimeError(error::kTypeMismatch);
  return Plain(answer.Get());
}

/// Converts a value that isn't a reference.
Variant Plain(const VARIANT& value) {
  switch (V_VT(&value)) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return Variant::Null{};
    case VT_BOOL:
      return V_BOOL(&value) != VARIANT_FALSE;
    case VT_I1:
      return WholeNumber(static_cast<signed char>(V_I1(&value)));
    case VT_UI1:
      return WholeNumber(V_UI1(&value));
    case VT_I2:
      return WholeNumber(V_I2(&value));
    case VT_UI2:
      return WholeNumber(V_UI2(&value));
    case VT_I4:
      return WholeNumber(V_I4(&value));
    case VT_UI4:
      return WholeNumber(V_UI4(&value));
    case VT_INT:
      return WholeNumber(V_INT(&value));
    case VT_UINT:
      return WholeNumber(V_UINT(&value));
    case VT_I8:
      return WholeNumber(V_I8(&value));
    case VT_UI8:
      return WholeNumber(V_UI8(&value));
    case VT_R4:
      return static_cast<double>(V_R4(&value));
    case VT_R8:
      return V_R8(&value);
    case VT_CY:
      return static_cast<double>(V_CY(&value).int64) / kCurrencyUnits;
    case VT_DECIMAL:
      return DecimalNumber(V_DECIMAL(&value));
    case VT_DATE:
      return Variant::Date{V_DATE(&value)};
    case VT_ERROR:
      return Variant::Error{static_cast<int>(V_ERROR(&value) & 0xFFFF)};
    case VT_BSTR:
      return TextOf(value);
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return DefaultOf(value);
    default:
      throw RuntimeError(error::kTypeMismatch);
  }
}

/// Returns the array in a value, or null if there is none. The value may be a reference.
SAFEARRAY* ArrayIn(const VARIANT& value) {
  if (V_VT(&value) == (VT_BYREF | VT_VARIANT)) return ArrayIn(*V_VARIANTREF(&value));
  if ((V_VT(&value) & VT_ARRAY) == 0) return nullptr;
  return V_VT(&value) & VT_BYREF ? *V_ARRAYREF(&value) : V_ARRAY(&value);
}

OwnedVariant NewArray(UINT dimensions, SAFEARRAYBOUND* bounds) {
  SAFEARRAY* array = SafeArrayCreate(VT_VARIANT, dimensions, bounds);
  if (array == nullptr) throw RuntimeError(error::kOutOfMemory);
  VARIANT value = Typed(VT_ARRAY | VT_VARIANT);
  V_ARRAY(&value) = array;
  return OwnedVariant(value);
}

void PutElement(const OwnedVariant& array, LONG* position, const Variant& item) {
  OwnedVariant value = ToVariant(item);
  VARIANT copied = value.Get();
  const HRESULT result = SafeArrayPutElement(V_ARRAY(&array.Get()), position, &copied);
  if (FAILED(result)) throw ErrorOf(result);
}

/// Returns one item of an array of type `type` as a VARIANT.
OwnedVariant ItemAt(SAFEARRAY* array, VARTYPE type, LONG position) {
  // A record can be larger than a VARIANT, and SafeArrayGetElement would copy all of it.
  if (type == VT_RECORD) throw RuntimeError(error::kTypeMismatch);
  OwnedVariant item;
  HRESULT result;
  if (type == VT_VARIANT) {
    result = SafeArrayGetElement(array, &position, item.Put());
  } else {
    VARIANT value = Typed(type);
    // All members of the union but the DECIMAL begin at the same address.
    void* place = type == VT_DECIMAL ? static_cast<void*>(&V_DECIMAL(&value)) : &V_NONE(&value);
    result = SafeArrayGetElement(array, &position, place);
    V_VT(&value) = type;  // A DECIMAL overlaps the type.
    if (SUCCEEDED(result)) item = OwnedVariant(value);
  }
  if (FAILED(result)) throw ErrorOf(result);
  return item;
}

template <class Item>
OwnedVariant ListToArray(const std::vector<Item>& items) {
  SAFEARRAYBOUND bounds{static_cast<ULONG>(items.size()), 0};
  OwnedVariant array = NewArray(1, &bounds);
  for (LONG i = 0; i < static_cast<LONG>(items.size()); ++i) {
    PutElement(array, &i, Variant(items[static_cast<std::size_t>(i)]));
  }
  return array;
}

}  // namespace

OwnedVariant ToVariant(const Variant& value) {
  VARIANT result = Typed(VT_EMPTY);
  if (value.IsNull()) {
    V_VT(&result) = VT_NULL;
  } else if (const auto* truth = value.If<bool>()) {
    V_VT(&result) = VT_BOOL;
    V_BOOL(&result) = *truth ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (const auto* whole = value.If<std::int32_t>()) {
    V_VT(&result) = VT_I4;
    V_I4(&result) = *whole;
  } else if (const auto* number = value.If<double>()) {
    V_VT(&result) = VT_R8;
    V_R8(&result) = *number;
  } else if (const auto* date = value.If<Variant::Date>()) {
    V_VT(&result) = VT_DATE;
    V_DATE(&result) = date->serial;
  } else if (const auto* failure = value.If<Variant::Error>()) {
    V_VT(&result) = VT_ERROR;
    V_ERROR(&result) = kCellErrors | failure->number;
  } else if (const auto* text = value.If<std::string>()) {
    V_BSTR(&result) = NewBstr(*text);
    V_VT(&result) = VT_BSTR;
  }
  return OwnedVariant(result);
}

OwnedVariant ToVariant(IDispatch* object) {
  VARIANT value = Typed(VT_DISPATCH);
  if (object != nullptr) object->AddRef();
  V_DISPATCH(&value) = object;
  return OwnedVariant(value);
}

OwnedVariant Missing() {
  VARIANT value = Typed(VT_ERROR);
  V_ERROR(&value) = DISP_E_PARAMNOTFOUND;
  return OwnedVariant(value);
}

bool IsMissing(const VARIANT& value) {
  if (V_VT(&value) == (VT_BYREF | VT_VARIANT)) return IsMissing(*V_VARIANTREF(&value));
  if (V_VT(&value) == (VT_BYREF | VT_ERROR)) return *V_ERRORREF(&value) == DISP_E_PARAMNOTFOUND;
  return V_VT(&value) == VT_ERROR && V_ERROR(&value) == DISP_E_PARAMNOTFOUND;
}

Variant FromVariant(const VARIANT& value) {
  if ((V_VT(&value) & VT_BYREF) == 0) return Plain(value);
  return Plain(Dereferenced(value).Get());
}

ComPtr<IDispatch> ObjectOf(const VARIANT& value) {
  const OwnedVariant plain = Dereferenced(value);
  if (V_VT(&plain.Get()) == VT_DISPATCH) return ComPtr<IDispatch>(V_DISPATCH(&plain.Get()));
  if (V_VT(&plain.Get()) != VT_UNKNOWN) throw RuntimeError(error::kObjectRequired);
  const ComPtr<IUnknown> object(V_UNKNOWN(&plain.Get()));
  auto dispatch = object.As<IDispatch>();
  if (object && !dispatch) throw RuntimeError(error::kNoSuchMember);
  return dispatch;
}

bool IsArray(const VARIANT& value) {
  if (V_VT(&value) == (VT_BYREF | VT_VARIANT)) return IsArray(*V_VARIANTREF(&value));
  return (V_VT(&value) & VT_ARRAY) != 0;
}

std::vector<Variant> ListOf(const VARIANT& value) {
  SAFEARRAY* array = ArrayIn(value);
  if (array == nullptr && IsArray(value)) return {};
  if (array == nullptr || SafeArrayGetDim(array) != 1) throw RuntimeError(error::kTypeMismatch);
  VARTYPE type = VT_EMPTY;
  LONG first = 0, last = -1;
  if (FAILED(SafeArrayGetVartype(array, &type)) || FAILED(SafeArrayGetLBound(array, 1, &first)) ||
      FAILED(SafeArrayGetUBound(array, 1, &last))) {
    throw RuntimeError(error::kTypeMismatch);
  }
  std::vector<Variant> items;
  for (LONG i = first; i <= last; ++i) items.push_back(FromVariant(ItemAt(array, type, i).Get()));
  return items;
}

std::vector<std::string> TextsOf(const VARIANT& value) {
  std::vector<std::string> texts;
  for (const Variant& item : ListOf(value)) texts.push_back(runtime::CStr(item));
  return texts;
}

OwnedVariant ToArray(const std::vector<Variant>& items) { return ListToArray(items); }
OwnedVariant ToArray(const std::vector<std::string>& items) { return ListToArray(items); }

CellArray::CellArray(const VARIANT& value) : array_(ArrayIn(value)) {
  VARTYPE type = VT_EMPTY;
  LONG bounds[4] = {};
  if (array_ == nullptr || SafeArrayGetDim(array_) != 2 || FAILED(SafeArrayGetVartype(array_, &type)) ||
      type != VT_VARIANT || FAILED(SafeArrayGetLBound(array_, 1, &bounds[0])) ||
      FAILED(SafeArrayGetUBound(array_, 1, &bounds[1])) ||
      FAILED(SafeArrayGetLBound(array_, 2, &bounds[2])) ||
      FAILED(SafeArrayGetUBound(array_, 2, &bounds[3]))) {
    throw RuntimeError(error::kTypeMismatch);
  }
  rows_ = bounds[1] - bounds[0] + 1;
  columns_ = bounds[3] - bounds[2] + 1;
  void* data = nullptr;
  const HRESULT result = SafeArrayAccessData(array_, &data);
  if (FAILED(result)) throw ErrorOf(result);
  cells_ = static_cast<const VARIANT*>(data);
}

CellArray::~CellArray() { SafeArrayUnaccessData(array_); }

const VARIANT& CellArray::At(std::int32_t row, std::int32_t column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) throw RuntimeError(error::kSubscript);
  // Cells of the first dimension, the rows, are adjacent in memory.
  return cells_[static_cast<std::size_t>(column) * static_cast<std::size_t>(rows_) +
                static_cast<std::size_t>(row)];
}

CellArrayWriter::CellArrayWriter(std::int32_t rows, std::int32_t columns) {
  SAFEARRAYBOUND bounds[2] = {{static_cast<ULONG>(rows), 1}, {static_cast<ULONG>(columns), 1}};
  array_ = NewArray(2, bounds);
}

void CellArrayWriter::Set(std::int32_t row, std::int32_t column, const Variant& value) {
  LONG position[2] = {row + 1, column + 1};
  PutElement(array_, position, value);
}

}  // namespace plotsmith::com

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "windows/com/ComPtr.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Thrown for an argument with which a call can't be made.
struct ArgumentError {
  HRESULT code;   ///< a result such as DISP_E_TYPEMISMATCH or DISP_E_BADPARAMCOUNT
  UINT position;  ///< index in the array of arguments as it was sent; 0 if the error concerns all of them
};

/// The arguments of a late-bound call, by the position of the parameter, from 0. Clients send the same
/// argument in many ways: VBScript sends every variable as a reference to a Variant, VBA sends arrays of
/// strings or of Variants; arguments come by position or, in any order, by name. Reading an argument of
/// another type throws an ArgumentError.
class Arguments {
 public:
  /// Assigns the arguments in `sent`, which must outlive this object, to as many parameters as `parameters`
  /// says. Throws an ArgumentError unless each parameter has exactly one argument.
  Arguments(const DISPPARAMS& sent, std::size_t parameters);

  /// Returns the object, or an empty pointer for Nothing.
  com::ComPtr<IDispatch> Object(std::size_t parameter) const;
  /// Returns the text, or the conversion of another value to a text, for example "1" for a number.
  std::string Text(std::size_t parameter) const;
  /// Returns the texts of a one-dimensional array. The list is empty if the array isn't allocated.
  std::vector<std::string> Texts(std::size_t parameter) const;

 private:
  const VARIANT& Sent(std::size_t parameter) const { return sent_.rgvarg[positions_[parameter]]; }
  /// Returns the result of `read` for the argument. A run-time error in `read` becomes an ArgumentError with
  /// DISP_E_TYPEMISMATCH.
  template <class Read>
  auto Converted(std::size_t parameter, const Read& read) const;

  const DISPPARAMS& sent_;
  std::vector<UINT> positions_;  ///< for each parameter, the index in the array as it was sent
};

}  // namespace plotsmith::windows

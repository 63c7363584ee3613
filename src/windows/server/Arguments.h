#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "windows/com/ComPtr.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// An argument that a call can't be made with.
struct ArgumentError {
  HRESULT code;   ///< DISP_E_TYPEMISMATCH, DISP_E_BADPARAMCOUNT and so on
  UINT position;  ///< in the array of arguments as it was sent; 0 for what is wrong with all of them
};

/// The arguments of a late-bound call, by the position of the parameter, from 0. Clients send the same
/// argument in many ways: VBScript sends every variable as a reference to a Variant, VBA sends arrays of
/// strings or of Variants; arguments come by position, and those that are named come in any order. An
/// argument that isn't of its parameter's type is an ArgumentError.
class Arguments {
 public:
  /// `sent` is kept by reference. Throws an ArgumentError if there isn't one argument for each of the
  /// `parameters`.
  Arguments(const DISPPARAMS& sent, std::size_t parameters);

  /// No object for Nothing.
  com::ComPtr<IDispatch> Object(std::size_t parameter) const;
  /// A text, or what the language makes of another value, as "1" of a number.
  std::string Text(std::size_t parameter) const;
  /// The same of an array of one dimension; one that isn't allocated has no elements.
  std::vector<std::string> Texts(std::size_t parameter) const;

 private:
  const VARIANT& Sent(std::size_t parameter) const { return sent_.rgvarg[positions_[parameter]]; }
  /// What `read` makes of the argument; its run-time errors say that the argument has the wrong type.
  template <class Read>
  auto Converted(std::size_t parameter, const Read& read) const;

  const DISPPARAMS& sent_;
  std::vector<UINT> positions_;  ///< of each parameter, in the array as it was sent
};

}  // namespace plotsmith::windows

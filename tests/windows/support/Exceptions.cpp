#include "tests/windows/support/Exceptions.h"

#include "windows/com/Texts.h"

namespace plotsmith::test {
namespace {

/// Returns the result with the number of an error.
HRESULT ResultOf(const runtime::RuntimeError& failure) {
  constexpr auto kLanguage = static_cast<HRESULT>(0x800A0000);  // the facility of Visual Basic's errors
  const int number = failure.Number();
  return number > 0 && number <= 0xFFFF ? kLanguage | number : number < 0 ? number : E_FAIL;
}

}  // namespace

HRESULT FillException(const runtime::RuntimeError& failure, EXCEPINFO* exception) {
  if (exception == nullptr) return DISP_E_EXCEPTION;
  *exception = {};
  exception->scode = ResultOf(failure);
  exception->bstrDescription = com::NewBstr(failure.Description());
  exception->bstrSource = com::NewBstr(failure.Source());
  return DISP_E_EXCEPTION;
}

}  // namespace plotsmith::test

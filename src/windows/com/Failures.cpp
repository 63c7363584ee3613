#include "windows/com/Failures.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <utility>

#include "runtime/WindowsErrors.h"
#include "windows/com/Texts.h"

namespace plotsmith::com {

using runtime::RuntimeError;
namespace error = runtime::error;

namespace {

/// A result that has its own error number in Visual Basic.
struct NumberedResult {
  HRESULT result;
  int number;
};
constexpr std::array kNumbers = {
    NumberedResult{DISP_E_UNKNOWNINTERFACE, error::kNoSuchMember},
    NumberedResult{DISP_E_MEMBERNOTFOUND, error::kNoSuchMember},
    NumberedResult{DISP_E_UNKNOWNNAME, error::kNoSuchMember},
    NumberedResult{DISP_E_PARAMNOTFOUND, error::kNoSuchNamedArgument},
    NumberedResult{DISP_E_TYPEMISMATCH, error::kTypeMismatch},
    NumberedResult{DISP_E_NONAMEDARGS, error::kNoNamedArguments},
    NumberedResult{DISP_E_BADVARTYPE, error::kNoSuchVariantType},
    NumberedResult{DISP_E_OVERFLOW, error::kOverflow},
    NumberedResult{DISP_E_BADINDEX, error::kSubscript},
    NumberedResult{DISP_E_UNKNOWNLCID, error::kNoSuchLocale},
    NumberedResult{DISP_E_ARRAYISLOCKED, error::kArrayLocked},
    NumberedResult{DISP_E_BADPARAMCOUNT, error::kArgumentCount},
    NumberedResult{DISP_E_PARAMNOTOPTIONAL, error::kArgumentNotOptional},
    NumberedResult{DISP_E_NOTACOLLECTION, error::kNotACollection},
    NumberedResult{DISP_E_DIVBYZERO, error::kDivisionByZero},
    NumberedResult{E_NOTIMPL, error::kNoSuchAction},
    NumberedResult{E_NOINTERFACE, error::kNoSuchInterface},
    NumberedResult{E_INVALIDARG, error::kInvalidCall},
    NumberedResult{E_OUTOFMEMORY, error::kOutOfMemory},
    NumberedResult{E_ACCESSDENIED, error::kPermission},
    NumberedResult{static_cast<HRESULT>(0x800706BA), error::kServerUnavailable},  // RPC_S_SERVER_UNAVAILABLE
};

/// The facility of Visual Basic's errors: an error's result is 0x800A0000 plus its number.
constexpr HRESULT kLanguage = static_cast<HRESULT>(0x800A0000);
bool IsLanguages(HRESULT result) { return (result & static_cast<HRESULT>(0xFFFF0000)) == kLanguage; }

/// Returns the error number of a result; 0 if it has none.
int NumberOf(HRESULT result) {
  // Excel's own errors use this facility too. Every refusal of Excel is 0x800A03EC, which is error 1004.
  if (IsLanguages(result)) return result & 0xFFFF;
  const auto* known = std::ranges::find(kNumbers, result, &NumberedResult::result);
  return known == kNumbers.end() ? 0 : known->number;
}

RuntimeError WithText(int number, const std::string& text, const std::string& source) {
  const RuntimeError standard(number);
  return RuntimeError(number, text.empty() ? standard.Description() : text,
                      source.empty() ? standard.Source() : source);
}

/// Takes the text out of a field of an exception and clears the field.
std::string Taken(BSTR& text) { return Utf8(OwnedBstr::Attach(std::exchange(text, nullptr))); }

}  // namespace

RuntimeError ErrorOf(HRESULT result) {
  if (const int number = NumberOf(result)) return RuntimeError(number);
  const std::string text = runtime::WindowsErrorText(static_cast<std::uint32_t>(result));
  const std::string automation = RuntimeError(error::kAutomation).Description();
  return RuntimeError(result, text.empty() ? automation : automation + "\r\n" + text);
}

RuntimeError ErrorOf(EXCEPINFO& exception) {
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  const std::string text = Taken(exception.bstrDescription);
  const std::string source = Taken(exception.bstrSource);
  Taken(exception.bstrHelpFile);
  if (exception.wCode != 0) return WithText(exception.wCode, text, source);
  if (const int number = NumberOf(exception.scode)) return WithText(number, text, source);
  const RuntimeError plain = ErrorOf(FAILED(exception.scode) ? exception.scode : E_FAIL);
  return RuntimeError(plain.Number(), text.empty() ? plain.Description() : text,
                      source.empty() ? plain.Source() : source);
}

}  // namespace plotsmith::com

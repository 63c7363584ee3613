#include "windows/server/Arguments.h"

#include <limits>

#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"
#include "windows/com/Values.h"

namespace plotsmith::windows {
namespace {

constexpr UINT kNowhere = std::numeric_limits<UINT>::max();

}  // namespace

Arguments::Arguments(const DISPPARAMS& sent, std::size_t parameters)
    : sent_(sent), positions_(parameters, kNowhere) {
  if (sent.cArgs > parameters || sent.cNamedArgs > sent.cArgs) {
    throw ArgumentError{DISP_E_BADPARAMCOUNT, 0};
  }
  // Named arguments come first; the others follow, the last parameter first.
  for (UINT position = 0; position < sent.cNamedArgs; ++position) {
    const auto parameter = static_cast<std::size_t>(sent.rgdispidNamedArgs[position]);
    if (parameter >= parameters || positions_[parameter] != kNowhere) {
      throw ArgumentError{DISP_E_PARAMNOTFOUND, position};
    }
    positions_[parameter] = position;
  }
  for (UINT position = sent.cNamedArgs; position < sent.cArgs; ++position) {
    const std::size_t parameter = sent.cArgs - 1 - position;
    if (positions_[parameter] != kNowhere) throw ArgumentError{DISP_E_BADPARAMCOUNT, 0};
    positions_[parameter] = position;
  }
  for (const UINT position : positions_) {
    if (position == kNowhere || com::IsMissing(sent.rgvarg[position])) {
      throw ArgumentError{DISP_E_PARAMNOTOPTIONAL, 0};
    }
  }
}

template <class Read>
auto Arguments::Converted(std::size_t parameter, const Read& read) const {
  try {
    return read(Sent(parameter));
  } catch (const runtime::RuntimeError&) {
    throw ArgumentError{DISP_E_TYPEMISMATCH, positions_[parameter]};
  }
}

com::ComPtr<IDispatch> Arguments::Object(std::size_t parameter) const {
  return Converted(parameter, com::ObjectOf);
}

std::string Arguments::Text(std::size_t parameter) const {
  return Converted(parameter, [](const VARIANT& sent) { return runtime::CStr(com::FromVariant(sent)); });
}

std::vector<std::string> Arguments::Texts(std::size_t parameter) const {
  return Converted(parameter, com::TextsOf);
}

}  // namespace plotsmith::windows

#include "windows/server/HostWindow.h"

#include "runtime/Variant.h"
#include "windows/com/Calls.h"
#include "windows/com/Values.h"

namespace plotsmith::windows {

std::intptr_t HostWindow(IDispatch* application) noexcept {
  static com::Member hwnd(L"Hwnd");
  try {
    if (application == nullptr || !com::HasMember(application, L"Hwnd")) return 0;
    // The call doesn't wait for a busy host; other calls will.
    const com::OwnedVariant answer = com::Call(application, hwnd, com::Kind::kGet, {}, com::WhenBusy::kFail);
    // A handle has 32 significant bits; wider types extend its sign.
    return static_cast<std::int32_t>(runtime::CDbl(com::FromVariant(answer.Get())));
  } catch (...) {
    return 0;
  }
}

}  // namespace plotsmith::windows

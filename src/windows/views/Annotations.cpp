#include "windows/views/Annotations.h"

#include <initguid.h>
#include <oleacc.h>

#include "windows/com/Texts.h"

namespace plotsmith::windows {
namespace {

/// The service's class identifier, which the libraries of mingw-w64 lack.
constexpr CLSID kAccPropServices = {
    0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr DWORD kClient = static_cast<DWORD>(OBJID_CLIENT);

}  // namespace

Annotations::Annotations() {
  CoCreateInstance(kAccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   reinterpret_cast<void**>(services_.Put()));
}

Annotations::~Annotations() = default;

void Annotations::Set(HWND window, const Spoken& spoken) {
  if (!services_) return;
  services_->SetHwndPropStr(window, kClient, CHILDID_SELF, PROPID_ACC_NAME, com::Wide(spoken.name).c_str());
  services_->SetHwndPropStr(window, kClient, CHILDID_SELF, PROPID_ACC_DESCRIPTION,
                            com::Wide(spoken.description).c_str());
  if (spoken.role == 0) return;
  VARIANT role = {};
  role.vt = VT_I4;
  role.lVal = spoken.role;
  services_->SetHwndProp(window, kClient, CHILDID_SELF, PROPID_ACC_ROLE, role);
}

void Annotations::Clear(HWND window) {
  if (!services_) return;
  const MSAAPROPID all[] = {PROPID_ACC_NAME, PROPID_ACC_DESCRIPTION, PROPID_ACC_ROLE};
  services_->ClearHwndProps(window, kClient, CHILDID_SELF, all, static_cast<int>(std::size(all)));
}

}  // namespace plotsmith::windows

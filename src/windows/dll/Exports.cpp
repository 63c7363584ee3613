// The functions that COM and regsvr32 call.
#include <string_view>

#include "windows/com/Abandon.h"
#include "windows/com/Windows.h"
#include "windows/server/ClassFactory.h"
#include "windows/server/Component.h"
#include "windows/server/Controller.h"
#include "windows/server/Guard.h"
#include "windows/server/Module.h"
#include "windows/server/Registration.h"

using plotsmith::windows::Guarded;
using plotsmith::windows::RegistrationScope;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) plotsmith::windows::SetModuleHandle(module);
  // Destructors of global variables run next. The DLLs of the objects that they refer to may already be
  // unloaded.
  if (reason == DLL_PROCESS_DETACH) plotsmith::com::Abandon();
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID interfaceId, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (classId != CLSID_CPlotsmithController) return CLASS_E_CLASSNOTAVAILABLE;
  return plotsmith::windows::ClassFactory::Instance().QueryInterface(interfaceId, object);
}

STDAPI DllCanUnloadNow() {
  if (plotsmith::windows::IsModuleKept()) return S_FALSE;
  // The release of the host's objects may let the host create a new controller.
  return Guarded([] {
    return plotsmith::windows::EndComponent() && !plotsmith::windows::IsModuleKept() ? S_OK : S_FALSE;
  });
}

STDAPI DllRegisterServer() {
  return Guarded([] { return plotsmith::windows::RegisterServer(RegistrationScope::kMachine); });
}

STDAPI DllUnregisterServer() {
  return Guarded([] { return plotsmith::windows::UnregisterServer(RegistrationScope::kMachine); });
}

/// "user" registers for the current user only, which needs no administrator; without it, the DLL is
/// registered for all users.
STDAPI DllInstall(BOOL install, const wchar_t* commandLine) {
  const std::wstring_view command = commandLine == nullptr ? L"" : commandLine;
  if (!command.empty() && command != L"user") return E_INVALIDARG;
  const auto scope = command.empty() ? RegistrationScope::kMachine : RegistrationScope::kUser;
  return Guarded([&] {
    return install ? plotsmith::windows::RegisterServer(scope) : plotsmith::windows::UnregisterServer(scope);
  });
}

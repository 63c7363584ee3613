// The COM entry points of the library. Its class PlotsmithTestHost.Application is registered for all users,
// because Wine requires it.
#include <array>
#include <string>

#include "tests/windows/host/HostMembers.h"

namespace plotsmith::automation {
namespace {

constexpr CLSID kClass = {0x6F1C2B54, 0x8E0D, 0x4B7A, {0x9A, 0x63, 0x2D, 0x51, 0xC7, 0x0E, 0x84, 0xF9}};
constexpr const wchar_t* kClassText = L"{6F1C2B54-8E0D-4B7A-9A63-2D51C70E84F9}";
constexpr const wchar_t* kProgId = L"PlotsmithTestHost.Application";
const std::wstring kClasses = L"Software\\Classes\\";

HMODULE module = nullptr;

/// Makes applications. It exists as long as the library.
class Factory final : public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 1; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override {
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    const auto made = com::ComPtr<IDispatch>::Attach(NewApplication());
    return made->QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) noexcept override { return S_OK; }
};

/// Sets the default value or another value of a registry key of the classes.
HRESULT SetText(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return HRESULT_FROM_WIN32(static_cast<DWORD>(
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str(), name, REG_SZ, text.c_str(), size)));
}

}  // namespace
}  // namespace plotsmith::automation

using namespace plotsmith::automation;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) module = instance;
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
  static Factory factory;
  return classId == kClass ? factory.QueryInterface(id, object) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return counts.objects == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() {
  std::array<wchar_t, MAX_PATH> path{};
  GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
  const std::wstring key = std::wstring(L"CLSID\\") + kClassText;
  HRESULT result = SetText(std::wstring(kProgId) + L"\\CLSID", nullptr, kClassText);
  if (SUCCEEDED(result)) result = SetText(key + L"\\InprocServer32", nullptr, path.data());
  if (SUCCEEDED(result)) result = SetText(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  return result;
}

STDAPI DllUnregisterServer() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + kProgId).c_str());
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, (kClasses + L"CLSID\\" + kClassText).c_str());
  return S_OK;
}
}

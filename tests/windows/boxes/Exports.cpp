// The COM server of PlotsmithTest.Boxes. It registers for all users, because Wine doesn't support classes of
// one user.
#include <string>

#include "tests/windows/boxes/Boxes.h"
#include "windows/com/Windows.h"

namespace {

// {0355a70b-533f-4b03-b8b3-afb1445c2397}
constexpr GUID kClassId = {0x0355a70b, 0x533f, 0x4b03, {0xb8, 0xb3, 0xaf, 0xb1, 0x44, 0x5c, 0x23, 0x97}};
constexpr const wchar_t* kClassIdText = L"{0355a70b-533f-4b03-b8b3-afb1445c2397}";

HINSTANCE library = nullptr;

/// It is never deleted, because the library stays loaded.
class Factory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) override {
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    IDispatch* const boxes = plotsmith::test::NewBoxes();
    const HRESULT result = boxes->QueryInterface(id, object);
    boxes->Release();
    return result;
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

LSTATUS Write(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), name, REG_SZ,
                         text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) library = module;
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, void** object) {
  static Factory factory;
  if (classId != kClassId) return CLASS_E_CLASSNOTAVAILABLE;
  return factory.QueryInterface(id, object);
}

STDAPI DllCanUnloadNow() { return S_FALSE; }

STDAPI DllRegisterServer() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(library, path, MAX_PATH);
  const std::wstring server = std::wstring(L"CLSID\\") + kClassIdText + L"\\InprocServer32";
  LSTATUS status = Write(L"PlotsmithTest.Boxes\\CLSID", L"", kClassIdText);
  if (status == ERROR_SUCCESS) status = Write(server, L"", path);
  if (status == ERROR_SUCCESS) status = Write(server, L"ThreadingModel", L"Apartment");
  return HRESULT_FROM_WIN32(status);
}

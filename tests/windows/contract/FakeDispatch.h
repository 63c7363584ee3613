#pragma once

#include <functional>
#include <string>
#include <vector>

#include "windows/com/ComPtr.h"

namespace plotsmith::contract {

/// An Automation object whose calls are answered by a test.
class FakeDispatch final : public IDispatch {
 public:
  using Call =
      std::function<HRESULT(WORD flags, const DISPPARAMS& sent, VARIANT* answer, EXCEPINFO* exception)>;

  explicit FakeDispatch(Call call) : call_(std::move(call)) {}

  int lookUps = 0;  ///< The number of name look-ups.
  std::vector<std::wstring>
      names;  ///< The names that were looked up. Names that begin with "Unknown" don't exist.

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
    *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    return *object == nullptr ? E_NOINTERFACE : S_OK;
  }
  /// The test owns the object.
  ///@{
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 2; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  ///@}
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* wanted, UINT, LCID,
                                          DISPID* ids) noexcept override {
    ++lookUps;
    names.push_back(wanted[0]);
    ids[0] = static_cast<DISPID>(names.size());
    return names.back().starts_with(L"Unknown") ? DISP_E_UNKNOWNNAME : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD flags, DISPPARAMS* sent, VARIANT* answer,
                                   EXCEPINFO* exception, UINT*) noexcept override {
    return call_(flags, *sent, answer, exception);
  }

 private:
  Call call_;
};

}  // namespace plotsmith::contract

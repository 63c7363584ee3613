#pragma once

#include <algorithm>
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

  int lookUps = 0;         ///< number of look-ups of names; names that begin with "Unknown" don't exist
  int refusedLookUps = 0;  ///< the number of the next look-ups that are refused with `refusal`
  HRESULT refusal = RPC_E_CALL_REJECTED;
  std::wstring lastName;  ///< the name of the member that was last called

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
    if (refusedLookUps > 0 && refusedLookUps-- > 0) return refusal;
    const auto known = std::ranges::find(Names(), wanted[0]);
    ids[0] = static_cast<DISPID>(known - Names().begin()) + 1;
    if (known == Names().end()) Names().emplace_back(wanted[0]);
    return std::wstring_view(wanted[0]).starts_with(L"Unknown") ? DISP_E_UNKNOWNNAME : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* sent, VARIANT* answer,
                                   EXCEPINFO* exception, UINT*) noexcept override {
    lastName = id == DISPID_VALUE ? L"" : Names().at(static_cast<std::size_t>(id) - 1);
    return call_(flags, *sent, answer, exception);
  }

 private:
  /// The names of all members, by number. All objects of a class use the same numbers.
  static std::vector<std::wstring>& Names() {
    static std::vector<std::wstring> names;
    return names;
  }

  Call call_;
};

}  // namespace plotsmith::contract

#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The class object, which creates controllers. There is one for the life of the DLL, and references to it
/// keep the DLL loaded.
class ClassFactory final : public IClassFactory {
 public:
  /// Returns the only instance.
  static ClassFactory& Instance();

  /// The members of IUnknown. References keep the DLL loaded.
  ///@{
  STDMETHODIMP QueryInterface(REFIID interfaceId, void** object) noexcept override;
  STDMETHODIMP_(ULONG) AddRef() noexcept override;
  STDMETHODIMP_(ULONG) Release() noexcept override;
  ///@}

  /// The members of IClassFactory. Objects can't be aggregated.
  ///@{
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) noexcept override;
  STDMETHODIMP LockServer(BOOL lock) noexcept override;
  ///@}
};

}  // namespace plotsmith::windows

#include "windows/server/ClassFactory.h"

#include <new>

#include "windows/server/Controller.h"
#include "windows/server/Module.h"

namespace plotsmith::windows {

ClassFactory& ClassFactory::Instance() {
  static ClassFactory factory;
  return factory;
}

HRESULT ClassFactory::QueryInterface(REFIID interfaceId, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (interfaceId != IID_IUnknown && interfaceId != IID_IClassFactory) return E_NOINTERFACE;
  *object = this;
  AddRef();
  return S_OK;
}

// The object is never deleted, so the number of references is meaningless.
ULONG ClassFactory::AddRef() noexcept {
  KeepModule();
  return 2;
}

ULONG ClassFactory::Release() noexcept {
  ReleaseModule();
  return 1;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  auto* const controller = new (std::nothrow) Controller;
  if (controller == nullptr) return E_OUTOFMEMORY;
  const HRESULT answered = controller->QueryInterface(interfaceId, object);
  controller->Release();
  return answered;
}

HRESULT ClassFactory::LockServer(BOOL lock) noexcept {
  lock ? KeepModule() : ReleaseModule();
  return S_OK;
}

}  // namespace plotsmith::windows

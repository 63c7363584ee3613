#include "windows/server/TypeLibrary.h"

#include "windows/com/ComPtr.h"
#include "windows/com/Windows.h"
#include "windows/server/Module.h"

namespace plotsmith::windows {

HRESULT FindTypeInfo(REFGUID id, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  // OLE Automation caches the library that was loaded last, so this is cheap.
  com::ComPtr<ITypeLib> library;
  const HRESULT loaded = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Put());
  return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(id, info);
}

}  // namespace plotsmith::windows

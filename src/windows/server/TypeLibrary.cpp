#include "windows/server/TypeLibrary.h"

#include "windows/com/Windows.h"
#include "windows/server/Module.h"

namespace plotsmith::windows {

HRESULT FindTypeInfo(REFGUID id, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  // OLE Automation caches the library that was loaded last, so this is cheap.
  ITypeLib* library = nullptr;
  const HRESULT loaded = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, &library);
  if (FAILED(loaded)) return loaded;
  const HRESULT found = library->GetTypeInfoOfGuid(id, info);
  library->Release();
  return found;
}

}  // namespace plotsmith::windows

#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The description of an interface or a class in the type library that is built into the DLL.
HRESULT FindTypeInfo(REFGUID id, ITypeInfo** info);

}  // namespace plotsmith::windows

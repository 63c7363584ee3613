#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Finds the description of an interface or a class in the DLL's type library.
HRESULT FindTypeInfo(REFGUID id, ITypeInfo** info);

}  // namespace plotsmith::windows

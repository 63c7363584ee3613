#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Who finds the class.
enum class RegistrationScope {
  kUser,     ///< the user who registers it: HKEY_CURRENT_USER
  kMachine,  ///< all users: HKEY_LOCAL_MACHINE, which only an administrator may write
};

/// Writes what clients look the class up by: its identifier, its names, the type library, the interface.
/// After an error the registry is as it was before, so an earlier registration stays as it is.
HRESULT RegisterServer(RegistrationScope scope);

/// Removes all that. What the DLL of the other kind, 32 bits beside 64, has registered stays, and what they
/// share goes with the last of them.
HRESULT UnregisterServer(RegistrationScope scope);

}  // namespace plotsmith::windows

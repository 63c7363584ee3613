#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The users for whom the class is registered.
enum class RegistrationScope {
  kUser,     ///< the current user: HKEY_CURRENT_USER
  kMachine,  ///< all users: HKEY_LOCAL_MACHINE, which only an administrator may write
};

/// Writes the registry entries by which clients find the class: its identifier, its names, the type library
/// and the interface. After an error the registry is as it was before, including an earlier registration.
HRESULT RegisterServer(RegistrationScope scope);

/// Removes the entries that RegisterServer writes. The entries of the other DLL (32-bit or 64-bit) are kept.
/// Entries that both DLLs share are removed with the second of them.
HRESULT UnregisterServer(RegistrationScope scope);

}  // namespace plotsmith::windows

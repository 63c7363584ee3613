#pragma once

#include <string>

#include "windows/com/Windows.h"
/// @file
/// The DLL as a module of the host's process.
namespace plotsmith::windows {

/// The handle of the DLL.
HINSTANCE ModuleHandle();
/// Sets the handle of the DLL. DllMain calls this when the DLL is loaded.
void SetModuleHandle(HINSTANCE module);
/// The full path of the DLL.
std::wstring ModulePath();

/// Counts the reasons to keep the DLL loaded: objects, locks of a client, and runs.
/// @{
void KeepModule();
void ReleaseModule();
bool IsModuleKept();
///@}

/// Keeps the DLL loaded while it lives.
struct ModuleKeeper {
  ModuleKeeper() { KeepModule(); }
  ~ModuleKeeper() { ReleaseModule(); }
  ModuleKeeper(const ModuleKeeper&) = delete;
  ModuleKeeper& operator=(const ModuleKeeper&) = delete;
};

}  // namespace plotsmith::windows

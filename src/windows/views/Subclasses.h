#pragma once

#include "windows/com/Windows.h"

/// @file
/// Window subclassing with the functions of the common controls. If a program later puts its own procedure in
/// front of ours, its procedure stays when ours is removed.
namespace plotsmith::windows {

/// A procedure for the messages of a window. `data` is the argument of SetSubclass.
using SubclassProcedure = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR id, DWORD_PTR data);

/// Installs a procedure that handles the window's messages first, with this data.
void SetSubclass(HWND window, SubclassProcedure procedure, void* data);
/// Sets the data of the procedure to null. The procedure must then pass all messages on. It stays installed,
/// because removing it now could also remove procedures in front of it.
void ForgetSubclassData(HWND window, SubclassProcedure procedure);
/// Removes the procedure. Call it at WM_NCDESTROY.
void RemoveSubclass(HWND window, SubclassProcedure procedure);
/// Returns the data of the procedure, or null if it isn't installed on the window.
void* SubclassData(HWND window, SubclassProcedure procedure);
/// Passes a message on to the next procedure.
LRESULT CallNextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace plotsmith::windows

#pragma once

#include "windows/com/Windows.h"

/// @file
/// Window subclassing with the functions of the common controls. A program that later puts its own procedure
/// in front of ours keeps it when ours is removed.
namespace plotsmith::windows {

/// A procedure for the messages of a window. `data` is the argument of SetSubclass.
using SubclassProcedure = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR id, DWORD_PTR data);

/// Lets the procedure handle the window's messages first, with this data.
void SetSubclass(HWND window, SubclassProcedure procedure, void* data);
/// Lets the procedure get null for its data from now on; it then has to pass all messages on. It isn't
/// removed yet, because its removal could remove procedures in front of it.
void ForgetSubclassData(HWND window, SubclassProcedure procedure);
/// Removes the procedure. Call it at WM_NCDESTROY.
void RemoveSubclass(HWND window, SubclassProcedure procedure);
/// Returns the data of the procedure; null if it isn't installed on the window.
void* SubclassData(HWND window, SubclassProcedure procedure);
/// Passes a message on to the next procedure.
LRESULT CallNextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace plotsmith::windows

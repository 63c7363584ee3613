#pragma once

#include "windows/com/Windows.h"

/// @file
/// Procedures in front of those of windows, as the common controls chain them. A program that puts a
/// procedure of its own in front of ours later keeps it when ours is taken off.
namespace plotsmith::windows {

/// A procedure for the messages of a window. `data` is what SetSubclass was given.
using SubclassProcedure = LRESULT(CALLBACK*)(HWND, UINT, WPARAM, LPARAM, UINT_PTR id, DWORD_PTR data);

/// Has the window's messages go to the procedure first, with this data.
void SetSubclass(HWND window, SubclassProcedure procedure, void* data);
/// The procedure gets null for its data from now on, and has to pass all messages on. It isn't taken off yet,
/// as that could take off procedures in front of it.
void ForgetSubclassData(HWND window, SubclassProcedure procedure);
/// Takes the procedure off, at WM_NCDESTROY.
void RemoveSubclass(HWND window, SubclassProcedure procedure);
/// The data of the procedure; null if the window doesn't have it.
void* SubclassData(HWND window, SubclassProcedure procedure);
/// Gives a message to the procedure behind the one that got it.
LRESULT CallNextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace plotsmith::windows

#pragma once

#include "tests/support/PagesTest.h"
#include "windows/com/Windows.h"
#include "windows/views/FormsView.h"

namespace plotsmith::test {

/// Returns a simulated user that runs the scripts of the tests for pages on dialogs, with messages.
Hands HandsOnDialogs();

/// The view of the last script.
extern std::shared_ptr<windows::FormsView> theDialogs;
/// The window that the dialogs stay in front of; null for none.
extern HWND theHostWindow;

/// Return the window of the front form, or null, and that form.
///@{
HWND FrontWindow();
forms::Form& FrontForm();
///@}

/// Processes all waiting messages, like the loop.
void HandleMessages();
/// Called at the end of a function of a script. Processes the waiting messages, so that the form reacts
/// before the next line.
void EndAction();
/// The queue for actions while a script executes a line; null otherwise.
extern forms::EventQueue* theQueue;

}  // namespace plotsmith::test

#pragma once

#include "tests/support/PagesTest.h"
#include "windows/com/Windows.h"
#include "windows/views/FormsView.h"

namespace plotsmith::test {

/// Plays the scripts of the pages' tests on dialogs, by messages.
Hands HandsOnDialogs();

/// The view of the last script.
extern std::shared_ptr<windows::FormsView> theDialogs;
/// The window that the dialogs stay in front of; null for none.
extern HWND theHostWindow;

/// The window of the form in front, null if none is open; and that form.
///@{
HWND FrontWindow();
forms::Form& FrontForm();
///@}

/// Has all messages handled that wait, as the loop does.
void HandleMessages();
/// A deed of a script calls it at last: the messages that wait are handled, and the form does what came of
/// them before the next line.
void EndDeed();
/// Where gestures go while a script plays a line; null otherwise.
extern forms::EventQueue* theQueue;

}  // namespace plotsmith::test

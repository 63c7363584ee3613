#pragma once

#include <QtWidgets/QWidget>
#include <string>

#include "qt/forms/FormWindow.h"

/// What of a program is on the screen, found as a person finds it, without a pointer to the program.
namespace plotsmith::test {

/// The window that a person can work with: a box in front of all others, else a page, else the window on the
/// workbook while its bar asks something. Null while there is none.
QWidget* FrontWindow();
/// "box" for a message box, "file" for a choice of files, the form's name for a page, "bar" for the bar above
/// the workbook; "" for none.
std::string NameOf(const QWidget* window);
/// The page in front; null while something else is.
qt::FormWindow* FrontPage();
/// The window on the workbook; null while there is none.
QWidget* BookWindow();
/// What a message box, or the bar, says.
std::string TextIn(const QWidget& window);

}  // namespace plotsmith::test

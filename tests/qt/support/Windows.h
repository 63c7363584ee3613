#pragma once

#include <QtWidgets/QWidget>
#include <string>

#include "qt/forms/FormWindow.h"

/// Functions that find the windows of a program on the screen, without a pointer to the program.
namespace plotsmith::test {

/// Returns the window that the user can operate: a message box, a page, or the workbook window while its bar
/// asks a question. Null if there is none.
QWidget* FrontWindow();
/// Returns "box" for a message box, "file" for a file dialog, the form's name for a page, "bar" for the bar
/// above the workbook, and "" for others.
std::string NameOf(const QWidget* window);
/// Returns the front page, or null if another window is in front.
qt::FormWindow* FrontPage();
/// Returns the workbook window, or null.
QWidget* BookWindow();
/// Returns the text of a message box or of the bar.
std::string TextIn(const QWidget& window);

}  // namespace plotsmith::test

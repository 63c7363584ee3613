#pragma once

#include <QtGui/QImage>
#include <memory>
#include <string>

#include "qt/book/BookView.h"
#include "qt/book/SheetView.h"
#include "tests/support/HostTest.h"

namespace plotsmith::test {

/// A test of the workbook window with the host's open workbook.
class BookTest : public HostTest {
 protected:
  /// Shows the open workbook in a window of 800 by 600 pixels.
  qtbook::BookView& Show();
  qtbook::BookView& Show(const PlainBook& book) {
    Open(book);
    return Show();
  }
  qtbook::SheetView& Sheet() { return *view_->ShownSheet(); }
  /// Returns the tabs, separated by "|", with the current one in brackets.
  std::string Tabs();
  /// Returns the active cell, such as "B3".
  std::string ActiveCell();
  /// Returns a picture of the cells, without scroll bars.
  QImage Shot();
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  std::unique_ptr<qtbook::BookView> view_;
};

/// Returns styles, numbered from 1: a fill of FFEE00; centred; bold and right-aligned; a date; wrapped;
/// white text; a line below.
std::string SomeStyles();

}  // namespace plotsmith::test

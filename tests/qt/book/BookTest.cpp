#include "tests/qt/book/BookTest.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include "xlsx/sheet/Reference.h"

namespace plotsmith::test {

qtbook::BookView& BookTest::Show() {
  view_ = std::make_unique<qtbook::BookView>(host_);
  view_->resize(800, 600);
  view_->show();
  QApplication::processEvents();
  return *view_;
}

std::string BookTest::Tabs() {
  QTabBar& tabs = view_->Tabs();
  std::string text;
  for (int i = 0; i < tabs.count(); ++i) {
    const std::string name = tabs.tabText(i).toStdString();
    text += (i > 0 ? "|" : "") + (i == tabs.currentIndex() ? "[" + name + "]" : name);
  }
  return text;
}

std::string BookTest::ActiveCell() {
  const xlsx::CellPlace cell = Sheet().ActiveCell();
  return xlsx::CellAddress(cell.row, cell.column);
}

QImage BookTest::Shot() { return Sheet().viewport()->grab().toImage(); }

void BookTest::Press(int key, Qt::KeyboardModifiers modifiers) {
  QKeyEvent press(QEvent::KeyPress, key, modifiers);
  QApplication::sendEvent(&Sheet(), &press);
  QApplication::processEvents();
}

std::string SomeStyles() {
  const auto fill = [](const std::string& content) { return "<fill><patternFill " + content + "</fill>"; };
  return "<?xml version=\"1.0\"?><styleSheet "
         "xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">"
         "<fonts><font><sz val=\"11\"/><name val=\"Calibri\"/></font>"
         "<font><b/><sz val=\"11\"/><name val=\"Calibri\"/></font>"
         "<font><sz val=\"11\"/><color rgb=\"FFFFFFFF\"/><name val=\"Calibri\"/></font></fonts><fills>" +
         fill("patternType=\"none\"/>") + fill("patternType=\"gray125\"/>") +
         fill("patternType=\"solid\"><fgColor rgb=\"FFFFEE00\"/></patternFill>") +
         "</fills><borders><border/><border><bottom style=\"thin\"/></border></borders><cellXfs><xf/>"
         "<xf fillId=\"2\"/><xf><alignment horizontal=\"center\"/></xf><xf fontId=\"1\">"
         "<alignment horizontal=\"right\"/></xf><xf numFmtId=\"14\"/><xf><alignment wrapText=\"1\" "
         "vertical=\"top\"/></xf><xf fontId=\"2\"/><xf borderId=\"1\"/></cellXfs></styleSheet>";
}

}  // namespace plotsmith::test

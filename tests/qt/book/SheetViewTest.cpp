#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>
#include <cmath>
#include <nlohmann/json.hpp>

#include "host/excel/ChartObject.h"
#include "host/excel/ChartObjects.h"
#include "host/excel/Constants.h"
#include "host/excel/Shape.h"
#include "host/excel/Shapes.h"
#include "qt/book/CellPainter.h"
#include "qt/book/SheetView.h"
#include "tests/qt/book/BookTest.h"
#include "tests/support/Paths.h"
#include "tests/support/RunCommand.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::qtbook {
namespace {

using S = std::string;
using test::RawCell;
using xlsx::CellPlace;

class SheetViewTest : public test::BookTest {
 protected:
  /// Returns the position of the text in its cell: "left", "middle", "right" or "none".
  S SideOfInk(const CellPlace& cell) {
    const QRect area = Sheet().CellArea(cell).adjusted(1, 1, -2, -2);
    const QImage shot = Shot();
    int first = area.right() + 1, last = area.left() - 1;
    for (int x = area.left(); x <= area.right(); ++x) {
      for (int y = area.top(); y <= area.bottom(); ++y) {
        if (shot.pixelColor(x, y) == shot.pixelColor(area.topLeft())) continue;
        first = std::min(first, x);
        last = std::max(last, x);
      }
    }
    if (last < first) return "none";
    const int left = first - area.left(), right = area.right() - last;
    if (std::abs(left - right) <= 3) return "middle";
    return left < right ? "left" : "right";
  }
  void Click(const QPoint& point) {
    QMouseEvent press(QEvent::MouseButtonPress, point, Sheet().viewport()->mapToGlobal(QPointF(point)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Sheet().viewport(), &press);
  }
};

/// Returns a workbook with one row of cells.
test::PlainBook RowBook(test::PlainRow cells) {
  auto book = test::SalesBook({});
  book.styles = test::SomeStyles();
  book.Sheet("Data1").rows = {std::move(cells)};
  return book;
}

TEST_F(SheetViewTest, TextsAreTheSameAsInTheCommand) {
  const S path = S(test::kSourceFolder) + "/examples/bicycle-sales.xlsx";
  OpenFile(path);
  Show();
  const auto command = test::RunCommand({"cells", path, "Sales!A1:F40", "--json"});
  const auto rows = nlohmann::json::parse(command.out);
  ASSERT_EQ(rows.size(), 40U);
  for (int row = 1; row <= 40; ++row) {
    for (int column = 1; column <= 6; ++column) {
      EXPECT_EQ(Sheet().Source().CellAt(row, column).text,
                rows[static_cast<std::size_t>(row) - 1][static_cast<std::size_t>(column) - 1].get<S>());
    }
  }
}

TEST_F(SheetViewTest, TextsAreAlignedByTheirKindOrStyle) {
  const struct {
    const char* cell;
    S side;
  } cases[] = {
      {"><v>12</v></c>", "right"},
      {" t=\"str\"><v>ab</v></c>", "left"},
      {" t=\"b\"><v>1</v></c>", "middle"},
      {" t=\"e\"><v>#N/A</v></c>", "middle"},
      {" s=\"4\"><v>45000</v></c>", "right"},
      {" s=\"2\"><v>12</v></c>", "middle"},
      {" s=\"3\" t=\"str\"><v>ab</v></c>", "right"},
      {" s=\"1\" t=\"str\"><v>ab</v></c>", "left"},
      {"></c>", "none"},
  };
  test::PlainRow cells = {std::monostate()};  // The first cell is active and has a frame.
  for (const auto& c : cases) cells.push_back(RawCell{c.cell});
  auto book = RowBook(cells);
  book.Sheet("Data1").beforeData = "<cols><col min=\"1\" max=\"20\" width=\"12\"/></cols>";
  Show(book);
  view_->resize(1200, 300);
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(SideOfInk({1, static_cast<std::int32_t>(i) + 2}), cases[i].side) << cases[i].cell;
  }
}

TEST_F(SheetViewTest, ALongTextExtendsOverEmptyCellsAndALongNumberDoesNot) {
  const S text = " t=\"str\"><v>A text longer than two cells</v></c>";
  Show(RowBook({std::monostate(), RawCell{text}, std::monostate(), std::monostate(), 7.0, RawCell{text}, 8.0,
                RawCell{" s=\"4\"><v>45000</v></c>"}, std::monostate(), RawCell{" s=\"5\"" + text},
                std::monostate()}));
  view_->resize(1000, 300);
  EXPECT_EQ(SideOfInk({1, 3}), "middle");  // The text continues here, from edge to edge.
  EXPECT_EQ(SideOfInk({1, 4}), "left");
  EXPECT_EQ(SideOfInk({1, 5}), "right");
  EXPECT_EQ(SideOfInk({1, 7}), "right");  // A text doesn't extend over a cell with contents.
  EXPECT_EQ(SideOfInk({1, 9}), "none");
  EXPECT_EQ(SideOfInk({1, 11}), "none");  // A wrapped text stays in its cell.
  // After scrolling, the text still extends into the window.
  Sheet().horizontalScrollBar()->setValue(128 + 20);
  EXPECT_NE(SideOfInk({1, 4}), "none");
}

TEST_F(SheetViewTest, NumbersAreCutToTheirCells) {
  Show(RowBook({1234.5678, RawCell{" s=\"4\"><v>45000</v></c>"}, -0.123456, 1e20, 0.99}));
  SheetSource& source = Sheet().Source();
  CellPainter painter(source, view_->palette(), 1);
  const auto fitted = [&](int column, int characters) {
    const int digit = QFontMetrics(painter.NormalFont()).horizontalAdvance('0');
    return painter.FittedText(source.CellAt(1, column), characters * digit + 3).toStdString();
  };
  EXPECT_EQ(fitted(1, 20), "1234.5678");
  EXPECT_EQ(fitted(1, 7), "1234.57");
  EXPECT_EQ(fitted(1, 5), "1235");
  EXPECT_EQ(fitted(1, 3).find_first_not_of('#'), S::npos);
  EXPECT_EQ(fitted(2, 20), "3/15/2023");
  EXPECT_EQ(fitted(2, 6).find_first_not_of('#'), S::npos);
  EXPECT_EQ(fitted(3, 6), "-0.123");
  EXPECT_EQ(fitted(4, 3).find_first_not_of('#'), S::npos);
  EXPECT_EQ(fitted(5, 2), "1");
}

TEST_F(SheetViewTest, CellsAndFramesHaveTheHostsPositions) {
  auto book = test::SalesBook({test::Definition{}, test::Definition{}});
  book.Sheet("Charts").beforeData =
      "<sheetFormatPr defaultRowHeight=\"13.5\"/><cols><col min=\"2\" max=\"2\" width=\"3.3\"/>"
      "<col min=\"4\" max=\"5\" width=\"9\" hidden=\"1\"/></cols>";
  book.workbookExtra = "<bookViews><workbookView activeTab=\"1\"/></bookViews>";
  Show(book);
  const auto sheet = Book().FindWorksheet("Charts");
  for (const double zoom : {1.0, 1.5, 0.5, 1.2}) {
    Sheet().SetZoom(zoom);
    const QPoint corner = Sheet().CellArea({1, 1}).topLeft();
    const auto pixel = [&](double points) { return static_cast<int>(std::lround(points * zoom * 96 / 72)); };
    for (int line = 0; line < 8; ++line) {
      const QRect area = Sheet().CellArea({line + 1, line + 1});
      const auto &columns = sheet->Geometry().columns, &rows = sheet->Geometry().rows;
      EXPECT_EQ(area.topLeft() - corner, QPoint(pixel(columns.EdgeOf(line)), pixel(rows.EdgeOf(line))));
      EXPECT_EQ(area.right() + 1 - corner.x(), pixel(columns.EdgeOf(line + 1)));
      EXPECT_EQ(area.bottom() + 1 - corner.y(), pixel(rows.EdgeOf(line + 1)));
    }
    for (int i = 0; i < 2; ++i) {
      const auto shape = sheet->Shapes()->Item(i + 1);
      const QRect area = Sheet().FrameArea(Sheet().Frames()[static_cast<std::size_t>(i)]);
      EXPECT_EQ(area.topLeft() - corner, QPoint(pixel(shape->Left()), pixel(shape->Top())));
      EXPECT_EQ(area.right() + 1 - corner.x(), pixel(shape->Left() + shape->Width()));
    }
  }
}

TEST_F(SheetViewTest, AMillionRowsAreAskedForOneWindowAtATime) {
  auto book = test::SalesBook({});
  book.Write(folder_ / "million.xlsx");
  test::EditPart(folder_ / "million.xlsx", "/xl/worksheets/sheet1.xml", [](S& part) {
    S rows;
    for (int row = 1; row <= xlsx::limits::kRows; ++row) {
      const S number = std::to_string(row);
      rows += "<row r=\"" + number + "\"><c r=\"A" + number + "\"><v>" + number + "</v></c></row>";
    }
    const auto from = part.find("<sheetData>") + 11;
    part.replace(from, part.find("</sheetData>") - from, rows);
  });
  OpenFile(folder_ / "million.xlsx");
  Show();
  const auto asked = [&](const std::function<void()>& move) {
    const auto before = Sheet().Source().CellsRead();
    move();
    Shot();
    return Sheet().Source().CellsRead() - before;
  };
  // The visible cells are read once for the move event and once for the picture, and a few more at the edge.
  const QSize size = Sheet().viewport()->size();
  const auto most = static_cast<std::uint64_t>(2 * (size.width() / 64 + 2) * (size.height() / 20 + 2) + 10);
  EXPECT_LT(asked([] {}), most);
  EXPECT_LT(asked([&] { Press(Qt::Key_End, Qt::ControlModifier); }), most);
  EXPECT_EQ(ActiveCell(), "A1048576");
  EXPECT_EQ(Sheet().ActiveText(), "1048576");
  EXPECT_LT(asked([&] { Press(Qt::Key_PageUp); }), most);
  EXPECT_LT(asked([&] { Sheet().verticalScrollBar()->setValue(9'999'999); }), most);
  EXPECT_LT(asked([&] { Sheet().SetActiveCell({xlsx::limits::kRows, xlsx::limits::kColumns}); }), most);
  EXPECT_EQ(ActiveCell(), "XFD1048576");
  EXPECT_TRUE(
      Sheet().viewport()->rect().contains(Sheet().CellArea({xlsx::limits::kRows, xlsx::limits::kColumns})));
}

TEST_F(SheetViewTest, KeysMoveTheActiveCell) {
  auto book = test::SalesBook({});  // A1:D5
  book.Sheet("Data1").beforeData = "<cols><col min=\"3\" max=\"3\" width=\"9\" hidden=\"1\"/></cols>";
  book.Sheet("Data1").afterData = "<mergeCells><mergeCell ref=\"A7:B8\"/></mergeCells>";
  Show(book);
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    S cell;
  } steps[] = {
      {Qt::Key_Up, Qt::NoModifier, "A1"},         {Qt::Key_Right, Qt::NoModifier, "B1"},
      {Qt::Key_Right, Qt::NoModifier, "D1"},  // C is hidden
      {Qt::Key_Down, Qt::ControlModifier, "D5"},  {Qt::Key_Down, Qt::ControlModifier, "D1048576"},
      {Qt::Key_Down, Qt::NoModifier, "D1048576"}, {Qt::Key_Up, Qt::ControlModifier, "D5"},
      {Qt::Key_Home, Qt::NoModifier, "A5"},       {Qt::Key_Right, Qt::ControlModifier, "D5"},
      {Qt::Key_Home, Qt::ControlModifier, "A1"},  {Qt::Key_End, Qt::ControlModifier, "D5"},
      {Qt::Key_Left, Qt::NoModifier, "B5"},       {Qt::Key_Down, Qt::NoModifier, "B6"},
      {Qt::Key_Down, Qt::NoModifier, "A7"},  // The cell is merged with B8.
      {Qt::Key_Down, Qt::NoModifier, "A9"},       {Qt::Key_Up, Qt::NoModifier, "A7"},
      {Qt::Key_Right, Qt::NoModifier, "D7"},      {Qt::Key_F7, Qt::NoModifier, "D7"},
  };
  for (const auto& step : steps) {
    Press(step.key, step.modifiers);
    EXPECT_EQ(ActiveCell(), step.cell);
    EXPECT_TRUE(Sheet().viewport()->rect().contains(Sheet().CellArea(Sheet().ActiveCell()))) << step.cell;
  }
  Press(Qt::Key_PageDown);
  Press(Qt::Key_PageDown);
  EXPECT_GT(Sheet().ActiveCell().row, 40);
  EXPECT_GT(Sheet().verticalScrollBar()->value(), 0);
  Press(Qt::Key_PageUp);
  Press(Qt::Key_PageUp);
  EXPECT_EQ(Sheet().verticalScrollBar()->value(), 0);
  Click(Sheet().CellArea({8, 2}).center());
  EXPECT_EQ(ActiveCell(), "A7");
  Click(QPoint(2, 2));  // The click is on a heading.
  EXPECT_EQ(ActiveCell(), "A7");
}

TEST_F(SheetViewTest, KeysZoomAroundTheCorner) {
  Show(test::SalesBook({}));
  Sheet().SetActiveCell({500, 1});
  Sheet().verticalScrollBar()->setValue(Sheet().verticalScrollBar()->value() / 20 * 20);
  const int corner = Sheet().verticalScrollBar()->value();
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Sheet().Zoom(), 1.3);
  EXPECT_EQ(Sheet().CellArea({1, 1}).height(), 26);
  EXPECT_EQ(Sheet().verticalScrollBar()->value(), corner * 13 / 10);
  for (int i = 0; i < 20; ++i) Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Sheet().Zoom(), 0.5);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Sheet().verticalScrollBar()->value(), corner);
}

TEST_F(SheetViewTest, FrozenRowsAndColumnsStayWhileTheRestScrolls) {
  auto book = test::SalesBook({});
  book.Sheet("Data1").beforeData =
      "<sheetViews><sheetView><pane xSplit=\"1\" ySplit=\"2\" topLeftCell=\"C50\" activePane=\"bottomRight\" "
      "state=\"frozen\"/><selection pane=\"bottomRight\" activeCell=\"D60\"/></sheetView></sheetViews>";
  Show(book);
  const QPoint corner = Sheet().CellArea({1, 1}).topLeft();
  EXPECT_EQ(ActiveCell(), "D60");
  EXPECT_EQ(Sheet().CellArea({50, 3}).topLeft() - corner, QPoint(64, 40));  // beside A, below row 2
  EXPECT_EQ(Sheet().CellArea({2, 3}).topLeft() - corner, QPoint(64, 20));
  Press(Qt::Key_Home, Qt::ControlModifier);
  Press(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(ActiveCell(), "D5");
  EXPECT_TRUE(Sheet().viewport()->rect().contains(Sheet().CellArea({5, 4})));
  EXPECT_EQ(Sheet().CellArea({1, 1}).topLeft(), corner);
  // Frozen rows and columns that would fill the window scroll as well.
  view_->resize(120, 150);
  QApplication::processEvents();
  Sheet().SetActiveCell({300, 1});
  EXPECT_TRUE(Sheet().viewport()->rect().contains(Sheet().CellArea({300, 1}).topLeft()));
}

TEST_F(SheetViewTest, ColorsComeFromThePaletteAndTheWorkbook) {
  auto book = RowBook({RawCell{"><v>1</v></c>"}, RawCell{" s=\"1\"><v>5</v></c>"},
                       RawCell{" s=\"6\" t=\"str\"><v>white</v></c>"}, RawCell{" s=\"7\"/"}});
  Show(book);
  const QPalette light = view_->palette();
  QPalette dark = light;
  for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Text, QPalette::Button,
                                         QPalette::ButtonText, QPalette::Window, QPalette::WindowText}) {
    const QColor color = light.color(role);
    dark.setColor(role, QColor(255 - color.red(), 255 - color.green(), 255 - color.blue()));
  }
  const auto colors = [&] {
    const QImage shot = Shot();
    const QPoint head = Sheet().CellArea({1, 4}).topLeft() + QPoint(3, -3);
    int bright = 0;
    for (int y = 0; y < shot.height(); ++y) {
      for (int x = 0; x < shot.width(); ++x) bright += shot.pixelColor(x, y).lightnessF() > 0.5F ? 1 : 0;
    }
    const double share = static_cast<double>(bright) / (shot.width() * shot.height());
    return std::tuple(shot.pixelColor(Sheet().CellArea({9, 9}).center()), shot.pixelColor(head),
                      shot.pixelColor(Sheet().CellArea({1, 2}).topLeft() + QPoint(3, 3)), share);
  };
  const QColor fill(0xFF, 0xEE, 0x00);
  const auto [cell, head, filled, bright] = colors();
  EXPECT_EQ(cell, light.color(QPalette::Base));
  EXPECT_EQ(head, light.color(QPalette::Button));
  EXPECT_EQ(filled, fill);
  const QRect bordered = Sheet().CellArea({1, 4});
  EXPECT_EQ(Shot().pixelColor(bordered.center().x(), bordered.bottom()), light.color(QPalette::Text));
  EXPECT_EQ(SideOfInk({1, 3}), "left");  // White on white would be invisible.
  view_->setPalette(dark);
  QApplication::processEvents();
  const auto [darkCell, darkHead, darkFilled, darkBright] = colors();
  EXPECT_EQ(darkCell, dark.color(QPalette::Base));
  EXPECT_EQ(darkHead, dark.color(QPalette::Button));
  EXPECT_EQ(darkFilled, fill);
  EXPECT_EQ(SideOfInk({1, 2}), "right");  // A light text on the fill would also be invisible.
  // Only texts and the fill are bright.
  EXPECT_GT(bright, 0.9);
  EXPECT_LT(darkBright, 0.1);
}

TEST_F(SheetViewTest, ChartsAreDrawnWhenTheyBecomeVisibleOrChange) {
  auto book = test::SalesBook({test::Definition{}, test::Definition{}});
  book.workbookExtra = "<bookViews><workbookView activeTab=\"1\"/></bookViews>";
  book.Sheet("Charts").frames[1].row = 5000;
  BookView& view = Show(book);
  std::vector<S> drawn;
  bool draws = true;
  view.SetChartPainter([&](QPainter& painter, const excel::Ref<excel::Chart>& chart, const QRectF& area) {
    drawn.push_back(std::to_string(chart->ChartType()) + " " + std::to_string(std::lround(area.width())));
    if (draws) painter.fillRect(area, Qt::red);
    return draws;
  });
  const QPoint place = Sheet().FrameArea(Sheet().Frames()[0]).center();
  EXPECT_EQ(Shot().pixelColor(place), QColor(Qt::red));
  Shot();
  EXPECT_EQ(drawn, (std::vector<S>{"51 512"}));  // The other chart is far below.
  const auto sheet = Book().FindWorksheet("Charts");
  sheet->Shapes()->Item(1)->SetWidth(192);
  view.Update();
  EXPECT_EQ(drawn.size(), 1U);
  Shot();
  EXPECT_EQ(drawn.back(), "51 256");
  sheet->ChartObjects()->Item("Chart 1")->Chart()->SetChartType(excel::xlPie);
  view.Update();
  Shot();
  EXPECT_EQ(drawn.back(), "5 256");
  draws = false;
  sheet->Shapes()->Item(1)->SetWidth(300);
  view.Update();
  EXPECT_NE(Shot().pixelColor(place), QColor(Qt::red));
  // The chart is deleted before the window is updated.
  sheet->Shapes()->Item(1)->Delete();
  Shot();
  view.Update();
  EXPECT_EQ(Sheet().Frames().size(), 1U);
}

TEST_F(SheetViewTest, AFrameShowsTitleAndTypeOfItsChart) {
  OpenFile(S(test::kSourceFolder) + "/examples/bicycle-sales.xlsx");
  Book().Tabs().Find("Charts")->object->Activate();
  Show();
  ASSERT_GE(Sheet().Frames().size(), 3U);
  const ChartCaption wanted[] = {{"Revenue by quarter and region", "Column chart"},
                                 {"What each region sells", "Stacked bar chart"},
                                 {"Share of the lines", "100% stacked area chart"}};
  for (std::size_t i = 0; i < std::size(wanted); ++i) {
    const ChartCaption caption = CaptionOf(Sheet().Frames()[i]);
    EXPECT_EQ(caption, wanted[i]) << caption.title.toStdString() << ", " << caption.type.toStdString();
  }
}

TEST_F(SheetViewTest, ScreenReadersGetTheActiveCell) {
  Show(test::SalesBook({}));
  QAccessibleInterface* sheet = QAccessible::queryAccessibleInterface(&Sheet());
  ASSERT_NE(sheet, nullptr);
  EXPECT_EQ(sheet->role(), QAccessible::Table);
  EXPECT_EQ(sheet->text(QAccessible::Name), "Sheet Data1");
  Press(Qt::Key_Down);
  EXPECT_EQ(sheet->text(QAccessible::Value), "A2: East");
  Sheet().SetActiveCell({50, 50});
  EXPECT_EQ(sheet->text(QAccessible::Value), "AX50");
}

}  // namespace
}  // namespace plotsmith::qtbook

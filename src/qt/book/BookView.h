#pragma once

#include <QtWidgets/QLabel>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QWidget>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qt/book/FramePainter.h"
#include "xlsx/Application.h"

namespace plotsmith::xlsx {
struct SheetEntry;
}

namespace plotsmith::qtbook {

class SheetPage;
class SheetView;

/// The workbook that the host has open, in a window, to be looked at: the sheets with a tab for each, and
/// above them the active cell and what it shows. Hidden sheets have dimmed tabs, very hidden ones have none.
/// To turn to another sheet here doesn't make it the active sheet of the workbook. The host has to keep the
/// workbook open as long as the window is there.
class BookView : public QWidget {
 public:
  explicit BookView(std::shared_ptr<xlsx::Application> host, QWidget* parent = nullptr);
  ~BookView() override;

  /// Charts are drawn with it from now on; without one, a chart is a frame with its title and type.
  void SetChartPainter(ChartPainter painter);

  /// Catches up with the host: to be called when the system has run. It costs next to nothing if nothing was
  /// changed there. The window turns to the active sheet if a sheet or a cell was made the active one.
  void Update();
  /// Turns to the workbook's active sheet, wherever the user has turned to.
  void ShowActive();
  /// Turns to the sheet that has the chart of the alternative text, and scrolls to it. Returns false if there
  /// is none on a sheet with a tab.
  bool Reveal(const std::string& alternativeText);

  QTabBar& Tabs() { return *tabs_; }
  /// The worksheet that is shown; null for a chart sheet, and in a workbook without any sheet to show.
  SheetView* ShownSheet();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// A sheet with a tab.
  struct Tab {
    std::weak_ptr<xlsx::SheetEntry> sheet;
    QString name;
    bool hidden = false;
    SheetPage* page = nullptr;  ///< made when the sheet is first shown
    std::uint64_t seen = 0;     ///< the host's count of calls when the page last looked at it
  };

  std::vector<Tab> ListTabs();
  void UpdateTabs();
  void ColorTabs();
  void TurnTo(int tab);
  void ShowTab(int tab);
  SheetPage* MakePage(const Tab& tab);
  void ShowActiveCell();

  std::shared_ptr<xlsx::Application> host_;
  ChartPainter chartPainter_;
  std::vector<Tab> list_;
  std::uint64_t calls_ = 0, activations_ = 0;  ///< the host's counts when it was last looked at
  QLabel* address_;
  QLabel* content_;
  QStackedWidget* pages_;
  QTabBar* tabs_;
};

}  // namespace plotsmith::qtbook

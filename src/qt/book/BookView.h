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

/// A window that shows the host's workbook, read only: a tab for each sheet, and above them the active cell
/// and its contents. Tabs of hidden sheets are dimmed, and very hidden sheets have no tab. Selecting a tab
/// doesn't change the active sheet of the workbook. The workbook must stay open in the host while the window
/// exists.
class BookView : public QWidget {
 public:
  /// Makes a window for the host's workbook.
  explicit BookView(std::shared_ptr<xlsx::Application> host, QWidget* parent = nullptr);
  ~BookView() override;

  /// Sets the function that draws charts. Without it, a chart is shown as a frame with title and type.
  void SetChartPainter(ChartPainter painter);

  /// Updates the window from the host after the system has run. It is fast if nothing has changed. The window
  /// shows the active sheet if a sheet or a cell was activated.
  void Update();
  /// Shows the workbook's active sheet.
  void ShowActive();
  /// Shows the sheet with the chart that has this alternative text, and scrolls to the chart. Returns false
  /// if no sheet with a tab has such a chart.
  bool Reveal(const std::string& alternativeText);

  /// The tabs of the sheets.
  QTabBar& Tabs() { return *tabs_; }
  /// The visible worksheet, or null for a chart sheet and in a workbook without visible sheets.
  SheetView* ShownSheet();

 protected:
  /// Switch to another sheet with Ctrl+Page Up and Ctrl+Page Down, and adapt the tabs to a change of colours.
  ///@{
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  ///@}

 private:
  /// A sheet with a tab.
  struct Tab {
    std::weak_ptr<xlsx::SheetEntry> sheet;
    QString name;
    bool hidden = false;
    SheetPage* page = nullptr;  ///< The page; null until the sheet is first shown.
    std::uint64_t seen = 0;     ///< The host's count of calls at the page's last update.
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
  std::uint64_t calls_ = 0, activations_ = 0;  ///< The host's counts at the last update.
  QLabel* address_;
  QLabel* content_;
  QStackedWidget* pages_;
  QTabBar* tabs_;
};

}  // namespace plotsmith::qtbook

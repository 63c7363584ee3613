#pragma once

#include <QtWidgets/QWidget>
#include <functional>

#include "host/excel/Chart.h"
#include "qt/book/FramePainter.h"

namespace plotsmith::qtbook {

class SheetView;

/// The page of a window that shows a sheet of any kind.
class SheetPage {
 public:
  virtual ~SheetPage() = default;
  /// The widget of the page, which owns the page.
  virtual QWidget& Widget() = 0;
  /// The view of the sheet's cells, or null for a chart sheet.
  virtual SheetView* Cells() = 0;
  /// Sets the function that draws charts. Without it, a chart is shown as a frame with title and type.
  virtual void SetChartPainter(const ChartPainter& painter) = 0;
  /// Updates the page from the host.
  virtual void Refresh() = 0;
};

/// The page of a chart sheet, whose chart fills the window.
class ChartSheetPage final : public QWidget, public SheetPage {
 public:
  /// Makes a page. `chart` returns Nothing if the chart can't be read.
  ChartSheetPage(const QString& name, std::function<excel::Ref<excel::Chart>()> chart, QWidget* parent);

  QWidget& Widget() override { return *this; }
  SheetView* Cells() override { return nullptr; }
  void SetChartPainter(const ChartPainter& painter) override;
  void Refresh() override;

 protected:
  /// Paints the chart, fitted to the page.
  void paintEvent(QPaintEvent* event) override;

 private:
  ShownFrame frame_;
  FramePainter painter_;
};

}  // namespace plotsmith::qtbook

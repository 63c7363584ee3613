#pragma once

#include <QtWidgets/QWidget>
#include <functional>

#include "host/excel/Chart.h"
#include "qt/book/FramePainter.h"

namespace plotsmith::qtbook {

class SheetView;

/// What a window shows of one sheet of any kind.
class SheetPage {
 public:
  virtual ~SheetPage() = default;
  /// The page's widget, which owns the page.
  virtual QWidget& Widget() = 0;
  /// The sheet's cells; null for a chart sheet.
  virtual SheetView* Cells() = 0;
  virtual void SetChartPainter(const ChartPainter& painter) = 0;
  /// Looks at the host again.
  virtual void Refresh() = 0;
};

/// A chart sheet: its chart fills the window.
class ChartSheetPage final : public QWidget, public SheetPage {
 public:
  /// `chart` answers Nothing while the chart can't be read.
  ChartSheetPage(const QString& name, std::function<excel::Ref<excel::Chart>()> chart, QWidget* parent);

  QWidget& Widget() override { return *this; }
  SheetView* Cells() override { return nullptr; }
  void SetChartPainter(const ChartPainter& painter) override;
  void Refresh() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ShownFrame frame_;
  FramePainter painter_;
};

}  // namespace plotsmith::qtbook

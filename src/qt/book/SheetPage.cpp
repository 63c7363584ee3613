#include "qt/book/SheetPage.h"

#include <QtGui/QPainter>
#include <utility>

namespace plotsmith::qtbook {
namespace {

constexpr int kMargin = 12;

}  // namespace

ChartSheetPage::ChartSheetPage(const QString& name, std::function<excel::Ref<excel::Chart>()> chart,
                               QWidget* parent)
    : QWidget(parent) {
  frame_.isChart = true;
  frame_.label = name;
  frame_.chart = std::move(chart);
  setFocusPolicy(Qt::StrongFocus);
  Refresh();
}

void ChartSheetPage::SetChartPainter(const ChartPainter& painter) {
  painter_.SetChartPainter(painter);
  update();
}

void ChartSheetPage::Refresh() {
  painter_.DiscardPictures();
  const ChartCaption caption = CaptionOf(frame_);
  setAccessibleName(caption.title);
  setAccessibleDescription(caption.type);
  update();
}

void ChartSheetPage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter_.Paint(painter, 0, frame_, rect().adjusted(kMargin, kMargin, -kMargin, -kMargin), palette(),
                 font());
}

}  // namespace plotsmith::qtbook

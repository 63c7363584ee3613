#include "qt/forms/LayoutBuilder.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>
#include <algorithm>

namespace plotsmith::qt {
namespace {

using forms::Layout;

class Builder {
 public:
  explicit Builder(const std::function<QWidget*(const forms::Control&)>& widgetOf) : widgetOf_(widgetOf) {}

  QLayout* Build(const Layout& layout) {
    switch (layout.kind) {
      case Layout::Kind::kGrid:
        return Grid(layout);
      case Layout::Kind::kStack:
        return Stack(layout);
      case Layout::Kind::kRow:
        return Box(layout, new QHBoxLayout);
      case Layout::Kind::kColumn:
        return Box(layout, new QVBoxLayout);
      default: {
        Layout row{Layout::Kind::kRow};
        row.parts.push_back(layout);
        return Build(row);
      }
    }
  }

 private:
  QLayout* Box(const Layout& layout, QBoxLayout* box) {
    box->setContentsMargins(0, 0, 0, 0);
    const bool isBesideList = layout.kind == Layout::Kind::kRow && HasLines(layout);
    for (const Layout& part : layout.parts) {
      if (part.kind == Layout::Kind::kSpace) {
        box->addStretch(part.stretch);
      } else if (QWidget* widget = WidgetOf(part)) {
        const bool isOption = qobject_cast<QAbstractButton*>(widget) != nullptr;
        box->addWidget(widget, part.stretch, isBesideList && isOption ? Qt::AlignTop : Qt::Alignment());
      } else {
        box->addLayout(Build(part), part.stretch);
      }
    }
    return box;
  }

  QLayout* Grid(const Layout& layout) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    int place = 0;
    for (const Layout& part : layout.parts) {
      const int row = place / layout.columns, column = place % layout.columns;
      ++place;
      grid->setColumnStretch(column, std::max(grid->columnStretch(column), part.stretch));
      if (QWidget* widget = WidgetOf(part)) {
        grid->addWidget(widget, row, column);
      } else if (part.kind != Layout::Kind::kSpace) {
        grid->addLayout(Build(part), row, column);
      }
    }
    return grid;
  }

  QLayout* Stack(const Layout& layout) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    for (const Layout& part : layout.parts) grid->addWidget(WidgetOf(part), 0, 0);
    return grid;
  }

  /// Returns the widget of a part that is a control, with its minimum size and its contents, or null for
  /// other parts.
  QWidget* WidgetOf(const Layout& part) {
    if (part.kind != Layout::Kind::kControl) return nullptr;
    QWidget* const widget = widgetOf_(*part.control);
    if (!part.parts.empty()) widget->setLayout(Inside(part.parts.front()));
    SetLeastSize(*widget, part);
    return widget;
  }

  QLayout* Inside(const Layout& layout) {
    QLayout* const inside = Build(layout);
    inside->setContentsMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
    return inside;
  }

  static bool HasLines(const Layout& layout) {
    return std::any_of(layout.parts.begin(), layout.parts.end(),
                       [](const Layout& part) { return part.lines > 0; });
  }

  static void SetLeastSize(QWidget& widget, const Layout& part) {
    const QFontMetrics metrics(widget.font());
    if (part.characters > 0) widget.setMinimumWidth(part.characters * metrics.averageCharWidth());
    if (part.lines == 0) return;
    // The size hint of a list has more lines than necessary, and a layout would use it.
    widget.setMinimumHeight(part.lines * (metrics.height() + kLineGap) + kListBorders);
    widget.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  }

  static constexpr int kFrameMargin = 8;
  static constexpr int kLineGap = 2;
  static constexpr int kListBorders = 4;

  const std::function<QWidget*(const forms::Control&)>& widgetOf_;
};

}  // namespace

QLayout* BuildLayout(const forms::Layout& layout,
                     const std::function<QWidget*(const forms::Control&)>& widgetOf) {
  return Builder(widgetOf).Build(layout);
}

}  // namespace plotsmith::qt

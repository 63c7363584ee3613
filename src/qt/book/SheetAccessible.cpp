#include "qt/book/SheetAccessible.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

#include "qt/Texts.h"
#include "qt/book/SheetView.h"

namespace plotsmith::qtbook {
namespace {

class SheetAccessible final : public QAccessibleWidget {
 public:
  explicit SheetAccessible(SheetView* view) : QAccessibleWidget(view, QAccessible::Table), view_(view) {}

  /// Returns the widget's accessible name as name, and a value such as "B3: 1,200".
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
    const xlsx::CellPlace cell = view_->ActiveCell();
    const QString address = qt::TextOf(xlsx::CellAddress(cell.row, cell.column));
    const QString shown = view_->ActiveText();
    return shown.isEmpty() ? address : address + QStringLiteral(": ") + shown;
  }

 private:
  SheetView* view_;
};

QAccessibleInterface* MakeSheetAccessible(const QString&, QObject* object) {
  auto* view = dynamic_cast<SheetView*>(object);
  return view == nullptr ? nullptr : new SheetAccessible(view);
}

}  // namespace

void InstallSheetAccessible() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeSheetAccessible);
    return true;
  }();
  static_cast<void>(installed);
}

void ReportActiveCell(SheetView& view) {
  if (!QAccessible::isActive()) return;
  QAccessibleValueChangeEvent event(&view, QVariant());
  QAccessible::updateAccessibility(&event);
}

}  // namespace plotsmith::qtbook

#include "qt/wizard/MessageBox.h"

#include "common/PSConstants.h"
#include "qt/Texts.h"
#include "qt/forms/ControlView.h"
#include "qt/wizard/EventLoop.h"

namespace plotsmith::qt {

QMessageBox::StandardButton ShowMessageBox(QWidget* owner, QMessageBox::Icon icon, const QString& text,
                                           QMessageBox::StandardButtons buttons,
                                           QMessageBox::StandardButton defaultButton,
                                           std::string_view title) {
  QMessageBox box(icon, TextOf(title.empty() ? std::string_view(kProductTitle) : title), text, buttons,
                  owner);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(defaultButton);
  return static_cast<QMessageBox::StandardButton>(RunDialog(box));
}

}  // namespace plotsmith::qt

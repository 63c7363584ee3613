#pragma once

#include <QtWidgets/QMessageBox>
#include <string_view>

namespace plotsmith::qt {

/// Shows a text in a window of its own in front of `owner`, which may be null, and waits for the answer. The
/// text is shown as it is, without any markup. An empty title means the product's.
QMessageBox::StandardButton ShowMessageBox(QWidget* owner, QMessageBox::Icon icon, const QString& text,
                                           QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                           QMessageBox::StandardButton defaultButton = QMessageBox::Ok,
                                           std::string_view title = {});

}  // namespace plotsmith::qt

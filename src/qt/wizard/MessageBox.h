#pragma once

#include <QtWidgets/QMessageBox>
#include <string_view>

namespace plotsmith::qt {

/// Shows a message box in front of `owner`, which may be null, and waits for the answer. The text is plain
/// text. An empty title means the product's title.
QMessageBox::StandardButton ShowMessageBox(QWidget* owner, QMessageBox::Icon icon, const QString& text,
                                           QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                           QMessageBox::StandardButton defaultButton = QMessageBox::Ok,
                                           std::string_view title = {});

}  // namespace plotsmith::qt

#pragma once

#include <QtCore/QString>
#include <string>
#include <string_view>

namespace plotsmith::qt {

/// Convert between UTF-8 texts and Qt's strings.
///@{
inline QString TextOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string TextOf(const QString& text) { return text.toStdString(); }
///@}

}  // namespace plotsmith::qt

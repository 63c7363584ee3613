#pragma once

#include <QtCore/QString>
#include <string_view>

namespace plotsmith::qtbook {

/// Converts a text of the host, which is UTF-8.
inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace plotsmith::qtbook

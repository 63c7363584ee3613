#pragma once

#include <optional>

#include "xlsx/drawing/Theme.h"

namespace plotsmith::xlsx {

class BookPart;
class Package;

/// The theme part of a workbook, which is read at its first use.
class BookTheme {
 public:
  /// Reads nothing yet. Both arguments must outlive the object.
  BookTheme(xlsx::Package& package, const BookPart& book) : package_(package), book_(book) {}

  /// Returns true if the workbook has a theme part.
  bool HasPart() const;
  /// The workbook's theme. A workbook without a readable theme part has Office's colours and fonts.
  const Theme& Get();
  /// Adds the default theme to a workbook that has no theme part.
  void EnsurePart();

 private:
  xlsx::Package& package_;
  const BookPart& book_;
  std::optional<Theme> theme_;
};

}  // namespace plotsmith::xlsx

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The format of a text.
struct TextStyle {
  Font font;
  Color color;
  std::optional<double> rotation;  ///< The rotation in degrees clockwise; absent if it is automatic.
  bool stacked = false;            ///< Whether letters are below each other.
};

/// A part of a text in one format.
struct TextRun {
  std::string text;  ///< The text in UTF-8, without line feeds.
  Font font;
  Color color;
};
/// A text of paragraphs, which consist of runs.
struct RichText {
  std::vector<std::vector<TextRun>> paragraphs;
  std::optional<double> rotation;  ///< The rotation in degrees clockwise; absent if it is automatic.
  bool stacked = false;            ///< Whether letters are below each other.

  /// Returns true if no run has a text.
  bool IsEmpty() const;
};

/// Returns a text in one style. Line feeds begin new paragraphs.
RichText Plain(const std::string& text, const TextStyle& style);

}  // namespace plotsmith::render

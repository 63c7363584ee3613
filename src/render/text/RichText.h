#pragma once

#include <optional>
#include <string>
#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The format of a text.
struct TextStyle {
  Font font;                       ///< The font, and its size in points.
  Color color;                     ///< The colour of the text.
  std::optional<double> rotation;  ///< The rotation in degrees clockwise; absent if it is automatic.
  bool stacked = false;            ///< Whether characters are stacked vertically.
};

/// A part of a text in one format.
struct TextRun {
  std::string text;  ///< The text in UTF-8, without line feeds.
  Font font;         ///< The font, and its size in points.
  Color color;       ///< The colour of the text.
};
/// A text of paragraphs, which consist of runs.
struct RichText {
  /// The paragraphs from top to bottom. Each is a list of runs. The run of a blank line has no text.
  std::vector<std::vector<TextRun>> paragraphs;
  std::optional<double> rotation;  ///< The rotation in degrees clockwise; absent if it is automatic.
  bool stacked = false;            ///< Whether characters are stacked vertically.

  /// Returns true if no run has a text.
  bool IsEmpty() const;
};

/// Returns a text in one style. Line feeds begin new paragraphs.
RichText Plain(const std::string& text, const TextStyle& style);

}  // namespace plotsmith::render

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The look of a text.
struct TextStyle {
  Font font;
  Color color;
  std::optional<double> rotation;  ///< degrees clockwise; nothing if Excel decides
  bool stacked = false;            ///< letters are below each other
};

/// A part of a text in one look.
struct TextRun {
  std::string text;  ///< UTF-8, without line feeds
  Font font;
  Color color;
};
/// A text of paragraphs, which consist of runs.
struct RichText {
  std::vector<std::vector<TextRun>> paragraphs;
  std::optional<double> rotation;  ///< degrees clockwise; nothing if Excel decides
  bool stacked = false;            ///< letters are below each other

  /// Returns whether no run has a text.
  bool IsEmpty() const;
};

/// Returns a text in one style. Line feeds begin new paragraphs.
RichText Plain(const std::string& text, const TextStyle& style);

}  // namespace plotsmith::render

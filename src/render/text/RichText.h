#pragma once

#include <optional>
#include <string>
#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

struct TextStyle {
  Font font;
  Color color;
  std::optional<double> rotation;  ///< degrees clockwise; nothing where Excel decides
  bool stacked = false;            ///< one letter below the other
};

struct TextRun {
  std::string text;
  Font font;
  Color color;
};
/// Paragraphs, each of runs; a run has no line feeds.
struct RichText {
  std::vector<std::vector<TextRun>> paragraphs;
  std::optional<double> rotation;
  bool stacked = false;

  bool IsEmpty() const;
};

/// A plain text as paragraphs of one run each.
RichText Plain(const std::string& text, const TextStyle& style);

}  // namespace plotsmith::render

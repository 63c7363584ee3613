#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "render/Canvas.h"
#include "render/text/RichText.h"

namespace plotsmith::render {

/// The width of lines that never break.
inline constexpr double kUnlimited = std::numeric_limits<double>::infinity();

/// A line of a text block. Sizes are in points.
struct TextLine {
  /// The parts of the line, from left to right.
  std::vector<TextRun> runs;
  /// The widths of the runs.
  std::vector<double> widths;
  /// The width of all runs, and the greatest ascent and descent.
  double width = 0, ascent = 0, descent = 0;

  /// The height of the line.
  double Height() const { return ascent + descent; }
};

/// A text that is broken into lines. It is rotated about its centre.
struct TextBlock {
  /// The lines from top to bottom.
  std::vector<TextLine> lines;
  /// The size in points before the rotation.
  double width = 0, height = 0;
  double rotation = 0;  ///< The rotation in degrees clockwise.

  /// The width of the smallest upright rectangle around the rotated block, in points.
  double TurnedWidth() const;
  /// The height of the smallest upright rectangle around the rotated block, in points.
  double TurnedHeight() const;
  /// Returns true if the block has no line.
  bool IsEmpty() const { return lines.empty(); }
};

/// Breaks a text into lines that aren't wider than `width`, in points. Lines break at spaces,
/// between East Asian characters, and inside words that are wider than a line.
TextBlock LayOut(RichText text, const TextMeasure& measure, double width = kUnlimited);
/// Breaks a text in one style into lines, in the same way. Line feeds break lines, too.
TextBlock LayOut(const std::string& text, const TextStyle& style, const TextMeasure& measure,
                 double width = kUnlimited);
/// Returns the width of the widest word of a text, in points.
double WidestWord(std::string_view text, const Font& font, const TextMeasure& measure);

/// Draws a block around its centre. `align` is the side on which its lines are aligned.
void DrawBlock(Canvas& canvas, Tag tag, const TextBlock& block, Point center,
               TextAlign align = TextAlign::kMiddle);

}  // namespace plotsmith::render

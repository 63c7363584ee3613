#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "render/Canvas.h"
#include "render/text/RichText.h"

namespace plotsmith::render {

inline constexpr double kUnlimited = std::numeric_limits<double>::infinity();

struct TextLine {
  std::vector<TextRun> runs;
  std::vector<double> widths;  ///< of the runs
  double width = 0, ascent = 0, descent = 0;

  double Height() const { return ascent + descent; }
};

/// A text that is broken into lines, one below the other. It is turned about its centre.
struct TextBlock {
  std::vector<TextLine> lines;
  double width = 0, height = 0;
  double rotation = 0;  ///< degrees clockwise

  /// The size of the least upright rectangle around the turned block.
  double TurnedWidth() const;
  double TurnedHeight() const;
  bool IsEmpty() const { return lines.empty(); }
};

/// Breaks a text at blanks, so that no line is wider than `width`; a word that is wider breaks inside.
TextBlock LayOut(const RichText& text, const TextMeasure& measure, double width = kUnlimited);
/// The same of a text in one style; line feeds break lines.
TextBlock LayOut(const std::string& text, const TextStyle& style, const TextMeasure& measure,
                 double width = kUnlimited);
/// The width of the widest word between blanks and breaks.
double WidestWord(std::string_view text, const Font& font, const TextMeasure& measure);

/// Draws a block about its centre. `align` is the side of the block that its lines share.
void DrawBlock(Canvas& canvas, Tag tag, const TextBlock& block, Point center,
               TextAlign align = TextAlign::kMiddle);

}  // namespace plotsmith::render

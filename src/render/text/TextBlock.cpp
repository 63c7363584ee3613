#include "render/text/TextBlock.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

constexpr std::size_t kMostLines = 200;  // More lines don't fit on any chart.

/// A part of a run up to the next position where a line may break. It contains the spaces that follow the
/// word.
struct Word {
  TextRun run;
  double width = 0, trimmed = 0;  ///< with and without the spaces at its end
};

std::vector<Word> WordsOf(const std::vector<TextRun>& runs, const TextMeasure& measure) {
  std::vector<Word> words;
  for (const TextRun& run : runs) {
    for (std::size_t from = 0; from < run.text.size();) {
      const std::size_t end =
          std::min(run.text.find_first_not_of(' ', runtime::WordEnd(run.text, from)), run.text.size());
      Word& word = words.emplace_back();
      word.run = {run.text.substr(from, end - from), run.font, run.color};
      word.width = measure.Measure(word.run.text, run.font).width;
      const auto last = word.run.text.find_last_not_of(' ');
      word.trimmed = last + 1 == word.run.text.size()
                         ? word.width
                         : measure.Measure(word.run.text.substr(0, last + 1), run.font).width;
      from = end;
    }
  }
  return words;
}

/// Returns a measured line. Neighbouring runs of the same look are joined.
TextLine Finished(std::vector<TextRun> runs, const TextMeasure& measure) {
  TextLine line;
  if (runs.size() == 1) line.runs.swap(runs);  // There is nothing to join.
  for (TextRun& run : runs) {
    const bool same =
        !line.runs.empty() && line.runs.back().font == run.font && line.runs.back().color == run.color;
    if (same) {
      line.runs.back().text += run.text;
    } else {
      line.runs.push_back(std::move(run));
    }
  }
  if (!line.runs.empty()) {
    std::string& last = line.runs.back().text;
    last.erase(last.find_last_not_of(' ') + 1);
  }
  for (const TextRun& run : line.runs) {
    const TextExtent extent = measure.Measure(run.text, run.font);
    line.widths.push_back(extent.width);
    line.width += extent.width;
    line.ascent = std::max(line.ascent, extent.ascent);
    line.descent = std::max(line.descent, extent.descent);
  }
  return line;
}

/// Returns how many bytes at the start of a text fit into a width. The result includes at least one
/// character.
std::size_t FittingBytes(std::string_view text, const Font& font, double width, const TextMeasure& measure) {
  std::size_t fitting = 0;
  while (fitting < text.size()) {
    const std::size_t end = runtime::CharacterEnd(text, fitting);
    width -= measure.Measure(text.substr(fitting, end - fitting), font).width;
    if (width < 0 && fitting > 0) break;
    fitting = end;
  }
  return fitting;
}

/// Breaks a word that is wider than a line. Its full lines are added to the block, and the word keeps the
/// rest.
void BreakInside(Word& word, double width, const TextMeasure& measure, TextBlock& block) {
  if (word.trimmed <= width) return;
  const TextRun& run = word.run;
  const std::string_view letters = std::string_view(run.text).substr(0, run.text.find_last_not_of(' ') + 1);
  std::size_t begin = 0;
  while (block.lines.size() <= kMostLines) {
    const std::size_t bytes = FittingBytes(letters.substr(begin), run.font, width, measure);
    if (begin + bytes >= letters.size()) break;
    block.lines.push_back(Finished({{run.text.substr(begin, bytes), run.font, run.color}}, measure));
    begin += bytes;
  }
  word.run.text.erase(0, begin);
  word.width = measure.Measure(word.run.text, word.run.font).width;
}

void AddParagraph(std::vector<TextRun> runs, const TextMeasure& measure, double width, TextBlock& block) {
  if (width == kUnlimited) {
    block.lines.push_back(Finished(std::move(runs), measure));
    return;
  }
  std::vector<TextRun> line;
  double taken = 0;
  for (Word& word : WordsOf(runs, measure)) {
    if (!line.empty() && taken + word.trimmed > width) {
      block.lines.push_back(Finished(std::exchange(line, {}), measure));
      taken = 0;
      if (block.lines.size() > kMostLines) return;
    }
    if (line.empty()) BreakInside(word, width, measure, block);
    if (block.lines.size() > kMostLines) return;
    taken += word.width;
    line.push_back(std::move(word.run));
  }
  // A paragraph without words has the height of its font.
  block.lines.push_back(Finished(line.empty() ? std::move(runs) : std::move(line), measure));
}

/// Returns a text with a paragraph for each letter.
RichText Stacked(const RichText& text) {
  RichText stacked;
  for (const auto& runs : text.paragraphs) {
    for (const TextRun& run : runs) {
      for (std::size_t from = 0; from < run.text.size() && stacked.paragraphs.size() < kMostLines;) {
        const std::size_t end = runtime::CharacterEnd(run.text, from);
        stacked.paragraphs.push_back({{run.text.substr(from, end - from), run.font, run.color}});
        from = end;
      }
    }
  }
  return stacked;
}

}  // namespace

double TextBlock::TurnedWidth() const {
  return width * std::abs(std::cos(rotation * kRadian)) + height * std::abs(std::sin(rotation * kRadian));
}

double TextBlock::TurnedHeight() const {
  return width * std::abs(std::sin(rotation * kRadian)) + height * std::abs(std::cos(rotation * kRadian));
}

TextBlock LayOut(RichText text, const TextMeasure& measure, double width) {
  if (text.stacked) return LayOut(Stacked(text), measure);
  TextBlock block;
  block.rotation = text.rotation.value_or(0);
  for (auto& runs : text.paragraphs) {
    if (block.lines.size() > kMostLines) break;
    AddParagraph(std::move(runs), measure, width, block);
  }
  for (const TextLine& line : block.lines) {
    block.width = std::max(block.width, line.width);
    block.height += line.Height();
  }
  return block;
}

TextBlock LayOut(const std::string& text, const TextStyle& style, const TextMeasure& measure, double width) {
  return LayOut(Plain(text, style), measure, width);
}

double WidestWord(std::string_view text, const Font& font, const TextMeasure& measure) {
  double widest = 0;
  for (std::size_t from = 0; (from = text.find_first_not_of(" \n", from)) < text.size();) {
    const std::string_view line = text.substr(0, text.find('\n', from));
    const std::size_t end = runtime::WordEnd(line, from);
    widest = std::max(widest, measure.Measure(line.substr(from, end - from), font).width);
    from = end;
  }
  return widest;
}

void DrawBlock(Canvas& canvas, Tag tag, const TextBlock& block, Point center, TextAlign align) {
  const double cosine = std::cos(block.rotation * kRadian), sine = std::sin(block.rotation * kRadian);
  double y = -block.height / 2;
  for (const TextLine& line : block.lines) {
    const double free = block.width - line.width;
    double x = -block.width / 2 + (align == TextAlign::kStart    ? 0
                                   : align == TextAlign::kMiddle ? free / 2
                                                                 : free);
    y += line.ascent;
    // A line with one run is anchored at its aligned side. It stays aligned in viewers with other fonts.
    const bool single = line.runs.size() == 1;
    const double shift = !single || align == TextAlign::kStart ? 0
                         : align == TextAlign::kMiddle         ? line.width / 2
                                                               : line.width;
    for (std::size_t i = 0; i < line.runs.size(); ++i) {
      const double at = x + shift;
      TextItem item{line.runs[i].text,
                    line.runs[i].font,
                    line.runs[i].color,
                    {center.x + at * cosine - y * sine, center.y + at * sine + y * cosine}};
      item.align = single ? align : TextAlign::kStart;
      item.rotation = block.rotation;
      canvas.AddText(tag, std::move(item));
      x += line.widths[i];
    }
    y += line.descent;
  }
}

}  // namespace plotsmith::render

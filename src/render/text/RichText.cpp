#include "render/text/RichText.h"

#include <algorithm>

namespace plotsmith::render {

bool RichText::IsEmpty() const {
  return std::all_of(paragraphs.begin(), paragraphs.end(), [](const auto& runs) {
    return std::all_of(runs.begin(), runs.end(), [](const TextRun& run) { return run.text.empty(); });
  });
}

RichText Plain(const std::string& text, const TextStyle& style) {
  RichText rich;
  rich.rotation = style.rotation;
  rich.stacked = style.stacked;
  for (std::size_t from = 0;;) {
    const auto end = text.find('\n', from);
    rich.paragraphs.emplace_back().push_back({text.substr(from, end - from), style.font, style.color});
    if (end == std::string::npos) return rich;
    from = end + 1;
  }
}

}  // namespace plotsmith::render

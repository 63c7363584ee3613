#include "render/text/RichText.h"

#include <algorithm>

namespace plotsmith::render {

bool RichText::IsEmpty() const {
  return std::all_of(paragraphs.begin(), paragraphs.end(), [](const auto& runs) {
    return std::all_of(runs.begin(), runs.end(), [](const TextRun& run) { return run.text.empty(); });
  });
}

}  // namespace plotsmith::render

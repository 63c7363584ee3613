#include "cli/wizard/VerbScript.h"

#include <algorithm>
#include <utility>

#include "forms/script/ScriptError.h"
#include "forms/script/ScriptLine.h"

namespace plotsmith::cli {

std::optional<std::string> VerbScript::NextLine(const forms::Scene& scene) {
  auto line = MakeLine(scene);
  if (line) lines_.push_back(*line);
  return line;
}

std::optional<std::string> VerbScript::MakeLine(const forms::Scene& scene) {
  if (!scene.messages.empty()) return LineFor(scene.messages.front(), scene.page);
  if (scene.page == nullptr) {
    if (std::exchange(over_, true)) return std::nullopt;
    return "page none";
  }
  if (std::exchange(page_, scene.page->Id()) != scene.page->Id()) {
    const Steps steps = StepsOn(*scene.page);
    steps_.assign(steps.begin(), steps.end());
    return "page " + scene.page->Name();
  }
  while (!steps_.empty()) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    if (auto line = step(*scene.page)) return line;
  }
  return std::nullopt;
}

std::string VerbScript::LineFor(const std::string& message, const forms::Form* page) {
  if (IsOfPage(message) && (page == nullptr || !Deals(*page, message))) {
    throw forms::ScriptError(message);
  }
  return "expect message " + forms::WordFor(message);
}

bool VerbScript::IsOfPage(const std::string& message) const {
  return saidByPages_ != nullptr &&
         std::find(saidByPages_->begin(), saidByPages_->end(), message) != saidByPages_->end();
}

}  // namespace plotsmith::cli

#include "cli/wizard/VerbScript.h"

#include <algorithm>
#include <utility>

#include "forms/script/ScriptError.h"
#include "forms/script/ScriptLine.h"

namespace plotsmith::cli {

std::optional<std::string> VerbScript::NextLine(const forms::ScriptState& state) {
  auto line = MakeLine(state);
  if (line) lines_.push_back(*line);
  return line;
}

std::optional<std::string> VerbScript::MakeLine(const forms::ScriptState& state) {
  if (!state.messages.empty()) return LineFor(state.messages.front(), state.page);
  if (state.page == nullptr) {
    if (std::exchange(over_, true)) return std::nullopt;
    return "page none";
  }
  if (std::exchange(page_, state.page->Id()) != state.page->Id()) {
    const Steps steps = StepsOn(*state.page);
    steps_.assign(steps.begin(), steps.end());
    return "page " + state.page->Name();
  }
  while (!steps_.empty()) {
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    if (auto line = step(*state.page)) return line;
  }
  return std::nullopt;
}

std::string VerbScript::LineFor(const std::string& message, const forms::Form* page) {
  if (IsOfPage(message) && (page == nullptr || !Resolves(*page, message))) {
    throw forms::ScriptError(message);
  }
  return "expect message " + forms::WordFor(message);
}

bool VerbScript::IsOfPage(const std::string& message) const {
  return pageMessages_ != nullptr &&
         std::find(pageMessages_->begin(), pageMessages_->end(), message) != pageMessages_->end();
}

}  // namespace plotsmith::cli

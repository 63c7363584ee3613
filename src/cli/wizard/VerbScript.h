#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/wizard/Steps.h"
#include "forms/script/LineSource.h"

namespace plotsmith::cli {

/// The script of a verb that uses the wizard's pages. It chooses the steps for each page that opens, so it
/// doesn't need to know the order of the pages.
class VerbScript : public forms::LineSource {
 public:
  std::optional<std::string> NextLine(const forms::ScriptState& state) final;

  /// The lines that were generated so far.
  const std::vector<std::string>& Lines() const { return lines_; }
  /// Sets the list of messages that pages have shown. Other messages come from the build of a chart.
  void SetPageMessages(const std::vector<std::string>& texts) { pageMessages_ = &texts; }

 protected:
  /// Returns the steps on a page that has opened. An empty list ends the script.
  virtual Steps StepsOn(const forms::Form& page) = 0;
  /// Returns true if the verb resolves the problem in a page's message, so that the script continues.
  virtual bool Resolves(const forms::Form& /*page*/, const std::string& /*message*/) { return false; }

 private:
  std::optional<std::string> MakeLine(const forms::ScriptState& state);
  /// Returns the line that expects a message, or stops the script because of it.
  std::string LineFor(const std::string& message, const forms::Form* page);
  bool IsOfPage(const std::string& message) const;

  const std::vector<std::string>* pageMessages_ = nullptr;
  std::uint64_t page_ = 0;  ///< The id of the form of the steps.
  std::deque<Step> steps_;
  bool over_ = false;
  std::vector<std::string> lines_;
};

}  // namespace plotsmith::cli

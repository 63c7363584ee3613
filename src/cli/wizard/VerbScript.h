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

/// The script of a verb that goes through the wizard's pages. It looks at each page that opens and says what
/// is to be done there, so the way through the pages need not be known.
class VerbScript : public forms::LineSource {
 public:
  std::optional<std::string> NextLine(const forms::Scene& scene) final;

  /// All lines so far.
  const std::vector<std::string>& Lines() const { return lines_; }
  /// What pages have said, so that it can be told from what a build has to say.
  void SetSaidByPages(const std::vector<std::string>& texts) { saidByPages_ = &texts; }

 protected:
  /// What is to be done on a page that has opened. With no steps the script ends there.
  virtual Steps StepsOn(const forms::Form& page) = 0;
  /// Whether the verb does what a page's message asks for, so that the message is no reason to stop.
  virtual bool Deals(const forms::Form& /*page*/, const std::string& /*message*/) { return false; }

 private:
  std::optional<std::string> MakeLine(const forms::Scene& scene);
  /// Expects a message, or stops because of it.
  std::string LineFor(const std::string& message, const forms::Form* page);
  bool IsOfPage(const std::string& message) const;

  const std::vector<std::string>* saidByPages_ = nullptr;
  std::uint64_t page_ = 0;  ///< the id of the form that the steps are for
  std::deque<Step> steps_;
  bool over_ = false;
  std::vector<std::string> lines_;
};

}  // namespace plotsmith::cli

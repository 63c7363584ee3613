#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "forms/script/ScriptPlayer.h"

namespace plotsmith::cli {

/// Who answers for what the system says outside of its pages.
enum class Outside {
  kScript,   ///< the script has to expect it, as it has to expect what the pages say
  kCommand,  ///< the command reports it as well
};

/// The desktop of a run that a script plays: its message boxes go to the script.
class ScriptDesktop final : public ConsoleDesktop {
 public:
  ScriptDesktop(std::shared_ptr<forms::ScriptPlayer> player, Outside outside)
      : player_(std::move(player)), outside_(outside) {}

  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  void ShowHelp(std::intptr_t, const std::string&, std::int32_t) override {}

  /// Whether a question was answered with OK. The system has one question only, which precedes a deletion.
  bool Confirmed() const { return confirmed_; }
  /// What pages have said, in the player's spelling.
  const std::vector<std::string>& SaidByPages() const { return saidByPages_; }

 private:
  std::shared_ptr<forms::ScriptPlayer> player_;
  Outside outside_;
  bool confirmed_ = false;
  std::vector<std::string> saidByPages_;
};

}  // namespace plotsmith::cli

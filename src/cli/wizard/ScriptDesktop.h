#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "forms/script/ScriptPlayer.h"

namespace plotsmith::cli {

/// The recipient of messages that don't come from pages.
enum class Outside {
  kScript,   ///< The script must expect them, like the messages of pages.
  kCommand,  ///< The command reports them too.
};

/// The desktop of a script run. Its message boxes go to the script.
class ScriptDesktop final : public ConsoleDesktop {
 public:
  /// Makes a desktop whose message boxes `player` answers. `outside` decides about messages that don't come
  /// from pages.
  ScriptDesktop(std::shared_ptr<forms::ScriptPlayer> player, Outside outside)
      : player_(std::move(player)), outside_(outside) {}

  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  void ShowHelp(std::intptr_t, const std::string&, std::int32_t) override {}

  /// The messages of pages, in the spelling of the script player.
  const std::vector<std::string>& PageMessages() const { return pageMessages_; }

 private:
  std::shared_ptr<forms::ScriptPlayer> player_;
  Outside outside_;
  std::vector<std::string> pageMessages_;
};

}  // namespace plotsmith::cli

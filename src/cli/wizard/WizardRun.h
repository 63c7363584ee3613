#pragma once

#include <memory>
#include <optional>
#include <string>

#include "cli/Session.h"
#include "cli/wizard/ScriptDesktop.h"
#include "forms/script/LineSource.h"
#include "forms/script/ScriptPlayer.h"

namespace plotsmith::cli {

/// A run of the wizard on a workbook, with a script in place of the user.
class WizardRun {
 public:
  /// Makes a run. `lines` must outlive it. `show` prints the forms that the script shows.
  WizardRun(const std::string& book, const GlobalOptions& options, const Streams& streams,
            forms::LineSource& lines, forms::ScriptPlayer::Show show, Outside outside);

  /// Runs the wizard with the script.
  void Play();

  /// The session with the workbook of the run.
  Session& OpenSession() { return session_; }
  /// The player of the script.
  const forms::ScriptPlayer& Player() const { return *player_; }
  /// The desktop, which has collected the messages.
  const ScriptDesktop& Desktop() const { return *desktop_; }
  /// Returns true if the run has built or deleted a chart. Otherwise there is nothing to save.
  bool HasChangedCharts() const { return session_.ChartsStarted() > 0 || desktop_->Confirmed(); }

 private:
  std::shared_ptr<forms::ScriptPlayer> player_;
  std::shared_ptr<ScriptDesktop> desktop_;
  Session session_;
};

}  // namespace plotsmith::cli

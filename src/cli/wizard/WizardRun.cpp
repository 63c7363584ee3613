#include "cli/wizard/WizardRun.h"

#include <utility>

#include "controller/CPlotsmithController.h"

namespace plotsmith::cli {

WizardRun::WizardRun(const std::string& book, const GlobalOptions& options, const Streams& streams,
                     forms::LineSource& lines, forms::ScriptPlayer::Show show, Outside outside)
    : player_(std::make_shared<forms::ScriptPlayer>(lines, std::move(show))),
      desktop_(std::make_shared<ScriptDesktop>(player_, outside)),
      session_(book, options, streams, desktop_, player_) {}

void WizardRun::Play() {
  CPlotsmithController controller;
  controller.RunPlotsmith(session_.Host(), kHostName, "");
  player_->PlayRest();
}

}  // namespace plotsmith::cli

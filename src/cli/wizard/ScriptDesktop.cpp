#include "cli/wizard/ScriptDesktop.h"

#include "forms/TextBox.h"

namespace plotsmith::cli {
namespace {

constexpr std::string_view kBusyWindow = "frmBusyPS";

}  // namespace

std::int32_t ScriptDesktop::MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                                   std::string_view title) {
  if (buttons == desktop::Buttons::kOkCancel) {
    const bool ok = player_->Answer(text);
    if (ok) Confirm();
    return ok ? desktop::kOk : desktop::kCancel;
  }
  player_->AddMessage(text);
  const forms::Form* const front = player_->Front();
  if (front != nullptr && front->Name() != kBusyWindow) {
    pageMessages_.push_back(forms::WithLineEnds(text, "\n"));
  } else if (outside_ == Outside::kCommand) {
    ConsoleDesktop::MsgBox(text, buttons, icon, title);
  }
  return desktop::kOk;
}

}  // namespace plotsmith::cli

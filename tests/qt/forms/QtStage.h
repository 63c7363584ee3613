#pragma once

#include <memory>

#include "forms/script/ScriptPlayer.h"
#include "qt/forms/QtView.h"

namespace plotsmith::test {

/// Windows on which a script simulates mouse and keyboard. Before each line it checks that the front window
/// shows the state of its form.
class QtStage final : public forms::View {
 public:
  QtStage(std::shared_ptr<qt::QtView> windows, std::shared_ptr<forms::ScriptPlayer> player)
      : windows_(std::move(windows)), player_(std::move(player)) {}

  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(forms::EventQueue& queue) override { windows_->HandleEvents(queue); }

 private:
  std::shared_ptr<qt::QtView> windows_;
  std::shared_ptr<forms::ScriptPlayer> player_;
};

}  // namespace plotsmith::test

#pragma once

#include <memory>

#include "forms/script/ScriptPlayer.h"
#include "windows/views/FormsView.h"

namespace plotsmith::test {

/// Dialogs on which a script works with messages. Before each line it checks that the front window shows the
/// state of its form.
class WindowsStage final : public forms::View {
 public:
  WindowsStage(std::shared_ptr<windows::FormsView> view, std::shared_ptr<forms::ScriptPlayer> player)
      : view_(std::move(view)), player_(std::move(player)) {}

  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  void HandleEvents(forms::EventQueue& queue) override { view_->HandleEvents(queue); }

 private:
  std::shared_ptr<windows::FormsView> view_;
  std::shared_ptr<forms::ScriptPlayer> player_;
};

}  // namespace plotsmith::test

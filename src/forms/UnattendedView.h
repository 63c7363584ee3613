#pragma once

#include <vector>

#include "forms/ModalLoop.h"

namespace plotsmith::forms {

/// A view without a screen and without a user. It closes every form that waits for an action.
class UnattendedView final : public View {
 public:
  void Open(Form& form) override { open_.push_back(&form); }
  void Close(Form&) override { open_.pop_back(); }
  void Wait(EventQueue& queue, std::optional<std::chrono::milliseconds>) override {
    Form* const front = open_.back();
    queue.Post(*front, [front] { front->UserClose(); });
  }
  void HandleEvents(EventQueue&) override {}

 private:
  std::vector<Form*> open_;
};

}  // namespace plotsmith::forms

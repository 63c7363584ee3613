#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/ModalLoop.h"

namespace plotsmith::test {

/// A view in which a test defines the user's actions. At the end it closes all open forms. It records the
/// forms that open and close.
class HandView : public forms::View {
 public:
  using Gesture = std::function<void(forms::Form& front)>;

  void Open(forms::Form& form) override {
    log += "show " + form.Name() + "; ";
    open_.push_back(&form);
  }
  void Close(forms::Form& form) override {
    log += "close " + form.Name() + "; ";
    open_.pop_back();
  }
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds>) override {
    forms::Form* const front = open_.back();
    if (gestures.empty()) {
      queue.Post(*front, [front] { front->UserClose(); });
    } else {
      queue.Post(*front, [front, gesture = gestures.front()] { gesture(*front); });
      gestures.erase(gestures.begin());
    }
  }
  void HandleEvents(forms::EventQueue&) override { ++yields; }

  std::vector<Gesture> gestures;
  std::string log;
  int yields = 0;

 private:
  std::vector<forms::Form*> open_;
};

}  // namespace plotsmith::test

#include "forms/ModalLoop.h"

#include <algorithm>
#include <utility>

#include "forms/Timer.h"
#include "runtime/RuntimeError.h"
#include "runtime/Stack.h"

namespace plotsmith::forms {
namespace {

std::vector<Timer*> TimersOf(const Form& form) {
  std::vector<Timer*> timers;
  for (Control* control : form.Controls()) {
    if (auto* timer = dynamic_cast<Timer*>(control)) timers.push_back(timer);
  }
  return timers;
}

/// Raises the due ticks. Returns true if there were any.
bool FireDueTimers(const Form& form) {
  bool fired = false;
  for (Timer* timer : TimersOf(form)) {
    const auto due = timer->UntilDue();
    if (!due || due->count() > 0) continue;
    timer->Fire();
    fired = true;
  }
  return fired;
}

std::optional<std::chrono::milliseconds> UntilNextTick(const Form& form) {
  std::optional<std::chrono::milliseconds> next;
  for (const Timer* timer : TimersOf(form)) {
    const auto due = timer->UntilDue();
    if (due) next = std::min(next.value_or(*due), *due);
  }
  return next;
}

}  // namespace

/// Shows a form while it exists.
class ModalLoop::Shown {
 public:
  Shown(ModalLoop& loop, const std::shared_ptr<Form>& form) : loop_(loop) {
    loop_.shown_.push_back(form);
    form->visible_ = true;
    loop_.view_->Open(*form);
  }
  ~Shown() {
    Form& form = *loop_.shown_.back();
    form.visible_ = false;
    loop_.view_->Close(form);
    loop_.shown_.pop_back();
  }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

 private:
  ModalLoop& loop_;
};

// The form is passed by value, because an event of the form may assign another form to the caller's variable.
void ModalLoop::ShowModal(std::shared_ptr<Form> form) {
  if (shown_.size() >= kMostForms || runtime::StackLeft() < kStackOfForm) {
    throw runtime::RuntimeError(runtime::error::kOutOfStackSpace);
  }
  form->Load();
  if (form->IsUnloaded()) return;
  {
    const Shown shown(*this, form);
    form->Activate();
    while (form->Visible()) HandleOneEvent(*form);
  }
  if (!form->IsUnloaded()) form->Deactivate();
}

void ModalLoop::HandleOneEvent(Form& form) {
  if (!queue_.events_.empty()) {
    const auto event = std::move(queue_.events_.front());
    queue_.events_.pop_front();
    if (event.form == form.Id()) event.gesture();
  } else if (!FireDueTimers(form)) {
    view_->Wait(queue_, UntilNextTick(form));
  }
}

void ModalLoop::DoEvents() {
  view_->HandleEvents(queue_);
  if (Form* form = Front()) FireDueTimers(*form);
}

}  // namespace plotsmith::forms

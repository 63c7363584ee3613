#include "windows/views/FormsView.h"

#include "common/App.h"
#include "common/PSConstants.h"
#include "windows/desktop/MessagePump.h"

namespace plotsmith::windows {

void FormsView::Open(forms::Form& form) {
  if (open_++ == 0) disabledWindows_ = std::make_unique<DisabledWindows>();
  forms_.Open(form);
}

void FormsView::Close(forms::Form& form) {
  forms_.Close(form);
  if (--open_ == 0) disabledWindows_.reset();
}

void FormsView::Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) {
  App.Desktop->MsgBox(
      "The pages of the wizard aren't part of this version of Plotsmith for Excel; it refreshes "
      "charts that are in the workbook.",
      desktop::Buttons::kOk, desktop::Icon::kNone, kProductTitle);
  forms_.Wait(queue, atMost);
}

void FormsView::HandleEvents(forms::EventQueue& queue) {
  HandleWaitingMessages();
  forms_.HandleEvents(queue);
}

}  // namespace plotsmith::windows

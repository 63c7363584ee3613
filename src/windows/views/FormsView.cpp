#include "windows/views/FormsView.h"

#include <algorithm>
#include <utility>

#include "windows/com/Calls.h"
#include "windows/views/ThreadDpi.h"

namespace plotsmith::windows {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kLongestYield{50};

/// Maximum time that a thread may sleep, in milliseconds.
DWORD TimeUntil(const std::optional<Clock::time_point>& deadline) {
  if (!deadline) return INFINITE;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - Clock::now()).count();
  return static_cast<DWORD>(std::max<long long>(left, 0));
}

}  // namespace

HWND FormsView::Owner() const {
  const HWND host = hostWindow_();
  if (IsWindow(host)) return host;
  const HWND active = GetActiveWindow();
  return Front() != nullptr && active == Front()->Handle() ? nullptr : active;
}

void FormsView::Open(forms::Form& form) {
  const ThreadDpi dpi;
  if (windows_.empty()) heldKeys_.emplace();
  windows_.push_back(std::make_unique<FormWindow>(form, Owner(), pending_.PostFor(form), presses_));
  windows_.back()->ShowOnScreen();
  ShowChanges();  // after the new window has appeared, so that a window is always on the screen
}

void FormsView::Close(forms::Form& form) {
  const ThreadDpi dpi;
  pending_.Discard(form);
  windows_.pop_back();
  if (Front() != nullptr) {
    Front()->BecomeFront();
    return;
  }
  heldKeys_.reset();
  PostQuitAgain();
}

void FormsView::PostQuitAgain() {
  if (const auto code = std::exchange(quitCode_, std::nullopt)) PostQuitMessage(*code);
}

void FormsView::ShowChanges() {
  for (const auto& window : windows_) window->Update();
}

bool FormsView::HandleMessage(UINT kinds) {
  MSG message;
  if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | kinds)) return false;
  if (message.message == WM_QUIT) {
    quitCode_ = static_cast<int>(message.wParam);
    return true;
  }
  FormWindow* const front = Front();
  if (front != nullptr && front->TakeMessage(message)) return true;
  TranslateMessage(&message);
  DispatchMessageW(&message);
  return true;
}

bool FormsView::IsFrontGone() const { return quitCode_.has_value() || Front()->Handle() == nullptr; }

// The model gets one gesture at a time, even if a message causes several, so that each gesture acts on the
// result of the previous one.
void FormsView::Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) {
  const ThreadDpi dpi;
  ShowChanges();
  std::optional<Clock::time_point> deadline;
  if (atMost) deadline = Clock::now() + *atMost;
  while (pending_.IsEmpty() && !IsFrontGone()) {
    if (HandleMessage()) continue;
    const DWORD time = TimeUntil(deadline);
    if (time == 0) break;
    MsgWaitForMultipleObjectsEx(0, nullptr, time, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
  com::NoteChange();  // The host's own windows could handle messages.
  if (IsFrontGone()) {
    pending_.Clear();
    forms::Form& form = Front()->Model();
    queue.Post(form, [&form] { form.UserClose(); });
  }
  PostTo(queue);
}

// The system is in the middle of its work. User input waits until the work is done, because it must not act
// on a half-finished state. Windows are painted and timers run. The loop is limited, because a window of the
// host may post a new message for each one that it handles, or may never paint the area that it is asked to
// paint.
void FormsView::HandleEvents(forms::EventQueue& queue) {
  const ThreadDpi dpi;
  ShowChanges();
  const Clock::time_point end = Clock::now() + kLongestYield;
  while (!quitCode_ && HandleMessage(PM_QS_PAINT | PM_QS_POSTMESSAGE | PM_QS_SENDMESSAGE) &&
         Clock::now() < end) {
  }
  if (windows_.empty()) PostQuitAgain();  // No window of this view is open whose closing would do this.
  com::NoteChange();
  PostTo(queue);
}

}  // namespace plotsmith::windows

#include "windows/server/Component.h"

#include <atomic>
#include <memory>
#include <string>

#include "common/PSConstants.h"
#include "controller/System.h"
#include "runtime/RuntimeError.h"
#include "runtime/Stack.h"
#include "windows/com/Windows.h"
#include "windows/desktop/WindowsDesktop.h"
#include "windows/server/Module.h"
#include "windows/views/FormsView.h"

namespace plotsmith::windows {
namespace {

/// Free stack that an operation needs when it begins, in bytes. Forms that nest check the remaining stack by
/// themselves.
constexpr std::size_t kStackOfRun = 256 * 1024;

runtime::Ref<WindowsDesktop> theDesktop;
/// The thread that owns the component's state, including the Application that it holds; 0 before the first
/// run.
std::atomic<DWORD> ownThread = 0;
std::atomic<bool> isAtWork = false;

/// Marks the component as busy while it lives.
struct AtWork {
  AtWork() { isAtWork = true; }
  ~AtWork() { isAtWork = false; }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;
};

/// Returns true if the component belongs to this thread. The first thread that asks becomes the owner.
bool IsOwnThread() {
  DWORD none = 0;
  const DWORD here = GetCurrentThreadId();
  return ownThread.compare_exchange_strong(none, here) || none == here;
}

void CheckThatItCanRun() {
  using runtime::RuntimeError;
  namespace error = runtime::error;
  if (!IsOwnThread()) {
    throw RuntimeError(error::kAutomation,
                       "Plotsmith can only be called on the thread that called it first.");
  }
  if (isAtWork) {
    throw RuntimeError(
        error::kAutomation,
        "Plotsmith is still working on an earlier call. Call it again when that call has returned.");
  }
  if (runtime::StackLeft() < kStackOfRun) throw RuntimeError(error::kOutOfStackSpace);
}

void Start() {
  if (theDesktop) return;
  auto started = runtime::MakeRef<WindowsDesktop>();
  StartSystem(started,
              std::make_shared<FormsView>([] { return reinterpret_cast<HWND>(theDesktop->HostWindow()); }));
  theDesktop = started;
}

/// Reports an error in a message box. It doesn't use the system's own state, which may belong to a run
/// further down on the stack.
void Report(const char* operation, const runtime::RuntimeError& error, std::intptr_t hostWindow) {
  WindowsDesktop boxes;
  boxes.SetHostWindow(hostWindow);
  boxes.MsgBox(operation + std::string(kLineBreak) + error.Description(), desktop::Buttons::kOk,
               desktop::Icon::kNone, kProductTitle);
}

}  // namespace

void RunOperation(const char* operation, const std::function<std::intptr_t()>& findHostWindow,
                  const std::function<void()>& body) noexcept {
  try {
    const ModuleKeeper keeper;
    std::intptr_t hostWindow = 0;
    try {
      CheckThatItCanRun();
      hostWindow = findHostWindow();
      const AtWork atWork;
      Start();
      theDesktop->SetHostWindow(hostWindow);
      body();
    } catch (...) {
      Report(operation, runtime::CurrentError(), hostWindow);
    }
  } catch (...) {
    // A constant text is shown because there is no memory for the text of a report.
    MessageBoxW(nullptr, L"Out of memory", L"Brindle Plotsmith", MB_OK | MB_TASKMODAL);
  }
}

bool EndComponent() {
  const DWORD owner = ownThread;
  if (owner != 0 && owner != GetCurrentThreadId()) return false;
  StopSystem();
  theDesktop = nullptr;
  ownThread = 0;
  return true;
}

}  // namespace plotsmith::windows

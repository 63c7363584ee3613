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

/// The stack that an operation must find when it begins, in bytes. Forms that nest check what is left by
/// themselves.
constexpr std::size_t kStackOfRun = 256 * 1024;

runtime::Ref<WindowsDesktop> theDesktop;
/// The component's state belongs to one thread, as does the Application that it holds; 0 before the first
/// run.
std::atomic<DWORD> ownThread = 0;
std::atomic<bool> isAtWork = false;

/// Marks the component as at work while it lives.
struct AtWork {
  AtWork() { isAtWork = true; }
  ~AtWork() { isAtWork = false; }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;
};

/// Whether the component belongs to this thread. The first thread that asks becomes the owner.
bool IsOwnThread() {
  DWORD none = 0;
  const DWORD here = GetCurrentThreadId();
  return ownThread.compare_exchange_strong(none, here) || none == here;
}

void CheckThatItCanRun() {
  using runtime::RuntimeError;
  namespace error = runtime::error;
  if (!IsOwnThread()) {
    throw RuntimeError(error::kAutomation, "Plotsmith belongs to the thread that has called it first.");
  }
  if (isAtWork) {
    throw RuntimeError(
        error::kAutomation,
        "Plotsmith is still at work on an earlier call. Call it again when that has returned.");
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

/// The report of an error block. It shows the error without the system's own state, which may be that of a
/// run on the stack below.
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
    // There is no memory for the text of a report, so a constant one is shown.
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

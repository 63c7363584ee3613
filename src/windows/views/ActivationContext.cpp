#include "windows/views/ActivationContext.h"

#include <commctrl.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;  // the linker's symbol for the start of the module

namespace plotsmith::windows {
namespace {

/// The activation context, which is released with the module.
class Context {
 public:
  Context() {
    ACTCTXW wanted = {};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = OwnModule();
    wanted.lpResourceName = MAKEINTRESOURCEW(2);
    handle_ = CreateActCtxW(&wanted);
  }
  ~Context() {
    if (handle_ != INVALID_HANDLE_VALUE) ReleaseActCtx(handle_);
  }
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  bool Activate(ULONG_PTR& cookie) const {
    return handle_ != INVALID_HANDLE_VALUE && ActivateActCtx(handle_, &cookie) != FALSE;
  }

 private:
  HANDLE handle_;
};

/// Registers the window classes of the library version that the active context names.
void RegisterControls() {
  using Function = BOOL(WINAPI*)(const INITCOMMONCONTROLSEX*);
  const auto function = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(CommonControls(), "InitCommonControlsEx")));
  const INITCOMMONCONTROLSEX classes = {sizeof classes,
                                        ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS};
  if (function != nullptr) function(&classes);
}

}  // namespace

HINSTANCE OwnModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

ActivationContext::ActivationContext() {
  static const Context context;
  isActive_ = context.Activate(cookie_);
  static const bool isRegistered = (RegisterControls(), true);
  static_cast<void>(isRegistered);
}

ActivationContext::~ActivationContext() {
  if (isActive_) DeactivateActCtx(0, cookie_);
}

// The host may use another version of the library at the same time. Ours stays loaded, because a library must
// not free another one while it is being unloaded.
HMODULE CommonControls() {
  static const HMODULE library = LoadLibraryExW(L"comctl32.dll", nullptr, 0);
  return library;
}

}  // namespace plotsmith::windows

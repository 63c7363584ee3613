#include "windows/views/ActivationContext.h"

#include <commctrl.h>

extern "C" IMAGE_DOS_HEADER __ImageBase;  // the linker's name for where the module begins

namespace plotsmith::windows {
namespace {

HANDLE MakeContext() {
  ACTCTXW wanted = {};
  wanted.cbSize = sizeof wanted;
  wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  wanted.hModule = OwnModule();
  wanted.lpResourceName = MAKEINTRESOURCEW(2);
  return CreateActCtxW(&wanted);
}

/// The version of the library that the active context names registers its classes of windows.
void RegisterControls() {
  using Function = BOOL(WINAPI*)(const INITCOMMONCONTROLSEX*);
  const HMODULE library = LoadLibraryExW(L"comctl32.dll", nullptr, 0);
  if (library == nullptr) return;
  const auto function =
      reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, "InitCommonControlsEx")));
  const INITCOMMONCONTROLSEX classes = {sizeof classes,
                                        ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS};
  if (function != nullptr) function(&classes);
}

}  // namespace

HINSTANCE OwnModule() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

ActivationContext::ActivationContext() {
  static const HANDLE context = MakeContext();
  isActive_ = context != INVALID_HANDLE_VALUE && ActivateActCtx(context, &cookie_);
  static const bool isRegistered = (RegisterControls(), true);
  static_cast<void>(isRegistered);
}

ActivationContext::~ActivationContext() {
  if (isActive_) DeactivateActCtx(0, cookie_);
}

}  // namespace plotsmith::windows

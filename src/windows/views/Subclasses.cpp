#include "windows/views/Subclasses.h"

#include "windows/views/ActivationContext.h"

namespace plotsmith::windows {
namespace {

constexpr UINT_PTR kId = 1;  // the identifier of our only subclass on a window

/// Functions of the common controls. All versions of the library export them by the same ordinals, but not
/// all by name.
struct Functions {
  BOOL(WINAPI* set)(HWND, SubclassProcedure, UINT_PTR, DWORD_PTR);
  BOOL(WINAPI* get)(HWND, SubclassProcedure, UINT_PTR, DWORD_PTR*);
  BOOL(WINAPI* remove)(HWND, SubclassProcedure, UINT_PTR);
  LRESULT(WINAPI* callNext)(HWND, UINT, WPARAM, LPARAM);
};

template <class Function>
Function Find(WORD number) {
  const FARPROC found = GetProcAddress(CommonControls(), MAKEINTRESOURCEA(number));
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

const Functions& TheFunctions() {
  static const Functions functions = {
      Find<decltype(Functions::set)>(410), Find<decltype(Functions::get)>(411),
      Find<decltype(Functions::remove)>(412), Find<decltype(Functions::callNext)>(413)};
  return functions;
}

}  // namespace

void SetSubclass(HWND window, SubclassProcedure procedure, void* data) {
  TheFunctions().set(window, procedure, kId, reinterpret_cast<DWORD_PTR>(data));
}

void ForgetSubclassData(HWND window, SubclassProcedure procedure) { SetSubclass(window, procedure, nullptr); }

void RemoveSubclass(HWND window, SubclassProcedure procedure) {
  TheFunctions().remove(window, procedure, kId);
}

void* SubclassData(HWND window, SubclassProcedure procedure) {
  DWORD_PTR data = 0;
  const bool hasIt = window != nullptr && TheFunctions().get(window, procedure, kId, &data) != FALSE;
  return hasIt ? reinterpret_cast<void*>(data) : nullptr;
}

LRESULT CallNextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return TheFunctions().callNext(window, message, wParam, lParam);
}

}  // namespace plotsmith::windows

#include "windows/views/ControlNames.h"

#include <cwchar>

#include "windows/com/Texts.h"

namespace plotsmith::windows {
namespace {

constexpr const wchar_t* kProperty = L"Plotsmith.Name";
constexpr int kMostLetters = 255;  // the maximum of an atom

ATOM AtomOf(HWND window) {
  return static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, kProperty)));
}

}  // namespace

void SetWindowName(HWND window, const std::string& name) {
  const ATOM atom = GlobalAddAtomW(com::Wide(name).c_str());
  SetPropW(window, kProperty, reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(atom)));
}

void RemoveWindowName(HWND window) {
  const ATOM atom = AtomOf(window);
  RemovePropW(window, kProperty);
  if (atom != 0) GlobalDeleteAtom(atom);
}

std::string WindowName(HWND window) {
  wchar_t name[kMostLetters + 1] = {};
  const ATOM atom = AtomOf(window);
  if (atom != 0) GlobalGetAtomNameW(atom, name, kMostLetters + 1);
  return com::Utf8(name, std::wcslen(name));
}

}  // namespace plotsmith::windows

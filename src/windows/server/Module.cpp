#include "windows/server/Module.h"

#include <atomic>

namespace plotsmith::windows {
namespace {

HINSTANCE moduleHandle = nullptr;
std::atomic<long> keepers = 0;

}  // namespace

HINSTANCE ModuleHandle() { return moduleHandle; }
void SetModuleHandle(HINSTANCE module) { moduleHandle = module; }

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(moduleHandle, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

void KeepModule() { ++keepers; }
void ReleaseModule() { --keepers; }
bool IsModuleKept() { return keepers != 0; }

}  // namespace plotsmith::windows

#pragma once

#include <cstdint>
#include <functional>

namespace plotsmith::windows {

/// Runs one operation of the component. If the operation can't run, for example because another one is
/// running, or if it throws, a message box reports that under the name `operation`. No exception leaves this
/// function. `findHostWindow` returns the handle of the host's window, or 0 if it isn't known; it is called
/// only if the operation can run.
void RunOperation(const char* operation, const std::function<std::intptr_t()>& findHostWindow,
                  const std::function<void()>& body) noexcept;

/// Ends the life of the component: releases the host and all other state. Returns false and does nothing if
/// the component belongs to another thread. No operation may be running. DllCanUnloadNow ensures that,
/// because each operation keeps the module loaded (see Module.h).
bool EndComponent();

}  // namespace plotsmith::windows

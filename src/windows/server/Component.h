#pragma once

#include <cstdint>
#include <functional>

namespace plotsmith::windows {

/// Runs one operation of the component. What keeps it from running, such as an operation that is still at
/// work, and what it throws, is reported under the name `operation` in a message box; nothing is thrown.
/// `findHostWindow` gives the handle of the host's window, 0 if it isn't known; it is called when the
/// operation can run.
void RunOperation(const char* operation, const std::function<std::intptr_t()>& findHostWindow,
                  const std::function<void()>& body) noexcept;

/// Ends the life of the component: it forgets the host and all else. False, with nothing done, where it
/// belongs to another thread. It must not be at work: an operation keeps the module, see Module.h.
bool EndComponent();

}  // namespace plotsmith::windows

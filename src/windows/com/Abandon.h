#pragma once

namespace plotsmith::com {

/// From here on no reference is released. Called when the process ends: the libraries behind the references
/// may be gone by then, and the system takes all memory back anyway.
void Abandon();
/// Whether Abandon was called.
bool IsAbandoned();

}  // namespace plotsmith::com

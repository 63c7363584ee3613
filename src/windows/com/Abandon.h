#pragma once

namespace plotsmith::com {

/// Stops the release of references. The DLL calls this when the process ends: the libraries of the objects
/// may be unloaded by then, and the system frees all memory.
void Abandon();
/// Returns true if Abandon was called.
bool IsAbandoned();

}  // namespace plotsmith::com

#pragma once

namespace plotsmith::com {

/// After this call no reference is released. The DLL calls it when the process ends: the libraries of the
/// objects may be unloaded by then, and the system frees all memory.
void Abandon();
/// Whether Abandon was called.
bool IsAbandoned();

}  // namespace plotsmith::com

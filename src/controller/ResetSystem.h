#pragma once

namespace plotsmith {

/// What all modules remember back to how the component starts. Whoever puts the component and a host together
/// calls it before and after, as what the system holds of the host must not outlive it. `App` and `oPages`,
/// which that caller sets, stay.
void ResetSystem();

}  // namespace plotsmith

#pragma once

#include <memory>

#include "forms/ModalLoop.h"
#include "host/desktop/Desktop.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// Sets the component up on a desktop and a view of its forms. A program does so before the first call of the
/// component.
void StartSystem(runtime::Ref<desktop::Desktop> oDesktop, std::shared_ptr<forms::View> oView);
/// Puts what all modules remember back to how the component starts. What the system holds of a host must not
/// outlive it.
void ResetSystem();
/// Releases everything, the desktop and the view included.
void StopSystem();

}  // namespace plotsmith

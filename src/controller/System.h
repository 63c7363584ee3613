#pragma once

#include <memory>

#include "forms/ModalLoop.h"
#include "host/desktop/Desktop.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// Initializes the system with a desktop and a view of its forms. A program calls this before any other
/// function of the system.
void StartSystem(runtime::Ref<desktop::Desktop> oDesktop, std::shared_ptr<forms::View> oView);
/// Resets the variables of all modules to their initial state. The system's references to a host must not
/// outlive the host, so a program calls this before it destroys the host.
void ResetSystem();
/// Releases everything, including the desktop and the view.
void StopSystem();

}  // namespace plotsmith

#pragma once

#include <string>

#include "forms/ModalLoop.h"
#include "host/desktop/Desktop.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The environment of the component, apart from the spreadsheet program. The program that connects the
/// component with a host sets it once.
struct AppObject {
  std::string HelpFile;                    ///< The help file, which the Help buttons of the pages open.
  runtime::Ref<desktop::Desktop> Desktop;  ///< Message boxes, help and the clock.
  runtime::Ref<forms::ModalLoop> Forms;    ///< The loop that runs the modal forms.
};

/// The environment of this process.
extern AppObject App;

}  // namespace plotsmith

#pragma once

#include <string>

#include "forms/ModalLoop.h"
#include "host/desktop/Desktop.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The environment of the component, apart from the spreadsheet program. The program that connects the
/// component with a host sets it once.
struct AppObject {
  std::string HelpFile;  ///< opened by the pages' Help buttons
  runtime::Ref<desktop::Desktop> Desktop;
  runtime::Ref<forms::ModalLoop> Forms;  ///< runs the modal forms
};

extern AppObject App;

}  // namespace plotsmith

#pragma once

#include <string>

#include "forms/ModalLoop.h"
#include "host/desktop/Desktop.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The surroundings of the component, apart from the spreadsheet. The program that puts the component and a
/// host together sets them once.
struct AppObject {
  std::string HelpFile;  ///< opened by the pages' Help buttons
  runtime::Ref<desktop::Desktop> Desktop;
  runtime::Ref<forms::ModalLoop> Forms;  ///< runs the modal forms
};

extern AppObject App;

}  // namespace plotsmith

#pragma once

#include <string>

#include "host/desktop/Desktop.h"
#include "host/forms/Form.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// What the component finds around it, apart from the spreadsheet. Whoever puts the component and a host
/// together sets it once.
struct AppObject {
  std::string HelpFile;  ///< opened by the pages' Help buttons
  runtime::Ref<desktop::Desktop> Desktop;
  runtime::Ref<forms::Views> Views;
};

extern AppObject App;

}  // namespace plotsmith

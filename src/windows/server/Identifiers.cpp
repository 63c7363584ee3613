// Defines the identifiers (GUIDs) that the interface's header declares.
#include <initguid.h>

#include "PlotsmithInterface.h"
#include "windows/com/Windows.h"

// Defines the identifiers that the header of the interface declares.
#include <initguid.h>

#include "PlotsmithInterface.h"
#include "windows/com/Windows.h"

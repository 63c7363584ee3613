#include "windows/com/Abandon.h"

namespace plotsmith::com {

namespace {
bool abandoned = false;
}

void Abandon() { abandoned = true; }
bool IsAbandoned() { return abandoned; }

}  // namespace plotsmith::com

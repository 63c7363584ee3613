#include "common/App.h"

namespace plotsmith {

AppObject App;

}  // namespace plotsmith

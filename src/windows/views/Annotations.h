#pragma once

#include <string>

#include "windows/com/ComPtr.h"
#include "windows/com/Windows.h"

struct IAccPropServices;

namespace plotsmith::windows {

/// What a screen reader says of a control.
struct Spoken {
  std::string name;
  std::string description;
  LONG role = 0;  ///< one of MSAA's ROLE_SYSTEM_; 0 leaves the window's own

  bool operator==(const Spoken&) const = default;
};

/// Tells screen readers the names of controls, which they can't know of windows inside of a group box, by the
/// Dynamic Annotation of MSAA. Where the system has none, screen readers know the texts of the windows alone.
/// The thread must have COM at hand.
class Annotations {
 public:
  Annotations();
  ~Annotations();
  Annotations(const Annotations&) = delete;
  Annotations& operator=(const Annotations&) = delete;

  void Set(HWND window, const Spoken& spoken);
  /// Forgets the window, which must still be there.
  void Clear(HWND window);

 private:
  com::ComPtr<IAccPropServices> services_;
};

}  // namespace plotsmith::windows

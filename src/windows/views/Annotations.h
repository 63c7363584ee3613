#pragma once

#include <string>

#include "windows/com/ComPtr.h"
#include "windows/com/Windows.h"

struct IAccPropServices;

namespace plotsmith::windows {

/// What a screen reader says about a control.
struct Spoken {
  std::string name;         ///< the name, which most screen readers say first
  std::string description;  ///< the description, which can be empty
  LONG role = 0;            ///< one of MSAA's ROLE_SYSTEM_ constants; 0 keeps the window's own role

  bool operator==(const Spoken&) const = default;
};

/// Gives screen readers the names of controls, with Dynamic Annotation of MSAA; they can't find the names of
/// windows inside a group box by themselves. If the system lacks this service, screen readers know only the
/// windows' texts. COM must be initialized on the thread.
class Annotations {
 public:
  Annotations();
  ~Annotations();
  Annotations(const Annotations&) = delete;
  Annotations& operator=(const Annotations&) = delete;

  /// Sets what screen readers say about a window.
  void Set(HWND window, const Spoken& spoken);
  /// Removes the annotations of a window, which must still exist.
  void Clear(HWND window);

 private:
  com::ComPtr<IAccPropServices> services_;
};

}  // namespace plotsmith::windows

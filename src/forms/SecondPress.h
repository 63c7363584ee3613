#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

namespace plotsmith::forms {

/// Knows the last press of the mouse on a button of any form. The second half of a double click on a button
/// that opens the next page must not press the button of that page which happens to lie below the pointer.
class SecondPress {
 public:
  struct Press {
    std::uint64_t time;  ///< milliseconds, by the events' own clock
    int x, y;            ///< pixels on the screen
  };
  /// What the person has set for double clicks.
  struct Reach {
    std::uint64_t time;  ///< milliseconds
    int distance;        ///< pixels
  };

  /// Notes a press, and tells whether it belongs to the one before it.
  bool Note(const Press& press, const Reach& reach) {
    const auto last = std::exchange(last_, press);
    return last && press.time - last->time < reach.time &&
           std::abs(press.x - last->x) + std::abs(press.y - last->y) <= reach.distance;
  }

 private:
  std::optional<Press> last_;
};

}  // namespace plotsmith::forms

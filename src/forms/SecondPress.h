#pragma once

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

namespace plotsmith::forms {

/// Recognizes the second press of a double click on buttons. If the first press opens the next page, the
/// second press must not reach a button of that page at the same position.
class SecondPress {
 public:
  /// A press of a mouse button.
  struct Press {
    std::uint64_t time;  ///< The time of the event in milliseconds.
    /// The position on the screen in pixels.
    int x, y;
  };
  /// The user's settings for double clicks.
  struct Reach {
    std::uint64_t time;  ///< The maximum time between the presses in milliseconds.
    int distance;        ///< The maximum distance between the presses in pixels.
  };

  /// Stores a press. Returns true if it forms a double click with the previous press.
  bool Note(const Press& press, const Reach& reach) {
    const auto last = std::exchange(last_, press);
    return last && press.time - last->time < reach.time &&
           std::abs(press.x - last->x) + std::abs(press.y - last->y) <= reach.distance;
  }

 private:
  std::optional<Press> last_;
};

}  // namespace plotsmith::forms

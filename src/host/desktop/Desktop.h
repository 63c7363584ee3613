#pragma once

#include <cstdint>
#include <string_view>

namespace plotsmith::desktop {

enum class Buttons { kOk, kOkCancel };
enum class Icon { kNone, kCritical };
inline constexpr std::int32_t kOk = 1;
inline constexpr std::int32_t kCancel = 2;
inline constexpr std::int32_t kPointerDefault = 0;
inline constexpr std::int32_t kPointerHourglass = 11;

/// What the system asks of the machine around it rather than of the spreadsheet.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// A modal box; an empty title means the application's own. Answers kOk or kCancel.
  virtual std::int32_t MsgBox(std::string_view text, Buttons buttons, Icon icon, std::string_view title) = 0;
  /// Lets waiting messages, and timers that are due, be handled.
  virtual void DoEvents() = 0;
  /// Seconds since midnight.
  virtual double Timer() = 0;
  virtual void SetMousePointer(std::int32_t pointer) = 0;
};

}  // namespace plotsmith::desktop

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The port to the desktop. Numbers are those of Visual Basic.
namespace plotsmith::desktop {

/// What a message box offers to press.
enum class Buttons { kOk, kOkCancel };
/// The picture in a message box.
enum class Icon { kNone, kCritical };

/// What a message box answers.
///@{
inline constexpr std::int32_t kOk = 1;
inline constexpr std::int32_t kCancel = 2;
///@}

/// The shapes of the mouse pointer.
///@{
inline constexpr std::int32_t kPointerDefault = 0;
inline constexpr std::int32_t kPointerHourglass = 11;
///@}

/// What the system asks of the machine around it rather than of the spreadsheet.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// A modal box; an empty title means the application's own. Answers kOk or kCancel.
  virtual std::int32_t MsgBox(std::string_view text, Buttons buttons, Icon icon, std::string_view title) = 0;
  /// Opens a help file at a topic, as HtmlHelp with HH_HELP_CONTEXT does. `owner` is the handle of the window
  /// that asks, 0 where there is none.
  virtual void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) = 0;
  /// Seconds since midnight, local time.
  virtual double Timer() = 0;
  /// kPointerDefault or kPointerHourglass.
  virtual void SetMousePointer(std::int32_t pointer) = 0;
  /// The identifier of the user's locale, as Windows' GetUserDefaultLCID gives it (MS-LCID): 1033 is English
  /// (United States).
  virtual std::int32_t UserDefaultLCID() = 0;
};

}  // namespace plotsmith::desktop

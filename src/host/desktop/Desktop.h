#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The port to the desktop. Constants have the numbers of Visual Basic.
namespace plotsmith::desktop {

/// The buttons of a message box.
enum class Buttons { kOk, kOkCancel };
/// The icon of a message box.
enum class Icon { kNone, kCritical };

/// The button that closed a message box.
///@{
inline constexpr std::int32_t kOk = 1;
inline constexpr std::int32_t kCancel = 2;
///@}

/// Shapes of the mouse pointer.
///@{
inline constexpr std::int32_t kPointerDefault = 0;
inline constexpr std::int32_t kPointerHourglass = 11;
///@}

/// The services that the system needs from the desktop rather than from the spreadsheet program.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows a modal message box. An empty title means the name of the application. Returns kOk or kCancel.
  virtual std::int32_t MsgBox(std::string_view text, Buttons buttons, Icon icon, std::string_view title) = 0;
  /// Opens a help file at a topic, as HtmlHelp does with HH_HELP_CONTEXT. `owner` is the handle of the
  /// calling window, or 0 if there is none.
  virtual void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) = 0;
  /// Returns the local time in seconds since midnight.
  virtual double Timer() = 0;
  /// Sets the shape of the mouse pointer: kPointerDefault or kPointerHourglass.
  virtual void SetMousePointer(std::int32_t pointer) = 0;
  /// Returns the identifier of the user's locale, as GetUserDefaultLCID does on Windows (MS-LCID). 1033 is
  /// English (United States).
  virtual std::int32_t UserDefaultLCID() = 0;
};

}  // namespace plotsmith::desktop

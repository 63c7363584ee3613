#pragma once

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>

#include "forms/Font.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The fonts of Windows for those of a form and its controls, at one resolution. They live as long as this.
class Fonts {
 public:
  /// `dpi` is the number of pixels in an inch.
  explicit Fonts(UINT dpi) : dpi_(dpi) {}

  UINT Dpi() const { return dpi_; }
  /// The typeface, character set and size of the model. A font without a name gets the typeface that the
  /// system has for messages.
  HFONT Find(const forms::Font& font);

 private:
  using Key = std::tuple<std::string, double, std::int32_t, bool>;
  struct Delete {
    void operator()(HFONT font) const { DeleteObject(font); }
  };

  UINT dpi_;
  std::map<Key, std::unique_ptr<std::remove_pointer_t<HFONT>, Delete>> fonts_;
};

/// The size of a text in a font, in pixels. "&" in front of a letter takes no room.
SIZE TextSize(HFONT font, const std::wstring& text);
/// The height of a line, and the average width of its characters, in pixels.
SIZE CharacterSize(HFONT font);

}  // namespace plotsmith::windows

#pragma once

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>

#include "forms/Font.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The Windows fonts of a form and its controls, at one resolution. They live as long as this object.
class Fonts {
 public:
  /// Makes fonts for a resolution of `dpi` pixels per inch.
  explicit Fonts(UINT dpi) : dpi_(dpi) {}

  /// The number of pixels per inch.
  UINT Dpi() const { return dpi_; }
  /// Returns the font with the model's typeface, character set and size. A font without a name gets the
  /// typeface of the system's message boxes.
  HFONT Find(const forms::Font& font);

 private:
  using Key = std::tuple<std::string, double, std::int32_t, bool>;
  struct Delete {
    void operator()(HFONT font) const { DeleteObject(font); }
  };

  UINT dpi_;
  std::map<Key, std::unique_ptr<std::remove_pointer_t<HFONT>, Delete>> fonts_;
};

/// Returns the size of a text in pixels. An "&" before a letter has no width.
SIZE TextSize(HFONT font, const std::wstring& text);
/// Returns the height of a line and the average width of a character, in pixels.
SIZE CharacterSize(HFONT font);

}  // namespace plotsmith::windows

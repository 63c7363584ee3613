#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// The colours and fonts of a theme (DrawingML), which determine the colours of elements. Colours are red +
/// 256 * green + 65536 * blue.
class Theme {
 public:
  /// Reads the XML of a theme part. An empty or unreadable text gives Office's colours and fonts.
  explicit Theme(std::string_view part);
  /// The theme with the colours of a theme override part.
  Theme WithOverride(std::string_view part) const;

  /// The Latin typeface of headings.
  const std::string& MajorFont() const { return major_; }
  /// The Latin typeface of body text.
  const std::string& MinorFont() const { return minor_; }
  /// The typeface for a name in text properties: "+mn-lt" is the minor font.
  std::string Typeface(std::string_view name) const;

  /// A colour by its name in the scheme or in the default colour map: "accent1", "tx1", "dk1".
  std::optional<std::int32_t> SchemeColor(std::string_view name) const;
  /// The colour in an element such as a:solidFill or a:fgClr, with its modifications; absent if there is
  /// none, or if it depends on something unknown. `map` is the chart's own colour map, or a null node.
  std::optional<std::int32_t> Color(pugi::xml_node holder, pugi::xml_node map = {}) const;

 private:
  void Read(std::string_view part);

  std::map<std::string, std::int32_t, std::less<>> colors_;
  std::string major_, minor_;
};

}  // namespace plotsmith::xlsx

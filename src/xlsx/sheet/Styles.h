#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "xlsx/numberformat/NumberFormat.h"

namespace plotsmith::xlsx {

/// The styles part: number formats, fonts, fills and borders by cell style, and the palette. Styles are added
/// and never removed.
class Styles {
 public:
  /// Parses the part. If `bytes` is empty, makes a new part; `strict` selects the vocabulary of Strict files.
  /// Throws PackageError.
  explicit Styles(std::string_view bytes, bool strict = false);

  /// Returns the number format of a cell style, an index into cellXfs; General if there is no such style.
  const NumberFormat& Format(std::uint32_t style) const;
  /// Returns true if the format of a cell style is General. It is called for each cell, and is fast.
  bool IsGeneral(std::uint32_t style) const { return Known(style).general; }
  /// Returns true if the format of a cell style shows a date. It is called for each cell, and is fast.
  bool IsDate(std::uint32_t style) const { return Known(style).date; }
  /// Returns the code of a cell style's number format.
  std::string FormatCode(std::uint32_t style) const;
  /// Returns the style that equals `base` except for the number format, and adds it if necessary. The code
  /// must be valid.
  std::uint32_t WithFormat(std::uint32_t base, std::string_view code);

  /// Returns the elements for the look of a cell style (CT_Font, CT_Fill, CT_Border, CT_CellAlignment), or
  /// null nodes.
  ///@{
  pugi::xml_node FontOf(std::uint32_t style) const;
  pugi::xml_node FillOf(std::uint32_t style) const;
  pugi::xml_node BorderOf(std::uint32_t style) const;
  pugi::xml_node AlignmentOf(std::uint32_t style) const;
  ///@}

  /// An entry of the palette, from 1 to 56, as red + 256 * green + 65536 * blue.
  std::int32_t PaletteColor(std::int32_t index) const;
  /// Sets an entry of the palette, from 1 to 56.
  void SetPaletteColor(std::int32_t index, std::int32_t color);

  /// The name of the Normal style's font. Column widths depend on this font.
  std::string NormalFontName() const;
  /// The size of the Normal style's font in points.
  double NormalFontSize() const;
  /// Returns "minor" or "major" if that font comes from the theme, otherwise an empty text.
  std::string NormalFontScheme() const;

  /// Returns true if styles were added or the palette was changed.
  bool Changed() const { return changed_; }
  /// Returns the part in UTF-8.
  std::string Serialize() const;

 private:
  struct CellStyle {
    pugi::xml_node node;
    int formatId = 0;
    mutable std::shared_ptr<const NumberFormat> format;  // Parsed at the first use, like the flags.
    mutable bool general = false, date = false;
  };
  const CellStyle& Known(std::uint32_t style) const {
    const CellStyle& known = style < cellStyles_.size() ? cellStyles_[style] : noStyle_;
    if (!known.format) Parse(known);
    return known;
  }
  void Parse(const CellStyle& style) const;

  pugi::xml_node Root() const;
  pugi::xml_node NormalFont() const;
  /// Returns the entry of a list of the part that an attribute of a cell style refers to.
  pugi::xml_node EntryOf(std::uint32_t style, const char* attribute, std::string_view list,
                         std::string_view local) const;
  /// Returns an entry of a list of the part, from 0; a null node outside the list.
  pugi::xml_node EntryAt(std::string_view list, std::string_view local, long long index) const;
  std::string CodeOf(int formatId) const;
  int FormatId(std::string_view code);
  void Load();
  void AddStyle(pugi::xml_node node);

  pugi::xml_document document_;
  std::map<int, std::string> formats_;
  std::map<std::string, int, std::less<>>
      formatIds_;  ///< The ids by code; the first one if there are several.
  std::vector<CellStyle> cellStyles_;
  CellStyle noStyle_;
  std::map<std::pair<std::uint32_t, std::string>, std::uint32_t> made_;
  bool changed_ = false;
};

/// Returns an entry of Excel's default palette, from 1 to 56.
std::int32_t DefaultPaletteColor(std::int32_t index);

}  // namespace plotsmith::xlsx

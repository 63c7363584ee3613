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

/// The styles part: number formats by cell style, and the palette. It only ever grows.
class Styles {
 public:
  /// `bytes` is empty for a workbook without the part, which is then made, in the Strict vocabulary or the
  /// usual one. Throws PackageError.
  explicit Styles(std::string_view bytes, bool strict = false);

  /// The number format of a cell style, an index into cellXfs; General where there is no such style.
  const NumberFormat& Format(std::uint32_t style) const;
  /// The same questions as to the format, without looking at it: they are asked for each cell.
  bool IsGeneral(std::uint32_t style) const { return Known(style).general; }
  bool IsDate(std::uint32_t style) const { return Known(style).date; }
  std::string FormatCode(std::uint32_t style) const;
  /// The style that is like `base` but has the number format, made if need be. The code must be valid.
  std::uint32_t WithFormat(std::uint32_t base, std::string_view code);

  /// The elements that say how a cell of a style looks (CT_Font, CT_Fill, CT_Border, CT_CellAlignment); null
  /// nodes where there are none.
  ///@{
  pugi::xml_node FontOf(std::uint32_t style) const;
  pugi::xml_node FillOf(std::uint32_t style) const;
  pugi::xml_node BorderOf(std::uint32_t style) const;
  pugi::xml_node AlignmentOf(std::uint32_t style) const;
  ///@}

  /// Entry 1 to 56 of the palette, as red + 256 * green + 65536 * blue.
  std::int32_t PaletteColor(std::int32_t index) const;
  void SetPaletteColor(std::int32_t index, std::int32_t color);

  /// The font of the Normal style, by which column widths count.
  std::string NormalFontName() const;
  double NormalFontSize() const;
  /// "minor" or "major" where that font is the theme's, else empty.
  std::string NormalFontScheme() const;

  bool Changed() const { return changed_; }
  std::string Serialize() const;

 private:
  struct CellStyle {
    pugi::xml_node node;
    int formatId = 0;
    mutable std::shared_ptr<const NumberFormat> format;  // parsed when first asked for, with what it says
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
  /// The entry of one of the part's lists that a cell style names by an attribute.
  pugi::xml_node EntryOf(std::uint32_t style, const char* attribute, std::string_view list,
                         std::string_view local) const;
  /// An entry of one of the part's lists, from 0; a null node outside.
  pugi::xml_node EntryAt(std::string_view list, std::string_view local, long long index) const;
  std::string CodeOf(int formatId) const;
  int FormatId(std::string_view code);
  void Load();
  void AddStyle(pugi::xml_node node);

  pugi::xml_document document_;
  std::map<int, std::string> formats_;
  std::map<std::string, int, std::less<>> formatIds_;  ///< the way back, to the first of several
  std::vector<CellStyle> cellStyles_;
  CellStyle noStyle_;
  std::map<std::pair<std::uint32_t, std::string>, std::uint32_t> made_;
  bool changed_ = false;
};

/// The default palette of Excel, entries 1 to 56.
std::int32_t DefaultPaletteColor(std::int32_t index);

}  // namespace plotsmith::xlsx

#include "xlsx/sheet/Styles.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/package/FreeNumber.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr int kFirstCustomFormat = 164;
constexpr int kLastFormat = std::numeric_limits<int>::max();
constexpr int kPaletteSize = 56;
/// The file's indexed colours begin with eight fixed colours.
constexpr int kFixedColors = 8;

constexpr std::string_view kEmptyStyles =
    R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
    R"(<fonts count="1"><font><sz val="11"/><name val="Calibri"/><family val="2"/></font></fonts>)"
    R"(<fills count="2"><fill><patternFill patternType="none"/></fill><fill><patternFill patternType="gray125"/></fill></fills>)"
    R"(<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>)"
    R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>)"
    R"(<cellXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/></cellXfs>)"
    R"(<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles></styleSheet>)";

/// The children of `styleSheet` in the order of the schema (CT_Stylesheet).
constexpr std::array<std::string_view, 11> kOrder = {"numFmts",      "fonts",   "fills",      "borders",
                                                     "cellStyleXfs", "cellXfs", "cellStyles", "dxfs",
                                                     "tableStyles",  "colors",  "extLst"};

/// Red, green and blue of Excel's default palette, from ECMA-376-1, 18.8.27 (indexed 8 to 63).
constexpr std::array<std::uint32_t, kPaletteSize> kDefaultPalette = {
    0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF, 0x800000, 0x008000,
    0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080, 0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF,
    0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF, 0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000,
    0x008080, 0x0000FF, 0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
    0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696, 0x003366, 0x339966,
    0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333};

std::int32_t Swapped(std::uint32_t rgb) {
  return static_cast<std::int32_t>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF));
}

/// Collects the elements of a list in the order in which cells number them. If an element has alternatives
/// for other programs, the simplest one is collected.
void Collect(pugi::xml_node list, std::string_view local, std::vector<pugi::xml_node>& found) {
  for (const pugi::xml_node& child : list.children()) {
    if (xml::Is(child, local)) found.push_back(child);
    if (xml::Is(child, "AlternateContent")) {
      const auto fallback = xml::Child(child, "Fallback");
      Collect(fallback ? fallback : xml::Child(child, "Choice"), local, found);
    }
  }
}

std::vector<pugi::xml_node> Listed(pugi::xml_node sheet, std::string_view list, std::string_view local) {
  std::vector<pugi::xml_node> lists, found;
  Collect(sheet, list, lists);
  for (const pugi::xml_node& node : lists) Collect(node, local, found);
  return found;
}

int FormatIdOf(pugi::xml_node node) {
  return static_cast<int>(
      std::clamp(xml::IntegerAttribute(node, "numFmtId", 0), 0LL, static_cast<long long>(kLastFormat)));
}

}  // namespace

Styles::Styles(std::string_view bytes, bool strict) {
  const std::string empty = std::string(kXmlDeclaration) + std::string(kEmptyStyles);
  if (!bytes.empty()) {
    xml::Parse(document_, bytes);
  } else {
    xml::Parse(document_, strict ? runtime::Replace(empty, kTransitional.main, kStrict.main) : empty);
  }
  Load();
}

pugi::xml_node Styles::Root() const { return xml::Root(document_); }

void Styles::Load() {
  for (const pugi::xml_node& format : Listed(Root(), "numFmts", "numFmt")) {
    formats_[FormatIdOf(format)] = xml::Attribute(format, "formatCode");
  }
  for (const auto& [id, code] : formats_) formatIds_.emplace(code, id);
  for (const pugi::xml_node& style : Listed(Root(), "cellXfs", "xf")) {
    AddStyle(style);
  }
}

void Styles::AddStyle(pugi::xml_node node) {
  CellStyle& style = cellStyles_.emplace_back();
  style.node = node;
  style.formatId = FormatIdOf(node);
}

std::string Styles::CodeOf(int formatId) const {
  if (const auto custom = formats_.find(formatId); custom != formats_.end()) return custom->second;
  const std::string_view code = BuiltinNumberFormat(formatId);
  return code.empty() ? "General" : std::string(code);
}

std::string Styles::FormatCode(std::uint32_t style) const {
  return style < cellStyles_.size() ? CodeOf(cellStyles_[style].formatId) : "General";
}

const NumberFormat& Styles::Format(std::uint32_t style) const { return *Known(style).format; }

void Styles::Parse(const CellStyle& style) const {
  static const std::shared_ptr<const NumberFormat> general = NumberFormat::Parse("General");
  style.format = NumberFormat::Parse(CodeOf(style.formatId));
  if (!style.format) style.format = general;  // Excel would refuse the code.
  style.general = style.format->IsGeneral();
  style.date = style.format->IsDate();
}

int Styles::FormatId(std::string_view code) {
  if (runtime::EqualsIgnoreCase(code, "General") || code.empty()) return 0;
  if (const auto custom = formatIds_.find(code); custom != formatIds_.end()) return custom->second;
  if (const auto id = BuiltinNumberFormatId(code); id && !formats_.contains(*id)) return *id;
  std::set<long long> taken;
  for (const auto& [id, custom] : formats_) taken.insert(id);
  const auto next = static_cast<int>(FreeNumber(taken, kFirstCustomFormat, kLastFormat));
  pugi::xml_node list = xml::EnsureInOrder(Root(), "numFmts", kOrder);
  pugi::xml_node format = xml::AppendChild(list, "numFmt");
  xml::SetAttribute(format, "numFmtId", std::to_string(next));
  xml::SetAttribute(format, "formatCode", code);
  xml::SetAttribute(list, "count", std::to_string(Listed(Root(), "numFmts", "numFmt").size()));
  formats_[next] = code;
  formatIds_.emplace(code, next);
  return next;
}

std::uint32_t Styles::WithFormat(std::uint32_t base, std::string_view code) {
  const auto known = made_.find({base, std::string(code)});
  if (known != made_.end()) return known->second;
  const bool wasChanged = changed_;
  changed_ = true;
  const int id = FormatId(code);
  if ((base < cellStyles_.size() ? cellStyles_[base].formatId : 0) == id) {
    changed_ = wasChanged;
    return made_[{base, std::string(code)}] = base;
  }
  pugi::xml_node list = xml::EnsureInOrder(Root(), "cellXfs", kOrder);
  const std::string name = std::string(xml::Prefix(list.name())) + "xf";
  if (cellStyles_.empty()) {  // Cells without a style have the first one.
    pugi::xml_node first = list.append_child(name.c_str());
    xml::SetAttribute(first, "numFmtId", "0");
    AddStyle(first);
  }
  pugi::xml_node style =
      base < cellStyles_.size() ? list.append_copy(cellStyles_[base].node) : list.append_child(name.c_str());
  xml::SetAttribute(style, "numFmtId", std::to_string(id));
  xml::SetAttribute(style, "applyNumberFormat", "1");
  AddStyle(style);
  xml::SetAttribute(list, "count", std::to_string(cellStyles_.size()));
  const auto made = static_cast<std::uint32_t>(cellStyles_.size() - 1);
  made_[{base, std::string(code)}] = made;
  return made;
}

std::int32_t DefaultPaletteColor(std::int32_t index) {
  return Swapped(kDefaultPalette[static_cast<std::size_t>(index) - 1]);
}

std::int32_t Styles::PaletteColor(std::int32_t index) const {
  if (index < 1 || index > kPaletteSize) throw runtime::RuntimeError(runtime::error::kSubscript);
  const auto colors = xml::Children(xml::Child(Root(), "colors", "indexedColors"), "rgbColor");
  const auto position = static_cast<std::size_t>(index - 1 + kFixedColors);
  if (position < colors.size()) {
    if (const auto color = ParseRgb(xml::Attribute(colors[position], "rgb"))) return *color;
  }
  return DefaultPaletteColor(index);
}

void Styles::SetPaletteColor(std::int32_t index, std::int32_t color) {
  if (index < 1 || index > kPaletteSize) throw runtime::RuntimeError(runtime::error::kSubscript);
  changed_ = true;
  pugi::xml_node colors = xml::EnsureInOrder(Root(), "colors", kOrder);
  const std::string prefix(xml::Prefix(colors.name()));
  pugi::xml_node palette = xml::Child(colors, "indexedColors");
  if (!palette) palette = colors.prepend_child((prefix + "indexedColors").c_str());
  auto entries = xml::Children(palette, "rgbColor");
  // The part contains the complete palette or none.
  for (int i = static_cast<int>(entries.size()); i < kPaletteSize + kFixedColors; ++i) {
    pugi::xml_node entry = palette.append_child((prefix + "rgbColor").c_str());
    xml::SetAttribute(entry, "rgb",
                      "FF" + RgbText(DefaultPaletteColor(i < kFixedColors ? i + 1 : i - kFixedColors + 1)));
    entries.push_back(entry);
  }
  xml::SetAttribute(entries[static_cast<std::size_t>(index - 1 + kFixedColors)], "rgb",
                    "FF" + RgbText(color));
}

pugi::xml_node Styles::EntryAt(std::string_view list, std::string_view local, long long index) const {
  const auto found = Listed(Root(), list, local);
  const bool known = index >= 0 && index < static_cast<long long>(found.size());
  return known ? found[static_cast<std::size_t>(index)] : pugi::xml_node();
}

pugi::xml_node Styles::EntryOf(std::uint32_t style, const char* attribute, std::string_view list,
                               std::string_view local) const {
  const auto node = style < cellStyles_.size() ? cellStyles_[style].node : pugi::xml_node();
  return EntryAt(list, local, xml::IntegerAttribute(node, attribute, 0));
}

pugi::xml_node Styles::FontOf(std::uint32_t style) const { return EntryOf(style, "fontId", "fonts", "font"); }

pugi::xml_node Styles::FillOf(std::uint32_t style) const { return EntryOf(style, "fillId", "fills", "fill"); }

pugi::xml_node Styles::BorderOf(std::uint32_t style) const {
  return EntryOf(style, "borderId", "borders", "border");
}

pugi::xml_node Styles::AlignmentOf(std::uint32_t style) const {
  return style < cellStyles_.size() ? xml::Child(cellStyles_[style].node, "alignment") : pugi::xml_node();
}

pugi::xml_node Styles::NormalFont() const {
  long long format = 0;
  for (const pugi::xml_node& style : Listed(Root(), "cellStyles", "cellStyle")) {
    if (xml::IntegerAttribute(style, "builtinId", -1) == 0) format = xml::IntegerAttribute(style, "xfId", 0);
  }
  const pugi::xml_node font =
      EntryAt("fonts", "font", xml::IntegerAttribute(EntryAt("cellStyleXfs", "xf", format), "fontId", 0));
  return font ? font : EntryAt("fonts", "font", 0);
}

std::string Styles::NormalFontName() const {
  return xml::Attribute(xml::Child(NormalFont(), "name"), "val", "Calibri");
}

double Styles::NormalFontSize() const {
  return xml::NumberAttribute(xml::Child(NormalFont(), "sz"), "val", 11);
}

std::string Styles::NormalFontScheme() const {
  const std::string scheme = xml::Attribute(xml::Child(NormalFont(), "scheme"), "val");
  return scheme == "none" ? std::string() : scheme;
}

std::string Styles::Serialize() const { return xml::Serialize(document_); }

}  // namespace plotsmith::xlsx

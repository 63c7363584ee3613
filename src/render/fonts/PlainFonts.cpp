#include "render/fonts/PlainFonts.h"

#include <algorithm>
#include <array>
#include <fontconfig/fontconfig.h>
#include <hb.h>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "render/fonts/FontCache.h"
#include "render/fonts/FontHeights.h"
#include "render/fonts/InstalledFonts.h"
#include "runtime/Ascii.h"

namespace plotsmith::render {
namespace {

constexpr std::size_t kLongestText = 4096;  // bytes
constexpr double kUnits = 1024;  // units of a point; Pango has the same, so that widths are rounded alike

/// Characters of plain texts that are neither ASCII nor letters.
constexpr std::array<std::string_view, 16> kCommonCharacters = {
    "\u00a3", "\u00a7", "\u00b0", "\u00b1", "\u00b2", "\u00b3", "\u00b7", "\u2013",
    "\u2014", "\u2018", "\u2019", "\u201c", "\u201d", "\u2026", "\u20ac", "\u2212"};

struct DestroyPattern {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct DestroyBlob {
  void operator()(hb_blob_t* blob) const { hb_blob_destroy(blob); }
};
struct DestroyFace {
  void operator()(hb_face_t* face) const { hb_face_destroy(face); }
};
struct DestroyFont {
  void operator()(hb_font_t* font) const { hb_font_destroy(font); }
};
struct DestroyBuffer {
  void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
};
using Pattern = std::unique_ptr<FcPattern, DestroyPattern>;
using HbFont = std::unique_ptr<hb_font_t, DestroyFont>;

/// Hashes texts. A known text can be found without copying it.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

/// What the characters of a text are.
enum class Kind { kOther, kCommon, kLatin };

/// Returns the number of bytes of the letter of Latin-1 or Latin Extended-A at the beginning of a text; 0 if
/// there is none.
std::size_t LetterLength(std::string_view text) {
  if (ascii::IsLetter(text.front())) return 1;
  const auto lead = static_cast<unsigned char>(text.front());
  if (lead < 0xC3 || lead > 0xC5 || text.size() < 2) return 0;
  const auto next = static_cast<unsigned char>(text[1]);
  const bool isSign = lead == 0xC3 && (next == 0x97 || next == 0xB7);  // times and divided by
  return (next & 0xC0) == 0x80 && !isSign ? 2 : 0;
}

std::size_t CommonLength(std::string_view text) {
  if (text.front() >= 0x20 && text.front() < 0x7F) return 1;
  for (const std::string_view character : kCommonCharacters) {
    if (text.starts_with(character)) return character.size();
  }
  return 0;
}

Kind KindOf(std::string_view text) {
  if (text.size() > kLongestText) return Kind::kOther;
  Kind kind = Kind::kCommon;
  while (!text.empty()) {
    std::size_t length = LetterLength(text);
    if (length > 0) kind = Kind::kLatin;
    if (length == 0) length = CommonLength(text);
    if (length == 0) return Kind::kOther;
    text.remove_prefix(length);
  }
  return kind;
}

/// Returns the installed font that matches best, chosen as Pango chooses it.
Pattern MatchOf(const Font& font) {
  const std::string family = DrawnFamily(font);
  const double size = static_cast<int>(font.size * kUnits) / kUnits;
  const Pattern wanted(FcPatternCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
  FcPatternAddInteger(wanted.get(), FC_WEIGHT, font.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  FcPatternAddInteger(wanted.get(), FC_SLANT, font.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
  FcPatternAddInteger(wanted.get(), FC_WIDTH, FC_WIDTH_NORMAL);
  FcPatternAddDouble(wanted.get(), FC_SIZE, size);
  FcPatternAddDouble(wanted.get(), FC_PIXEL_SIZE, size);  // A pixel is a point.
  FcPatternAddString(wanted.get(), FC_LANG, reinterpret_cast<const FcChar8*>("en"));
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());
  FcResult result = FcResultNoMatch;
  return Pattern(FcFontMatch(nullptr, wanted.get(), &result));
}

bool Has(FcPattern* pattern, const char* property) {
  FcValue value;
  return FcPatternGet(pattern, property, 0, &value) == FcResultMatch;
}

/// Returns true if the widths of a font are those in its file: it is an outline font without settings of
/// fontconfig that change its glyphs.
bool IsSimple(FcPattern* match) {
  FcChar8* format = nullptr;
  FcPatternGetString(match, FC_FONTFORMAT, 0, &format);
  const std::string_view name = format == nullptr ? "" : reinterpret_cast<const char*>(format);
  FcBool isVariable = FcFalse;
  FcPatternGetBool(match, FC_VARIABLE, 0, &isVariable);
  return (name == "TrueType" || name == "CFF") && !isVariable && !Has(match, FC_FONT_FEATURES) &&
         !Has(match, FC_FONT_VARIATIONS) && !Has(match, FC_MATRIX);
}

/// Loads the font that matches best. Returns nullptr if there is none, or if it isn't simple.
HbFont Load(const Font& font) {
  if (font.family.find(',') != std::string::npos) return nullptr;  // This is a list of families for Pango.
  const Pattern match = MatchOf(font);
  if (!match || !IsSimple(match.get())) return nullptr;
  FcChar8* file = nullptr;
  int index = 0;
  double size = 0;
  if (FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch ||
      FcPatternGetInteger(match.get(), FC_INDEX, 0, &index) != FcResultMatch ||
      FcPatternGetDouble(match.get(), FC_PIXEL_SIZE, 0, &size) != FcResultMatch || index > 0xFFFF) {
    return nullptr;
  }
  const std::unique_ptr<hb_blob_t, DestroyBlob> blob(
      hb_blob_create_from_file(reinterpret_cast<const char*>(file)));
  const std::unique_ptr<hb_face_t, DestroyFace> face(
      hb_face_create(blob.get(), static_cast<unsigned>(index)));
  if (hb_face_get_glyph_count(face.get()) == 0) return nullptr;
  HbFont loaded(hb_font_create(face.get()));
  const int scale = static_cast<int>(size * kUnits);
  hb_font_set_scale(loaded.get(), scale, scale);
  return loaded;
}

struct FontEntry {
  HbFont font;  ///< nullptr if other measures must measure its texts
  FontHeights heights;
  /// The widths in points; nothing for a text with a character that the font doesn't have.
  std::unordered_map<std::string, std::optional<double>, TextHash, std::equal_to<>> texts;
};

FontEntry EntryOf(const Font& font) {
  HbFont loaded = Load(font);
  const FontHeights heights = HeightsOf(loaded.get(), font.size);
  return {std::move(loaded), heights, {}};
}

}  // namespace

struct PlainFonts::State {
  std::mutex mutex;
  FontCache<FontEntry> fonts;
  std::unique_ptr<hb_buffer_t, DestroyBuffer> buffer{hb_buffer_create()};

  std::optional<double> Shape(std::string_view text, Kind kind, hb_font_t* font) const {
    const int size = static_cast<int>(text.size());
    hb_buffer_clear_contents(buffer.get());
    hb_buffer_set_flags(buffer.get(),
                        static_cast<hb_buffer_flags_t>(HB_BUFFER_FLAG_BOT | HB_BUFFER_FLAG_EOT));
    hb_buffer_set_direction(buffer.get(), HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer.get(), kind == Kind::kLatin ? HB_SCRIPT_LATIN : HB_SCRIPT_COMMON);
    hb_buffer_set_language(buffer.get(), hb_language_from_string("en", -1));
    hb_buffer_add_utf8(buffer.get(), text.data(), size, 0, size);
    unsigned count = 0;
    const hb_glyph_info_t* const characters = hb_buffer_get_glyph_infos(buffer.get(), &count);
    for (unsigned i = 0; i < count; ++i) {
      // HarfBuzz would compose a letter from others that the font has.
      hb_codepoint_t glyph = 0;
      if (!hb_font_get_nominal_glyph(font, characters[i].codepoint, &glyph)) return std::nullopt;
    }
    hb_shape(font, buffer.get(), nullptr, 0);
    const hb_glyph_position_t* const positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    double width = 0;
    for (unsigned i = 0; i < count; ++i) width += positions[i].x_advance;
    return width / kUnits;
  }

  std::optional<double> WidthOf(FontEntry& entry, std::string_view text, Kind kind) {
    const auto found = entry.texts.find(text);
    if (found != entry.texts.end()) return found->second;
    fonts.MakeRoom();
    return entry.texts.emplace(text, Shape(text, kind, entry.font.get())).first->second;
  }
};

PlainFonts::PlainFonts(Others others) : state_(std::make_unique<State>()), others_(std::move(others)) {
  FcInit();
}

PlainFonts::~PlainFonts() = default;

TextExtent PlainFonts::Measure(std::string_view line, const Font& font) const {
  const Kind kind = KindOf(line);
  if (kind != Kind::kOther) {
    const std::scoped_lock lock(state_->mutex);
    FontEntry& entry = state_->fonts.Find(font, [&] { return EntryOf(font); });
    const auto width = entry.font ? state_->WidthOf(entry, line, kind) : std::nullopt;
    if (width) return {*width, entry.heights.ascent, entry.heights.descent};
  }
  return others_().Measure(line, font);
}

bool PlainFonts::HasFonts() const { return HasInstalledFonts(); }

}  // namespace plotsmith::render

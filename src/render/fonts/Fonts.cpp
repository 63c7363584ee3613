#include "render/fonts/Fonts.h"

#include <algorithm>
#include <cmath>
#include <fontconfig/fontconfig.h>
#include <functional>
#include <hb-ot.h>
#include <mutex>
#include <optional>
#include <pango/pangoft2.h>
#include <string>
#include <unordered_map>

#include "render/FontSubstitutes.h"
#include "runtime/Ascii.h"
#include "runtime/Strings.h"

namespace plotsmith::render {
namespace {

constexpr std::size_t kMostTexts = 8000;
constexpr std::size_t kLongestText = 4096;  // bytes; the rest doesn't fit on any chart

/// Returns true if an installed font fulfils a condition. FcFontList would copy the names of all fonts first.
bool HasFont(const std::function<bool(FcPattern*)>& isWanted) {
  FcConfig* const fonts = FcConfigReference(nullptr);
  bool found = false;
  for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
    const FcFontSet* const set = FcConfigGetFonts(fonts, name);
    found = found || (set != nullptr && std::any_of(set->fonts, set->fonts + set->nfont, isWanted));
  }
  FcConfigDestroy(fonts);
  return found;
}

/// Returns true if one of the names of a font's family is `family`, ignoring case.
bool IsOfFamily(FcPattern* font, const std::string& family) {
  const auto* const wanted = reinterpret_cast<const FcChar8*>(family.c_str());
  FcChar8* name = nullptr;
  for (int i = 0; FcPatternGetString(font, FC_FAMILY, i, &name) == FcResultMatch; ++i) {
    if (FcStrCmpIgnoreCase(name, wanted) == 0) return true;
  }
  return false;
}

struct Release {
  void operator()(gpointer object) const { g_object_unref(object); }
};
struct FreeDescription {
  void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};
struct FreeGlyphs {
  void operator()(PangoGlyphString* glyphs) const { pango_glyph_string_free(glyphs); }
};
using Layout = std::unique_ptr<PangoLayout, Release>;
using Description = std::unique_ptr<PangoFontDescription, FreeDescription>;

/// Returns a context that loads fonts with FreeType. A new map has 72 dots per inch. Setting that, or turning
/// hinting off, would make Pango list the families of all fonts. Hinting doesn't change widths that aren't
/// rounded.
PangoContext* NewFreeTypeContext() {
  // Otherwise Pango initializes Fontconfig in a thread of its own. Another thread that needs the fonts
  // meanwhile would read them a second time.
  FcInit();
  const std::unique_ptr<PangoFontMap, Release> map(pango_ft2_font_map_new());
  return pango_font_map_create_context(map.get());
}

struct FontHash {
  std::size_t operator()(const Font& font) const {
    const std::size_t look = (font.bold ? 1u : 0u) + (font.italic ? 2u : 0u) + (font.underline ? 4u : 0u);
    return std::hash<std::string>()(font.family) ^ (std::hash<double>()(font.size) * 8 + look);
  }
};
/// Hashes texts. A known text can be found without copying it.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

/// Returns whether a text has only printable ASCII characters, and is therefore laid out unchanged.
bool IsPlain(std::string_view text) {
  return text.size() <= kLongestText && std::all_of(text.begin(), text.end(), [](char byte) {
           return byte >= 0x20 && static_cast<unsigned char>(byte) < 0x80;
         });
}

/// Returns the part of a text that is laid out. Bytes that aren't UTF-8 are replaced.
std::string Presentable(std::string_view text) {
  char* valid = g_utf8_make_valid(text.data(), static_cast<gssize>(std::min(text.size(), kLongestText)));
  std::string result(valid);
  g_free(valid);
  for (char& byte : result) {
    if (static_cast<unsigned char>(byte) < 0x20) byte = ' ';
  }
  return result;
}

}  // namespace

/// A text in a font.
struct LaidOut {
  double width = 0;  ///< points
  Layout layout;     ///< nullptr until it is needed
};

struct FontEntry {
  Description description;
  std::unique_ptr<PangoFont, Release> font;  ///< nullptr if none can be loaded
  double ascent = 0, descent = 0;
  std::unordered_map<std::string, LaidOut, TextHash, std::equal_to<>> texts;
};

struct Fonts::State {
  std::mutex mutex;  ///< Only one thread at a time may use Pango's objects.
  std::unique_ptr<PangoContext, Release> context;
  std::unordered_map<Font, FontEntry, FontHash> fonts;
  std::pair<const Font, FontEntry>* recent = nullptr;
  std::size_t texts = 0;

  Layout MakeLayout(const std::string& text, const FontEntry& entry, bool underline) const {
    Layout layout(pango_layout_new(context.get()));
    pango_layout_set_font_description(layout.get(), entry.description.get());
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
    if (underline) {
      PangoAttrList* attributes = pango_attr_list_new();
      pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
      pango_layout_set_attributes(layout.get(), attributes);
      pango_attr_list_unref(attributes);
    }
    return layout;
  }

  /// Reads the ascent and the descent as Windows defines them: the clipping heights of the font, and the part
  /// of its line gap that these don't contain.
  void MeasureHeight(FontEntry& entry, double size) const {
    hb_font_t* font = entry.font ? pango_font_get_hb_font(entry.font.get()) : nullptr;
    int scale = 0;
    if (font != nullptr) hb_font_get_scale(font, nullptr, &scale);
    const auto ems = [&](hb_ot_metrics_tag_t tag) {
      hb_position_t position = 0;
      const bool known = scale != 0 && hb_ot_metrics_get_position(font, tag, &position);
      return known ? std::abs(static_cast<double>(position) / scale) : 0;
    };
    entry.ascent = ems(HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_ASCENT);
    entry.descent = ems(HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_DESCENT);
    const double line = ems(HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER) +
                        ems(HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER) +
                        ems(HB_OT_METRICS_TAG_HORIZONTAL_LINE_GAP);
    if (!(entry.ascent + entry.descent > 0)) {  // The font isn't OpenType.
      entry.ascent = 0.9;
      entry.descent = 0.25;
    }
    entry.descent = std::max(entry.descent, line - entry.ascent);
    entry.ascent *= size;
    entry.descent *= size;
  }

  FontEntry& EntryOf(const Font& font) {
    if (recent != nullptr && recent->first == font) return recent->second;
    const auto [found, isNew] = fonts.try_emplace(font);
    recent = &*found;
    FontEntry& entry = found->second;
    if (!isNew) return entry;
    const bool installed =
        !font.family.empty() && HasFont([&font](FcPattern* other) { return IsOfFamily(other, font.family); });
    const std::string family = installed ? font.family : std::string(SubstituteFor(font.family));
    entry.description.reset(pango_font_description_new());
    pango_font_description_set_family(entry.description.get(), family.c_str());
    pango_font_description_set_size(entry.description.get(), static_cast<int>(font.size * PANGO_SCALE));
    pango_font_description_set_weight(entry.description.get(),
                                      font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
    pango_font_description_set_style(entry.description.get(),
                                     font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    entry.font.reset(pango_context_load_font(context.get(), entry.description.get()));
    MeasureHeight(entry, font.size);
    return entry;
  }

  /// Returns the width of a plain text in Pango's units, or nothing if the font doesn't have all of its
  /// characters. Such a text is one run of glyphs. A layout would give the same width, but takes longer.
  std::optional<int> WidthOfRun(const std::string& text, const FontEntry& entry) const {
    if (text.empty() || !IsPlain(text) || !entry.font) return std::nullopt;
    const bool hasLetters = std::any_of(text.begin(), text.end(), ascii::IsLetter);
    PangoAnalysis analysis{};
    analysis.font = entry.font.get();
    analysis.language = pango_context_get_language(context.get());
    analysis.script = static_cast<guint8>(hasLetters ? PANGO_SCRIPT_LATIN : PANGO_SCRIPT_COMMON);
    const int size = static_cast<int>(text.size());
    const std::unique_ptr<PangoGlyphString, FreeGlyphs> glyphs(pango_glyph_string_new());
    pango_shape_with_flags(text.data(), size, text.data(), size, &analysis, glyphs.get(), PANGO_SHAPE_NONE);
    for (int i = 0; i < glyphs->num_glyphs; ++i) {
      if (glyphs->glyphs[i].glyph & PANGO_GLYPH_UNKNOWN_FLAG) return std::nullopt;
    }
    return pango_glyph_string_get_width(glyphs.get());
  }

  LaidOut& TextOf(FontEntry& entry, std::string_view line, const Font& font) {
    if (IsPlain(line)) {
      const auto found = entry.texts.find(line);
      if (found != entry.texts.end()) return found->second;
    }
    const std::string text = Presentable(line);
    const auto found = entry.texts.find(text);
    if (found != entry.texts.end()) return found->second;
    if (++texts > kMostTexts) {
      for (auto& [key, other] : fonts) other.texts.clear();
      texts = 1;
    }
    LaidOut laidOut;
    if (const auto width = WidthOfRun(text, entry)) {
      laidOut.width = pango_units_to_double(*width);
    } else {
      laidOut.layout = MakeLayout(text, entry, font.underline);
      PangoRectangle logical;
      pango_layout_get_extents(laidOut.layout.get(), nullptr, &logical);
      laidOut.width = pango_units_to_double(logical.width);
    }
    return entry.texts.emplace(text, std::move(laidOut)).first->second;
  }
};

Fonts::Fonts() : Fonts(NewFreeTypeContext()) {}

Fonts::Fonts(PangoContext* context) : state_(std::make_unique<State>()) {
  state_->context.reset(context);
  pango_context_set_round_glyph_positions(context, FALSE);
  pango_context_set_language(context, pango_language_from_string("en"));
}

Fonts::~Fonts() = default;

TextExtent Fonts::Measure(std::string_view line, const Font& font) const {
  const std::scoped_lock lock(state_->mutex);
  FontEntry& entry = state_->EntryOf(font);
  return {state_->TextOf(entry, line, font).width, entry.ascent, entry.descent};
}

void Fonts::WithGlyphs(std::string_view line, const Font& font,
                       const std::function<void(PangoLayoutLine*)>& use) const {
  const std::scoped_lock lock(state_->mutex);
  FontEntry& entry = state_->EntryOf(font);
  LaidOut& text = state_->TextOf(entry, line, font);
  if (!text.layout) text.layout = state_->MakeLayout(Presentable(line), entry, font.underline);
  use(pango_layout_get_line_readonly(text.layout.get(), 0));
}

bool Fonts::HasFonts() const {
  return HasFont([](FcPattern*) { return true; });
}

}  // namespace plotsmith::render

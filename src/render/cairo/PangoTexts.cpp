#include "render/cairo/PangoTexts.h"

#include <algorithm>
#include <mutex>
#include <pango/pangocairo.h>
#include <string>
#include <unordered_map>
#include <utility>

#include "render/fonts/FontCache.h"
#include "render/fonts/FontHeights.h"
#include "render/fonts/InstalledFonts.h"

namespace plotsmith::render {
namespace {

constexpr std::size_t kLongestText = 4096;  // bytes; the rest doesn't fit on any chart
constexpr double kPointsPerInch = 72;       // A unit of the picture is a point.

struct Release {
  void operator()(gpointer object) const { g_object_unref(object); }
};
struct FreeDescription {
  void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};
using Layout = std::unique_ptr<PangoLayout, Release>;
using Description = std::unique_ptr<PangoFontDescription, FreeDescription>;

PangoContext* NewContext() {
  const std::unique_ptr<PangoFontMap, Release> map(
      pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT));
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map.get()), kPointsPerInch);
  PangoContext* context = pango_font_map_create_context(map.get());
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context, FALSE);
  pango_context_set_language(context, pango_language_from_string("en"));
  // Paragraphs of DrawingML run from left to right, and so do texts of an SVG.
  pango_context_set_base_dir(context, PANGO_DIRECTION_LTR);
  return context;
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

Description DescriptionOf(const Font& font) {
  Description description(pango_font_description_new());
  pango_font_description_set_family(description.get(), DrawnFamily(font).c_str());
  pango_font_description_set_size(description.get(), static_cast<int>(font.size * PANGO_SCALE));
  pango_font_description_set_weight(description.get(), font.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_font_description_set_style(description.get(), font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  return description;
}

struct PangoEntry {
  Description description;
  FontHeights heights;
  std::unordered_map<std::string, Layout> texts;
};

}  // namespace

struct PangoTexts::State {
  std::mutex mutex;  ///< Only one thread at a time may use Pango's objects.
  std::unique_ptr<PangoContext, Release> context{NewContext()};
  FontCache<PangoEntry> fonts;

  PangoEntry& EntryOf(const Font& font) {
    return fonts.Find(font, [&] {
      PangoEntry entry{DescriptionOf(font), {}, {}};
      const std::unique_ptr<PangoFont, Release> loaded(
          pango_context_load_font(context.get(), entry.description.get()));
      entry.heights = HeightsOf(loaded ? pango_font_get_hb_font(loaded.get()) : nullptr, font.size);
      return entry;
    });
  }

  PangoLayout* LayoutOf(PangoEntry& entry, std::string_view line, const Font& font) {
    const std::string text = Presentable(line);
    const auto found = entry.texts.find(text);
    if (found != entry.texts.end()) return found->second.get();
    fonts.MakeRoom();
    Layout layout(pango_layout_new(context.get()));
    pango_layout_set_font_description(layout.get(), entry.description.get());
    pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
    pango_layout_set_auto_dir(layout.get(), FALSE);  // The direction of the context applies.
    pango_layout_set_text(layout.get(), text.data(), static_cast<int>(text.size()));
    if (font.underline) {
      PangoAttrList* attributes = pango_attr_list_new();
      pango_attr_list_insert(attributes, pango_attr_underline_new(PANGO_UNDERLINE_SINGLE));
      pango_layout_set_attributes(layout.get(), attributes);
      pango_attr_list_unref(attributes);
    }
    return entry.texts.emplace(text, std::move(layout)).first->second.get();
  }
};

PangoTexts::PangoTexts() : state_(std::make_unique<State>()) {}

PangoTexts::~PangoTexts() = default;

TextExtent PangoTexts::Measure(std::string_view line, const Font& font) const {
  const std::scoped_lock lock(state_->mutex);
  PangoEntry& entry = state_->EntryOf(font);
  PangoRectangle logical;
  pango_layout_get_extents(state_->LayoutOf(entry, line, font), nullptr, &logical);
  return {pango_units_to_double(logical.width), entry.heights.ascent, entry.heights.descent};
}

bool PangoTexts::HasFonts() const { return HasInstalledFonts(); }

void PangoTexts::WithGlyphs(std::string_view line, const Font& font,
                            const std::function<void(PangoLayoutLine*)>& use) const {
  const std::scoped_lock lock(state_->mutex);
  PangoLayout* const layout = state_->LayoutOf(state_->EntryOf(font), line, font);
  use(pango_layout_get_line_readonly(layout, 0));
}

}  // namespace plotsmith::render

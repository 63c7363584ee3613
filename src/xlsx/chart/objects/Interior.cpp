#include "xlsx/chart/objects/Interior.h"

#include <limits>
#include <optional>
#include <string>

#include "host/excel/Constants.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

namespace {

constexpr std::int32_t kWhite = 0xFFFFFF;
constexpr std::int32_t kBlack = 0;
constexpr std::int32_t kSolid = 1;  // xlPatternSolid

/// The palette entry with the nearest colour.
std::int32_t NearestIndex(const Styles& styles, std::int32_t color) {
  std::int32_t nearest = 1;
  long best = std::numeric_limits<long>::max();
  for (std::int32_t i = 1; i <= 56; ++i) {
    const std::int32_t entry = styles.PaletteColor(i);
    long distance = 0;
    for (int shift = 0; shift < 24; shift += 8) {
      const long difference = (entry >> shift & 0xFF) - (color >> shift & 0xFF);
      distance += difference * difference;
    }
    if (distance < best) {
      best = distance;
      nearest = i;
    }
  }
  return nearest;
}

/// The fill in Excel's older object model: a colour, and a pattern with a second colour. The system copies
/// fills property by property. The colour that was set last is
/// visible.
class InteriorObject final : public excel::Interior {
 public:
  InteriorObject(FormattedElement element, std::function<std::int32_t()> automatic)
      : element_(std::move(element)), automatic_(std::move(automatic)) {}

  std::int32_t ColorIndex() override {
    const auto fill = Fill();
    if (xml::Is(fill, "noFill")) return excel::xlColorIndexNone;
    const auto color = ColorOf(fill);
    return color ? Nearest(*color) : excel::xlColorIndexAutomatic;
  }
  void SetColorIndex(std::int32_t index) override {
    Log("ColorIndex", index);
    if (index == excel::xlColorIndexNone) {
      SetFill(Properties(), "noFill");
    } else if (index == excel::xlColorIndexAutomatic) {
      RemoveFill(Properties());
    } else {
      Paint(PaletteColor(index));
    }
  }

  std::int32_t Color() override {
    const auto fill = Fill();
    if (xml::Is(fill, "noFill")) return kWhite;
    const auto color = ColorOf(fill);
    return color ? *color : automatic_();
  }
  void SetColor(std::int32_t color) override {
    Log("Color", color);
    if (!IsColor(color)) throw CantSet("Color", "Interior");
    Paint(color);
  }

  std::int32_t Pattern() override {
    const auto fill = Fill();
    if (!fill) return excel::xlAutomatic;
    if (xml::Is(fill, "noFill")) return excel::xlNone;
    if (!xml::Is(fill, "pattFill")) return kSolid;
    return kInteriorPatterns.Number(xml::Attribute(fill, "prst")).value_or(kSolid);
  }
  void SetPattern(std::int32_t pattern) override {
    Log("Pattern", pattern);
    const auto token = kInteriorPatterns.Token(pattern);
    if (pattern == excel::xlAutomatic) {
      RemoveFill(Properties());
    } else if (pattern == excel::xlNone) {
      SetFill(Properties(), "noFill");
    } else if (pattern == kSolid) {
      const std::int32_t color = Color();
      SetFillColor(SetFill(Properties(), "solidFill"), color);
    } else if (token) {
      const std::int32_t color = Color(), lines = PatternColor();
      const pugi::xml_node fill = SetFill(Properties(), "pattFill");
      xml::SetAttribute(fill, "prst", *token);
      SetFillColor(schema::Ensure(fill, "fgClr"), lines);
      SetFillColor(schema::Ensure(fill, "bgClr"), color);
    } else {
      throw CantSet("Pattern", "Interior");
    }
  }

  std::int32_t PatternColor() override { return LineColor().value_or(kBlack); }
  void SetPatternColor(std::int32_t color) override {
    Log("PatternColor", color);
    if (!IsColor(color)) throw CantSet("PatternColor", "Interior");
    PaintPattern(color);
  }
  std::int32_t PatternColorIndex() override {
    const auto color = LineColor();
    return color ? Nearest(*color) : excel::xlColorIndexAutomatic;
  }
  void SetPatternColorIndex(std::int32_t index) override {
    Log("PatternColorIndex", index);
    const bool plain = index == excel::xlColorIndexNone || index == excel::xlColorIndexAutomatic;
    PaintPattern(plain ? kBlack : PaletteColor(index));
  }

 private:
  pugi::xml_node Fill() const { return FindFill(element_.FindProperties()); }
  pugi::xml_node Properties() const {
    element_.part->MarkChanged();
    return element_.Properties();
  }
  /// The main colour of a fill: the background of a pattern, or the first colour of a gradient. Nothing for a
  /// picture, and for no fill.
  std::optional<std::int32_t> ColorOf(pugi::xml_node fill) const {
    if (xml::Is(fill, "pattFill")) return element_.part->Color(xml::Child(fill, "bgClr"));
    if (xml::Is(fill, "gradFill")) return element_.part->Color(xml::Child(fill, "gsLst", "gs"));
    return element_.part->Color(fill);
  }
  std::optional<std::int32_t> LineColor() const {
    const auto fill = Fill();
    return xml::Is(fill, "pattFill") ? element_.part->Color(xml::Child(fill, "fgClr")) : std::nullopt;
  }
  void Paint(std::int32_t color) {
    const auto fill = Fill();
    const bool pattern = xml::Is(fill, "pattFill");
    SetFillColor(pattern ? schema::Ensure(fill, "bgClr") : SetFill(Properties(), "solidFill"), color);
    element_.part->MarkChanged();
  }
  /// The colour has no effect without a pattern.
  void PaintPattern(std::int32_t color) {
    const auto fill = Fill();
    if (!xml::Is(fill, "pattFill")) return;
    SetFillColor(schema::Ensure(fill, "fgClr"), color);
    element_.part->MarkChanged();
  }
  std::int32_t PaletteColor(std::int32_t index) const {
    return element_.part->Book().Styles().PaletteColor(index);
  }
  std::int32_t Nearest(std::int32_t color) const {
    return NearestIndex(element_.part->Book().Styles(), color);
  }
  void Log(const char* property, std::int32_t value) const {
    element_.Log().Put([this] { return element_.path() + ".Interior"; }, property, value);
  }

  FormattedElement element_;
  std::function<std::int32_t()> automatic_;
};

}  // namespace

excel::Ref<excel::Interior> MakeInterior(FormattedElement element, std::function<std::int32_t()> automatic) {
  return std::make_shared<InteriorObject>(std::move(element), std::move(automatic));
}

}  // namespace plotsmith::xlsx

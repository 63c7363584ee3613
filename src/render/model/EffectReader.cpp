#include "render/model/EffectReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>
#include <string_view>

#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/drawing/ShapeXml.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

constexpr double kDegree = 60000;  // units per degree in a:outerShdw/@dir and in skew angles

/// Returns a length in points, limited to what a picture can show.
double LengthOf(pugi::xml_node node, const char* name, double most) {
  const double points = xlsx::PointsOf(node, name, 0);
  return std::isfinite(points) ? std::clamp(points, 0.0, most) : 0;
}

/// Returns a percentage as a fraction. The file has it in thousandths of a percent or with a percent sign.
double ScaleOf(pugi::xml_node node, const char* name) {
  std::string text = xml::Attribute(node, name, "100000");
  double whole = 100'000;
  if (text.ends_with('%')) {
    text.pop_back();
    whole = 100;
  }
  constexpr double kMost = 20;
  const double scale = xml::ParseDouble(text).value_or(whole) / whole;
  return std::isfinite(scale) ? std::clamp(scale, -kMost, kMost) : 1;
}

double LeanOf(pugi::xml_node node, const char* name) {
  constexpr double kSteepest = 80;  // degrees
  const double degrees = xml::NumberAttribute(node, name, 0) / kDegree;
  if (!std::isfinite(degrees)) return 0;
  return std::tan(std::clamp(degrees, -kSteepest, kSteepest) * std::numbers::pi / 180);
}

/// Returns the point of the bounds that an alignment (ST_RectAlignment) names.
Point FixedPointOf(std::string_view alignment) {
  if (alignment == "ctr") return {0.5, 0.5};
  const double x = alignment.ends_with('l') ? 0 : alignment.ends_with('r') ? 1 : 0.5;
  const double y = alignment.starts_with('t') ? 0 : alignment.starts_with('b') ? 1 : 0.5;
  return {x, y};
}

}  // namespace

std::optional<Shadow> ReadShadow(const Palette& palette, pugi::xml_node properties,
                                 const std::optional<Shadow>& automatic) {
  const auto effects = xml::Child(properties, "effectLst");
  if (!effects) return automatic;
  const auto node = xml::Child(effects, "outerShdw");
  const auto color = ReadColor(palette, node);
  if (!node || !color) return std::nullopt;
  constexpr double kSoftest = 200, kFarthest = 1000;  // points
  Shadow shadow{*color};
  // A radius of two standard deviations contains nearly all of a soft edge.
  shadow.blur = LengthOf(node, "blurRad", kSoftest) / 2;
  const double distance = LengthOf(node, "dist", kFarthest);
  const double direction = xml::NumberAttribute(node, "dir", 0) / kDegree;
  const double angle = std::isfinite(direction) ? direction * std::numbers::pi / 180 : 0;
  shadow.offset = {distance * std::cos(angle), distance * std::sin(angle)};
  shadow.scaleX = ScaleOf(node, "sx");
  shadow.scaleY = ScaleOf(node, "sy");
  shadow.skewX = LeanOf(node, "kx");
  shadow.skewY = LeanOf(node, "ky");
  std::string alignment = xml::Attribute(node, "algn", "b");
  shadow.fixed = FixedPointOf(alignment);
  return shadow;
}

RareLooks FindRareLooks(pugi::xml_node root) {
  RareLooks looks;
  const auto visit = [&](const auto& self, pugi::xml_node parent) -> void {
    for (auto node = parent.first_child(); node; node = node.next_sibling()) {
      const std::string_view name = xml::LocalName(node);
      if (name == "blipFill") looks.pictures.push_back(node);
      if (name == "effectLst" || name == "effectDag" || name == "sp3d") looks.effects.push_back(node);
      if (!name.ends_with("Cache")) self(self, node);
    }
  };
  visit(visit, root);
  return looks;
}

namespace {

/// An element, and the sentence that reports it.
struct Reported {
  std::string_view element;
  const char* sentence;
};
/// The effects that aren't drawn.
constexpr std::array<Reported, 9> kMissing = {
    {{"glow", "Glows aren't drawn."},
     {"softEdge", "Soft edges aren't drawn."},
     {"innerShdw", "Inner shadows aren't drawn."},
     {"reflection", "Reflections aren't drawn."},
     {"prstShdw", "Preset shadows aren't drawn."},
     {"effectDag", "Effects in a graph (effectDag) aren't drawn."},
     {"blur", "Blurred shapes aren't drawn; they have sharp edges."},
     {"bevelT", "Bevels aren't drawn."},
     {"bevelB", "Bevels aren't drawn."}}};
/// The elements whose shadows aren't drawn. They consist of lines.
constexpr std::array<Reported, 12> kWithoutShadows = {
    {{"errBars", "Shadows of error bars aren't drawn."},
     {"dropLines", "Shadows of drop lines aren't drawn."},
     {"hiLowLines", "Shadows of high-low lines aren't drawn."},
     {"leaderLines", "Shadows of leader lines aren't drawn."},
     {"majorGridlines", "Shadows of gridlines aren't drawn."},
     {"minorGridlines", "Shadows of gridlines aren't drawn."},
     {"catAx", "Shadows of axes aren't drawn."},
     {"dateAx", "Shadows of axes aren't drawn."},
     {"valAx", "Shadows of axes aren't drawn."},
     {"serAx", "Shadows of axes aren't drawn."},
     {"serLines", "Shadows of series lines aren't drawn."},
     {"dTable", "Shadows of data tables aren't drawn."}}};

const char* FindSentence(std::span<const Reported> table, std::string_view element) {
  const auto found =
      std::find_if(table.begin(), table.end(), [&](const Reported& one) { return one.element == element; });
  return found == table.end() ? nullptr : found->sentence;
}

/// Returns true if the element that an effect belongs to can be drawn. The gridlines of a deleted axis are
/// drawn.
bool HasDrawnOwner(pugi::xml_node effect) {
  const auto properties = effect.parent().parent();
  const bool isOfLines = FindSentence(kWithoutShadows, xml::LocalName(properties.parent())) != nullptr;
  if (isOfLines && xml::Child(properties, "ln", "noFill")) return false;
  for (auto node = properties; node; node = node.parent()) {
    if (xml::LocalName(node).ends_with("Gridlines")) return true;
    if (schema::BooleanVal(node, "delete", false)) return false;
    const bool isOfTickLabels = xml::Is(node, "txPr") && schema::IsAxis(node.parent());
    if (isOfTickLabels && schema::Val(node.parent(), "tickLblPos") == "none") return false;
  }
  return true;
}

}  // namespace

std::vector<std::string> MissingEffects(const RareLooks& looks) {
  std::vector<std::string> sentences;
  const auto add = [&](const char* sentence) {
    if (sentence == nullptr) return;
    if (std::find(sentences.begin(), sentences.end(), sentence) == sentences.end()) {
      sentences.emplace_back(sentence);
    }
  };
  const auto addIfKnown = [&](pugi::xml_node effect) {
    if (!HasDrawnOwner(effect)) return;
    const std::string_view name = xml::LocalName(effect);
    add(FindSentence(kMissing, name));
    if (name != "outerShdw") return;
    const auto properties = effect.parent().parent();
    if (xml::Is(properties, "spPr")) add(FindSentence(kWithoutShadows, xml::LocalName(properties.parent())));
    const std::string_view owner = xml::LocalName(properties);
    if (owner == "rPr" || owner.ends_with("RPr")) add("Shadows of texts aren't drawn.");
  };
  for (const pugi::xml_node& node : looks.effects) {
    if (xml::Is(node, "effectDag")) addIfKnown(node);
    for (const pugi::xml_node& effect : node.children()) addIfKnown(effect);
  }
  return sentences;
}

}  // namespace plotsmith::render

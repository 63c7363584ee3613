#include "xlsx/chart/rules/AutomaticColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr long long kColorfulStyle = 2;
constexpr long long kStyleCount = 48, kStyleColumns = 8;
constexpr long long kNewerStyles = 100;  // c14:style counts from here
constexpr std::size_t kAccents = 6;

/// A variation of a theme colour, in thousandths of a percent.
struct Variation {
  int lumMod = 100000, lumOff = 0;
};

/// The variations of the accents, one for each round through them, as in Excel's colourful palette.
constexpr std::array<Variation, 9> kRounds = {{{100000, 0},
                                               {60000, 0},
                                               {80000, 20000},
                                               {80000, 0},
                                               {60000, 40000},
                                               {50000, 0},
                                               {70000, 30000},
                                               {70000, 0},
                                               {50000, 50000}}};
/// The share of black, in percent, in the styles with shades of grey (ECMA-376-1, 21.2.3.46, table
/// 5).
constexpr std::array<double, 6> kGreys = {88.5, 55, 78, 92.5, 70, 30};

std::int32_t Varied(ChartPart& part, const std::string& color, const Variation& variation) {
  pugi::xml_document holder;
  pugi::xml_node scheme = holder.append_child("solidFill").append_child("schemeClr");
  scheme.append_attribute("val").set_value(color.c_str());
  scheme.append_child("lumMod").append_attribute("val").set_value(variation.lumMod);
  if (variation.lumOff != 0)
    scheme.append_child("lumOff").append_attribute("val").set_value(variation.lumOff);
  return part.Color(holder.first_child()).value_or(0);
}

/// Mixes a theme colour with white. `left` is the share of the colour, in thousandths of a percent.
std::int32_t TintedColor(ChartPart& part, const std::string& color, int left) {
  pugi::xml_document holder;
  pugi::xml_node scheme = holder.append_child("solidFill").append_child("schemeClr");
  scheme.append_attribute("val").set_value(color.c_str());
  scheme.append_child("tint").append_attribute("val").set_value(left);
  return part.Color(holder.first_child()).value_or(0);
}

/// Returns the variation for a series in the styles with one colour. The series go from dark to light without
/// reaching black or white.
Variation Faded(std::size_t index, std::size_t count) {
  const double place = static_cast<double>(index + 1) / static_cast<double>(count + 1) * 1.4 - 0.7;
  const int kept = static_cast<int>(std::lround((1 - std::abs(place)) * 100000));
  return {kept, place > 0 ? 100000 - kept : 0};
}

}  // namespace

long long ChartStyleOf(ChartPart& part) {
  // Newer files contain the element twice.
  const auto space = part.Space();
  const auto alternatives = xml::Child(space, "AlternateContent");
  for (const pugi::xml_node& holder :
       {space, xml::Child(alternatives, "Choice"), xml::Child(alternatives, "Fallback")}) {
    const auto value = schema::IntegerVal(holder, "style", 0);
    const long long style = value > kNewerStyles ? value - kNewerStyles : value;
    if (style >= 1 && style <= kStyleCount) return style;
  }
  return kColorfulStyle;
}

bool HasDarkArea(ChartPart& part) {
  constexpr long long kFirst = 41;
  return ChartStyleOf(part) >= kFirst;
}

std::int32_t AutomaticChartArea(ChartPart& part) {
  if (HasDarkArea(part)) return part.Theme().SchemeColor("tx1").value_or(0);
  return part.Theme().SchemeColor("bg1").value_or(0xFFFFFF);
}

std::int32_t AutomaticPlotArea(ChartPart& part) {
  constexpr long long kFirstGrey = 33, kFirstAccent = 35;
  constexpr int kPale = 20000, kDark = 95000;
  const long long style = ChartStyleOf(part);
  if (HasDarkArea(part)) return TintedColor(part, "tx1", kDark);
  if (style >= kFirstAccent)
    return TintedColor(part, "accent" + std::to_string(style - kFirstAccent + 1), kPale);
  if (style >= kFirstGrey) return TintedColor(part, "tx1", kPale);
  return part.Theme().SchemeColor("bg1").value_or(0xFFFFFF);
}

std::int32_t AutomaticTextColor(ChartPart& part) {
  if (HasDarkArea(part)) return part.Theme().SchemeColor("bg1").value_or(0xFFFFFF);
  return part.Theme().SchemeColor("tx1").value_or(0);
}

std::int32_t AutomaticColor(ChartPart& part, pugi::xml_node series) {
  const auto index = static_cast<std::size_t>(std::max(schema::IntegerVal(series, "idx", 0), 0LL));
  return AutomaticColor(part, index, part.Series().size());
}

std::int32_t AutomaticColor(ChartPart& part, std::size_t index, std::size_t count) {
  const long long column = (ChartStyleOf(part) - 1) % kStyleColumns;  // of Excel's gallery of styles
  if (column == 0) {
    const int kept = static_cast<int>(std::lround(kGreys[index % kGreys.size()] * 1000));
    return Varied(part, "tx1", {kept, 100000 - kept});
  }
  if (column == kColorfulStyle - 1) {
    return Varied(part, "accent" + std::to_string(index % kAccents + 1),
                  kRounds[index / kAccents % kRounds.size()]);
  }
  return Varied(part, "accent" + std::to_string(column - 1), Faded(index, std::max(count, index + 1)));
}

}  // namespace plotsmith::xlsx

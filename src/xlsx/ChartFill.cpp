#include "xlsx/ChartFill.h"

#include <array>
#include <functional>
#include <limits>
#include <string>

#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "xlsx/ChartGeometry.h"
#include "xlsx/ChartPart.h"
#include "xlsx/ChartSchema.h"
#include "xlsx/DrawingFill.h"
#include "xlsx/Enumerations.h"
#include "xlsx/Workbook.h"
#include "xlsx/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;
using runtime::Variant;

namespace {

/// An element of the chart that has shape properties, made anew at each use: `spPr` may come and go.
struct Area {
  std::shared_ptr<ChartPart> part;
  std::function<pugi::xml_node(ChartPart&)> element;
  std::string path;

  pugi::xml_node Element() const { return element(*part); }
  pugi::xml_node Properties() const { return schema::Ensure(Element(), "spPr"); }
  const Journal& Log() const { return part->Book().Journal(); }
};

/// The entry of the palette that is nearest to a colour.
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

class AreaInterior final : public excel::Interior {
 public:
  explicit AreaInterior(Area area) : area_(std::move(area)) {}

  std::int32_t ColorIndex() override {
    const auto fill = FindFill(schema::Find(area_.Element(), "spPr"));
    if (!fill) return excel::xlColorIndexAutomatic;
    if (xml::Is(fill, "noFill")) return excel::xlColorIndexNone;
    const auto color = xml::Is(fill, "pattFill") ? schema::Find(fill, "fgClr") : fill;
    const auto rgb = ParseRgb(schema::Val(color, "srgbClr"));
    // a colour of the theme, a gradient or a picture is a filling of which the palette knows nothing
    return rgb ? NearestIndex(area_.part->Book().Styles(), *rgb) : excel::xlColorIndexAutomatic;
  }

  void SetColorIndex(std::int32_t index) override {
    area_.Log().Put([this] { return area_.path + ".Interior"; }, "ColorIndex", index);
    const pugi::xml_node properties = area_.Properties();
    if (index == excel::xlColorIndexNone) {
      SetFill(properties, "noFill");
    } else if (index == excel::xlColorIndexAutomatic) {
      RemoveFill(properties);
    } else {
      const std::int32_t color = area_.part->Book().Styles().PaletteColor(index);
      SetFillColor(SetFill(properties, "solidFill"), color);
    }
    area_.part->MarkChanged();
  }

 private:
  Area area_;
};

class AreaBorder final : public excel::Border {
 public:
  explicit AreaBorder(Area area) : area_(std::move(area)) {}

  void SetLineStyle(std::int32_t style) override {
    area_.Log().Put([this] { return area_.path + ".Border"; }, "LineStyle", style);
    struct Dash {
      std::int32_t style;
      std::string_view token;
    };
    static constexpr std::array<Dash, 5> kDashes = {{
        {1, "solid"},         // xlContinuous
        {-4115, "dash"},      // xlDash
        {4, "dashDot"},       // xlDashDot
        {5, "lgDashDotDot"},  // xlDashDotDot
        {-4118, "sysDot"},    // xlDot
    }};
    const pugi::xml_node properties = area_.Properties();
    area_.part->MarkChanged();
    if (style == excel::xlColorIndexAutomatic) return schema::Remove(properties, "ln");
    const pugi::xml_node line = schema::Ensure(properties, "ln");
    for (const Dash& dash : kDashes) {
      if (dash.style != style) continue;
      if (xml::Is(FindFill(line), "noFill")) schema::Remove(line, "noFill");
      xml::SetAttribute(schema::Ensure(line, "prstDash"), "val", dash.token);
      return;
    }
    SetFill(line, "noFill");
  }

 private:
  Area area_;
};

/// One of a pattern's two colours.
class PatternColor final : public excel::ChartColorFormat {
 public:
  PatternColor(Area area, const char* element, const char* name)
      : area_(std::move(area)), element_(element), name_(name) {}

  void SetSchemeColor(std::int32_t index) override {
    area_.Log().Put([this] { return area_.path + ".Fill." + name_; }, "SchemeColor", index);
    const std::int32_t color = area_.part->Book().Styles().PaletteColor(index);
    const pugi::xml_node fill = FindFill(area_.Properties());
    if (xml::Is(fill, "pattFill")) {
      SetFillColor(schema::Ensure(fill, element_), color);
    } else if (std::string_view(element_) == "fgClr") {
      SetFillColor(SetFill(area_.Properties(), "solidFill"), color);
    }
    area_.part->MarkChanged();
  }

 private:
  Area area_;
  const char* element_;
  const char* name_;
};

class AreaFill final : public excel::ChartFillFormat {
 public:
  explicit AreaFill(Area area) : area_(std::move(area)) {}

  void Patterned(std::int32_t pattern) override {
    area_.Log().Call([this] { return area_.path + ".Fill"; }, "Patterned", {pattern});
    const auto token = kPatterns.Token(pattern);
    if (!token) throw RuntimeError(runtime::error::kApplication, "The specified value is out of range.");
    const pugi::xml_node fill = SetFill(area_.Properties(), "pattFill");
    xml::SetAttribute(fill, "prst", *token);
    SetFillColor(schema::Ensure(fill, "fgClr"), 0);
    SetFillColor(schema::Ensure(fill, "bgClr"), 0xFFFFFF);
    area_.part->MarkChanged();
  }

  Ref<excel::ChartColorFormat> ForeColor() override {
    return std::make_shared<PatternColor>(area_, "fgClr", "ForeColor");
  }
  Ref<excel::ChartColorFormat> BackColor() override {
    return std::make_shared<PatternColor>(area_, "bgClr", "BackColor");
  }

  void SetVisible(bool value) override {
    area_.Log().Put([this] { return area_.path + ".Fill"; }, "Visible", value);
    const pugi::xml_node properties = area_.Properties();
    if (!value) {
      SetFill(properties, "noFill");
    } else if (xml::Is(FindFill(properties), "noFill")) {
      schema::Remove(properties, "noFill");
    }
    area_.part->MarkChanged();
  }

 private:
  Area area_;
};

class ChartAreaObject final : public excel::ChartArea {
 public:
  ChartAreaObject(Area area, std::weak_ptr<Shape> frame) : area_(std::move(area)), frame_(std::move(frame)) {}

  Ref<excel::Interior> Interior() override { return std::make_shared<AreaInterior>(area_); }
  Ref<excel::Border> Border() override { return std::make_shared<AreaBorder>(area_); }
  Ref<excel::ChartFillFormat> Fill() override { return std::make_shared<AreaFill>(area_); }
  void SetAutoScaleFont(const Variant& value) override {
    area_.Log().Put([this] { return area_.path; }, "AutoScaleFont", value);
  }
  double Width() override { return ChartSize(frame_).width; }

 private:
  Area area_;
  std::weak_ptr<Shape> frame_;
};

class PlotAreaObject final : public excel::PlotArea {
 public:
  PlotAreaObject(Area area, std::weak_ptr<Shape> frame) : area_(std::move(area)), frame_(std::move(frame)) {}

  Ref<excel::Interior> Interior() override { return std::make_shared<AreaInterior>(area_); }
  Ref<excel::Border> Border() override { return std::make_shared<AreaBorder>(area_); }
  double Left() override { return Place().left; }
  double Top() override { return Place().top; }
  double Width() override { return Place().width; }
  double Height() override { return Place().height; }
  void SetWidth(double points) override {
    area_.Log().Put([this] { return area_.path; }, "Width", points);
    SetPlotAreaWidth(*area_.part, ChartSize(frame_), points);
  }

 private:
  Frame Place() const { return PlotAreaFrame(*area_.part, ChartSize(frame_)); }

  Area area_;
  std::weak_ptr<Shape> frame_;
};

}  // namespace

Ref<excel::ChartArea> MakeChartArea(std::shared_ptr<ChartPart> part, std::weak_ptr<Shape> frame) {
  return std::make_shared<ChartAreaObject>(
      Area{std::move(part), [](ChartPart& chart) { return chart.Space(); }, "Chart.ChartArea"},
      std::move(frame));
}

Ref<excel::PlotArea> MakePlotArea(std::shared_ptr<ChartPart> part, std::weak_ptr<Shape> frame) {
  return std::make_shared<PlotAreaObject>(
      Area{std::move(part), [](ChartPart& chart) { return chart.PlotArea(); }, "Chart.PlotArea"},
      std::move(frame));
}

}  // namespace plotsmith::xlsx

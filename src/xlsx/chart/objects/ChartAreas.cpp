#include "xlsx/chart/objects/ChartAreas.h"

#include <string>

#include "host/excel/Excel.h"
#include "xlsx/base/Errors.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/objects/Border.h"
#include "xlsx/chart/objects/FormattedElement.h"
#include "xlsx/chart/objects/Interior.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/chart/part/ChartSize.h"
#include "xlsx/chart/rules/ChartGeometry.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::Variant;

namespace {

/// The background colour of Excel's window, which is visible behind charts without a fill.
std::int32_t Ground(ChartPart& part) { return part.Theme().SchemeColor("bg1").value_or(0xFFFFFF); }

Ref<excel::Interior> InteriorOf(const FormattedElement& area) {
  return MakeInterior(area, [part = area.part] { return Ground(*part); });
}

/// One of the two colours of a pattern.
class ChartColorFormatObject final : public excel::ChartColorFormat {
 public:
  ChartColorFormatObject(FormattedElement area, const char* element, const char* name)
      : area_(std::move(area)), element_(element), name_(name) {}

  void SetSchemeColor(std::int32_t index) override {
    area_.Log().Put([this] { return area_.path() + ".Fill." + name_; }, "SchemeColor", index);
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
  FormattedElement area_;
  const char* element_;
  const char* name_;
};

class ChartFillFormatObject final : public excel::ChartFillFormat {
 public:
  explicit ChartFillFormatObject(FormattedElement area) : area_(std::move(area)) {}

  void Patterned(std::int32_t pattern) override {
    area_.Log().Call([this] { return area_.path() + ".Fill"; }, "Patterned", {pattern});
    const auto token = kPatterns.Token(pattern);
    if (!token) throw OutOfRange();
    const pugi::xml_node fill = SetFill(area_.Properties(), "pattFill");
    xml::SetAttribute(fill, "prst", *token);
    SetFillColor(schema::Ensure(fill, "fgClr"), 0);
    SetFillColor(schema::Ensure(fill, "bgClr"), 0xFFFFFF);
    area_.part->MarkChanged();
  }

  Ref<excel::ChartColorFormat> ForeColor() override {
    return std::make_shared<ChartColorFormatObject>(area_, "fgClr", "ForeColor");
  }
  Ref<excel::ChartColorFormat> BackColor() override {
    return std::make_shared<ChartColorFormatObject>(area_, "bgClr", "BackColor");
  }

  void SetVisible(bool value) override {
    area_.Log().Put([this] { return area_.path() + ".Fill"; }, "Visible", value);
    const pugi::xml_node properties = area_.Properties();
    if (!value) {
      SetFill(properties, "noFill");
    } else if (xml::Is(FindFill(properties), "noFill")) {
      schema::Remove(properties, "noFill");
    }
    area_.part->MarkChanged();
  }

 private:
  FormattedElement area_;
};

class ChartAreaObject final : public excel::ChartArea {
 public:
  ChartAreaObject(FormattedElement area, std::weak_ptr<DrawnShape> frame)
      : area_(std::move(area)), frame_(std::move(frame)) {}

  Ref<excel::Interior> Interior() override { return InteriorOf(area_); }
  Ref<excel::Border> Border() override { return MakeBorder(area_); }
  Ref<excel::ChartFillFormat> Fill() override { return std::make_shared<ChartFillFormatObject>(area_); }
  void SetAutoScaleFont(const Variant& value) override {
    area_.Log().Put(area_.path, "AutoScaleFont", value);
  }
  double Width() override {
    area_.find();  // Raises error 1004 if the chart was deleted.
    return ChartSize(frame_).width;
  }

 private:
  FormattedElement area_;
  std::weak_ptr<DrawnShape> frame_;
};

class PlotAreaObject final : public excel::PlotArea {
 public:
  PlotAreaObject(FormattedElement area, std::weak_ptr<DrawnShape> frame)
      : area_(std::move(area)), frame_(std::move(frame)) {}

  Ref<excel::Interior> Interior() override { return InteriorOf(area_); }
  Ref<excel::Border> Border() override { return MakeBorder(area_); }
  double Left() override { return Place().left; }
  double Top() override { return Place().top; }
  double Width() override { return Place().width; }
  double Height() override { return Place().height; }
  void SetWidth(double points) override {
    area_.Log().Put(area_.path, "Width", points);
    SetPlotAreaWidth(*area_.part, ChartSize(frame_), points);
  }

 private:
  Frame Place() const { return PlotAreaFrame(*area_.part, ChartSize(frame_)); }

  FormattedElement area_;
  std::weak_ptr<DrawnShape> frame_;
};

}  // namespace

Ref<excel::ChartArea> MakeChartArea(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame) {
  return std::make_shared<ChartAreaObject>(
      FormattedElement{part, [part] { return part->Space(); }, [] { return std::string("Chart.ChartArea"); }},
      std::move(frame));
}

Ref<excel::PlotArea> MakePlotArea(std::shared_ptr<ChartPart> part, std::weak_ptr<DrawnShape> frame) {
  return std::make_shared<PlotAreaObject>(FormattedElement{part, [part] { return part->PlotArea(); },
                                                           [] { return std::string("Chart.PlotArea"); }},
                                          std::move(frame));
}

}  // namespace plotsmith::xlsx

#include "xlsx/chart/objects/Border.h"

#include "host/excel/Constants.h"
#include "xlsx/base/Errors.h"
#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

namespace {

class BorderObject final : public excel::Border {
 public:
  explicit BorderObject(FormattedElement element) : element_(std::move(element)) {}

  void SetLineStyle(std::int32_t style) override {
    Log("LineStyle", style);
    element_.part->MarkChanged();
    if (style == excel::xlAutomatic) return schema::Remove(element_.FindProperties(), "ln");
    const pugi::xml_node line = Line();
    if (const auto token = kLineStyles.Token(style)) {
      Show(line);
      schema::SetVal(line, "prstDash", *token);
    } else {
      SetFill(line, "noFill");
    }
  }

  void SetWeight(std::int32_t weight) override {
    Log("Weight", weight);
    const auto width = kLineWeights.Token(weight);
    if (!width) throw CantSet("Weight", "Border");
    Show(Line());
    xml::SetAttribute(Line(), "w", *width);
    element_.part->MarkChanged();
  }

  void SetColor(std::int32_t color) override {
    Log("Color", color);
    if (!IsColor(color)) throw CantSet("Color", "Border");
    SetFillColor(SetFill(Line(), "solidFill"), color);
    element_.part->MarkChanged();
  }

 private:
  pugi::xml_node Line() const { return schema::Ensure(element_.Properties(), "ln"); }
  static void Show(pugi::xml_node line) { schema::Remove(line, "noFill"); }
  void Log(const char* property, std::int32_t value) const {
    element_.Log().Put([this] { return element_.path() + ".Border"; }, property, value);
  }

  FormattedElement element_;
};

}  // namespace

excel::Ref<excel::Border> MakeBorder(FormattedElement element) {
  return std::make_shared<BorderObject>(std::move(element));
}

}  // namespace plotsmith::xlsx

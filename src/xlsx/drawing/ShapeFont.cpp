#include "xlsx/drawing/ShapeFont.h"

#include "xlsx/base/Journal.h"
#include "xlsx/drawing/DrawingFont.h"
#include "xlsx/drawing/DrawnShape.h"
#include "xlsx/drawing/TextBody.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

namespace {

class ShapeFontObject final : public DrawingFont {
 public:
  ShapeFontObject(std::shared_ptr<DrawnShape> shape, std::size_t start, std::size_t length, std::string path)
      : DrawingFont(std::move(path)), shape_(std::move(shape)), start_(start), length_(length) {}

 private:
  const Journal& Log() const override { return shape_->Log(); }

  std::vector<TextLook> Looks() const override {
    auto runs = TextBody(shape_->Object()).RunProperties(start_, length_);
    if (runs.empty()) runs.emplace_back();
    std::vector<TextLook> looks;
    for (const pugi::xml_node& run : runs) {
      const Theme& theme = shape_->Theme();
      const TextFace face = FaceOf(run, theme);
      looks.push_back({face.font, face.size, xml::BooleanAttribute(run, "b", false),
                       xml::BooleanAttribute(run, "i", false),
                       theme.Color(xml::Child(run, "solidFill")).value_or(0)});
    }
    return looks;
  }

  void ForEachRun(const std::function<void(pugi::xml_node)>& set) override {
    for (const pugi::xml_node& run : TextBody(shape_->Object()).EnsureRunProperties(start_, length_)) {
      set(run);
    }
    shape_->FitToText();
    shape_->MarkChanged();
  }

  std::shared_ptr<DrawnShape> shape_;
  std::size_t start_, length_;
};

}  // namespace

excel::Ref<excel::Font> MakeShapeFont(std::shared_ptr<DrawnShape> shape, std::size_t start,
                                      std::size_t length, std::string journalPath) {
  return std::make_shared<ShapeFontObject>(std::move(shape), start, length, std::move(journalPath));
}

}  // namespace plotsmith::xlsx

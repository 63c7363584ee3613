#include "xlsx/chart/objects/ChartFont.h"

#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/drawing/DrawingFont.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// Returns the run properties that contain the element's font. Missing ones are created.
std::vector<pugi::xml_node> RunProperties(pugi::xml_node element) {
  std::vector<pugi::xml_node> properties;
  for (const pugi::xml_node& body : TextBodies(element)) {
    for (const pugi::xml_node& paragraph : xml::Children(body, "p")) {
      properties.push_back(schema::Ensure(paragraph, "pPr", "defRPr"));
      bool empty = true;
      for (const pugi::xml_node& child : paragraph.children()) {
        if (!xml::Is(child, "r") && !xml::Is(child, "fld")) continue;
        properties.push_back(schema::Ensure(child, "rPr"));
        empty = false;
      }
      // The end mark of an empty paragraph has the format that newly typed text gets.
      const auto ending = xml::Child(paragraph, "endParaRPr");
      if (empty && ending && xml::Is(body, "rich")) properties.push_back(ending);
    }
  }
  return properties;
}

class ChartFontObject final : public DrawingFont {
 public:
  ChartFontObject(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                  std::function<pugi::xml_node()> element, std::string path)
      : DrawingFont(std::move(path)), part_(part), looks_(std::move(looks)), element_(std::move(element)) {}

 private:
  const Journal& Log() const override { return part_.Book().Journal(); }
  std::vector<TextLook> Looks() const override { return looks_(); }
  void ForEachRun(const std::function<void(pugi::xml_node)>& set) override {
    for (const pugi::xml_node& properties : RunProperties(element_())) set(properties);
    part_.MarkChanged();
  }

  ChartPart& part_;
  std::function<std::vector<TextLook>()> looks_;
  std::function<pugi::xml_node()> element_;
};

}  // namespace

excel::Ref<excel::Font> MakeFont(ChartPart& part, std::function<std::vector<TextLook>()> looks,
                                 std::function<pugi::xml_node()> element, std::string journalPath) {
  return std::make_shared<ChartFontObject>(part, std::move(looks), std::move(element),
                                           std::move(journalPath));
}

}  // namespace plotsmith::xlsx

#include "xlsx/drawing/DrawingFill.h"

#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/HexColor.h"

namespace plotsmith::xlsx {

pugi::xml_node FindFill(pugi::xml_node properties) { return properties.find_child(schema::IsFill); }

void RemoveFill(pugi::xml_node properties) {
  while (const auto fill = FindFill(properties)) properties.remove_child(fill);
}

pugi::xml_node SetFill(pugi::xml_node properties, std::string_view kind) {
  RemoveFill(properties);
  return schema::Ensure(properties, kind);
}

void SetFillColor(pugi::xml_node fill, std::int32_t color) {
  fill.remove_children();
  schema::SetVal(fill, "srgbClr", RgbText(color));
}

}  // namespace plotsmith::xlsx

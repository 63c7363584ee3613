#include "xlsx/drawing/DrawingFill.h"

#include <array>

#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/HexColor.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::array<std::string_view, 6> kFills = {"noFill",   "solidFill", "gradFill",
                                                    "blipFill", "pattFill",  "grpFill"};

}  // namespace

pugi::xml_node FindFill(pugi::xml_node properties) {
  for (const std::string_view fill : kFills) {
    if (const auto node = schema::Find(properties, fill)) return node;
  }
  return {};
}

void RemoveFill(pugi::xml_node properties) {
  for (const std::string_view fill : kFills) schema::Remove(properties, fill);
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

#include "xlsx/chart/objects/Marker.h"

#include <string>

#include "xlsx/chart/part/ChartEnumerations.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/HexColor.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::int32_t kLeastSize = 2, kGreatestSize = 72;

bool HasMarkers(pugi::xml_node group) {
  const std::string_view kind = xml::LocalName(group);
  return kind == "lineChart" || kind == "scatterChart" || kind == "radarChart";
}

bool IsValid(MarkerProperty which, std::int32_t value) {
  switch (which) {
    case MarkerProperty::kStyle:
      return kMarkerStyles.Token(value).has_value();
    case MarkerProperty::kSize:
      return value >= kLeastSize && value <= kGreatestSize;
    case MarkerProperty::kOutline:
    case MarkerProperty::kFill:
      break;
  }
  return IsColor(value);
}

}  // namespace

bool SetMarker(pugi::xml_node series, MarkerProperty which, std::int32_t value) {
  if (!HasMarkers(series.parent()) || !IsValid(which, value)) return false;
  const pugi::xml_node marker = schema::Ensure(series, "marker");
  switch (which) {
    case MarkerProperty::kOutline:
      SetFillColor(SetFill(schema::Ensure(marker, "spPr", "ln"), "solidFill"), value);
      break;
    case MarkerProperty::kFill:
      SetFillColor(SetFill(schema::Ensure(marker, "spPr"), "solidFill"), value);
      break;
    case MarkerProperty::kStyle:
      schema::SetVal(marker, "symbol", *kMarkerStyles.Token(value));
      break;
    case MarkerProperty::kSize:
      schema::SetVal(marker, "size", std::to_string(value));
      break;
  }
  return true;
}

}  // namespace plotsmith::xlsx

#include "xlsx/chart/Marker.h"

#include <string>

#include "xlsx/chart/ChartEnumerations.h"
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

bool IsValid(MarkerPart which, std::int32_t value) {
  switch (which) {
    case MarkerPart::kStyle:
      return kMarkerStyles.Token(value).has_value();
    case MarkerPart::kSize:
      return value >= kLeastSize && value <= kGreatestSize;
    case MarkerPart::kOutline:
    case MarkerPart::kFilling:
      break;
  }
  return IsColor(value);
}

}  // namespace

bool SetMarker(pugi::xml_node series, MarkerPart which, std::int32_t value) {
  if (!HasMarkers(series.parent()) || !IsValid(which, value)) return false;
  const pugi::xml_node marker = schema::Ensure(series, "marker");
  switch (which) {
    case MarkerPart::kOutline:
      SetFillColor(SetFill(schema::Ensure(marker, "spPr", "ln"), "solidFill"), value);
      break;
    case MarkerPart::kFilling:
      SetFillColor(SetFill(schema::Ensure(marker, "spPr"), "solidFill"), value);
      break;
    case MarkerPart::kStyle:
      schema::SetVal(marker, "symbol", *kMarkerStyles.Token(value));
      break;
    case MarkerPart::kSize:
      schema::SetVal(marker, "size", std::to_string(value));
      break;
  }
  return true;
}

}  // namespace plotsmith::xlsx

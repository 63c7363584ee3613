#pragma once

#include <pugixml.hpp>
#include <string_view>

#include "xlsx/chart/rules/ChartTypes.h"

/// What each chart type requires of its plot group and its series, and what it forbids.
namespace plotsmith::xlsx {

class ChartPart;

/// Whether labels in the group may have a position (ST_DLblPos). Excel refuses a file with another one.
bool AllowsLabelPosition(pugi::xml_node group, std::string_view position);

/// Removes the elements that no series of the series' group can have. Bubble sizes are set aside, so that
/// they can come back.
void RemoveMisfits(ChartPart& part, pugi::xml_node series);
/// The same, and adds the elements that all series of the type's group must have. The series must be in such
/// a group.
void FitToGroup(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);
/// The same, and adds the elements that tell this type from others of its group, such as markers.
void FitSeries(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);
/// Drops what was set aside for a series that is deleted.
void ForgetSeries(ChartPart& part, pugi::xml_node series);

/// Makes a group of the type with the elements of `old` that both types can have. `old` may be a null node.
pugi::xml_node DeriveGroup(pugi::xml_node plotArea, pugi::xml_node old, const ChartTypeEntry& type);
/// Sets the group's own elements as the type requires. `restored` says that the group had this type before.
void FitGroup(pugi::xml_node group, const ChartTypeEntry& type, bool restored);

}  // namespace plotsmith::xlsx

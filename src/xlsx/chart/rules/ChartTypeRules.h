#pragma once

#include <pugixml.hpp>
#include <string_view>

#include "xlsx/chart/rules/ChartTypes.h"

/// What each chart type requires of its plot group and its series, and what it forbids.
namespace plotsmith::xlsx {

class ChartPart;

/// Returns true if labels in the group may have the position (ST_DLblPos). Excel refuses a file with a
/// position that isn't allowed.
bool AllowsLabelPosition(pugi::xml_node group, std::string_view position);

/// Removes the elements that the series of a group can't have. Bubble sizes are set aside, so that they can
/// be restored.
void RemoveMisfits(ChartPart& part, pugi::xml_node series);
/// Calls RemoveMisfits, and adds the elements that all series of the type's group must have. The series must
/// be in such a group.
void FitToGroup(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);
/// Calls FitToGroup, and adds the elements that distinguish this type from others of its group, such as
/// markers.
void FitSeries(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);
/// Discards the elements that were set aside for a deleted series.
void ForgetSeries(ChartPart& part, pugi::xml_node series);

/// Makes a group of the type with those elements of `old` that both types can have. `old` may be a null node.
pugi::xml_node DeriveGroup(pugi::xml_node plotArea, pugi::xml_node old, const ChartTypeEntry& type);
/// Sets the group's own elements as the type requires. `restored` is true if the group has had this type
/// before.
void FitGroup(pugi::xml_node group, const ChartTypeEntry& type, bool restored);

}  // namespace plotsmith::xlsx

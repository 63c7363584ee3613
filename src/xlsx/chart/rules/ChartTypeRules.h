#pragma once

#include <pugixml.hpp>
#include <string_view>

#include "xlsx/chart/rules/ChartTypes.h"

/// What a chart type asks of a group and of its series, and what it doesn't allow them.
namespace plotsmith::xlsx {

class ChartPart;

/// Whether labels in the group may stand at a position (ST_DLblPos). A file that says anything else is one
/// that Excel refuses.
bool AllowsLabelPosition(pugi::xml_node group, std::string_view position);

/// Takes from a series what no series of its group can have. Sizes of bubbles are laid aside, and come back.
void RemoveMisfits(ChartPart& part, pugi::xml_node series);
/// The same, and gives the series what all of the type's group must have. It stands in such a group.
void FitToGroup(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);
/// The same, and what makes a series one of the very type, like markers.
void FitSeries(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);
/// What of a series was laid aside, which goes with it.
void ForgetSeries(ChartPart& part, pugi::xml_node series);

/// A group of the type that takes over what both types have in common. `old` may be a null node.
pugi::xml_node DeriveGroup(pugi::xml_node plotArea, pugi::xml_node old, const ChartTypeEntry& type);
/// The group's own elements, as far as the type decides them. `restored` is one that was of the type before.
void FitGroup(pugi::xml_node group, const ChartTypeEntry& type, bool restored);

}  // namespace plotsmith::xlsx

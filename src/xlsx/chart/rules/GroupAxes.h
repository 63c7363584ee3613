#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/chart/rules/ChartTypes.h"

/// The axes of a chart, and which group hangs on which.
namespace plotsmith::xlsx {

class ChartPart;

/// The axes that a group hangs on, in the order in which it names them.
std::vector<pugi::xml_node> AxesOf(pugi::xml_node group);

/// What an axis is to its group. Where points have X values, there is no category axis but `x`.
struct AxisRoles {
  pugi::xml_node category, x, value, depth;
};
AxisRoles RolesOf(const std::vector<pugi::xml_node>& axes);

/// The primary axis of a kind; a null node if the chart has none. `value` is the value axis, else the
/// category axis or the axis of X values.
pugi::xml_node FindAxis(ChartPart& part, bool value);
/// The axis that an axis crosses.
pugi::xml_node FindCrossedAxis(pugi::xml_node axis);

/// Gives a group the axes that its type wants, out of those that it had (`old`), of those that an earlier
/// type left behind, or new ones. The others go. `state` is what was laid aside of the type. `familyChanged`
/// says that the type before crosses its axes elsewhere (CrossBetween), so that what they say of it was meant
/// for that one.
void ArrangeAxes(ChartPart& part, pugi::xml_node group, const std::vector<pugi::xml_node>& old,
                 const ChartTypeEntry& type, pugi::xml_node state, bool familyChanged);
/// A chart without data shows no axes, so that its file has them as hidden. Shows them again, if all are.
void ShowAxes(ChartPart& part);
/// Where the value axis of a type of group crosses the other one, unless somebody said otherwise.
std::string_view CrossBetween(std::string_view groupElement);
/// Hangs a group on the axes of another.
void ShareAxes(pugi::xml_node group, pugi::xml_node other);

/// An axis whose labels take the number format of the data also holds it, for readers that don't compute it:
/// the first series', or percent where the values are shares. Brings that up to date.
void UpdateLinkedFormats(ChartPart& part);

}  // namespace plotsmith::xlsx

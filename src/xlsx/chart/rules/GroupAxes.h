#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/chart/rules/ChartTypes.h"

/// The axes of a chart, and the axes that each plot group uses.
namespace plotsmith::xlsx {

class ChartPart;

/// Returns the axes of a group, in the order in which the group lists them.
std::vector<pugi::xml_node> AxesOf(pugi::xml_node group);

/// The axes of a group by their roles. A group whose points have X values has `x` instead of `category`.
/// Axes that the group doesn't have are null.
struct AxisRoles {
  /// The axis elements, such as c:catAx.
  pugi::xml_node category, x, value, depth;
};
/// Returns the axes of a group by their roles.
AxisRoles RolesOf(const std::vector<pugi::xml_node>& axes);

/// Returns the primary axis of a kind, or a null node if the chart has none. If `value` is true, it is the
/// value axis; otherwise it is the category axis or the axis of X values.
pugi::xml_node FindAxis(ChartPart& part, bool value);
/// Returns the axis that an axis crosses.
pugi::xml_node FindCrossedAxis(pugi::xml_node axis);

/// Gives a group the axes that its type needs: the axes that it had (`old`), those that an earlier type has
/// left, or new ones. Other axes are removed. `state` contains the elements that were set aside for the type.
/// `familyChanged` is true if the earlier type crosses its axes at another place (CrossBetween), so that
/// their setting no longer applies.
void ArrangeAxes(ChartPart& part, pugi::xml_node group, const std::vector<pugi::xml_node>& old,
                 const ChartTypeEntry& type, pugi::xml_node state, bool familyChanged);
/// Shows the axes of the chart if all of them are hidden. Excel hides the axes of a chart without data.
void ShowAxes(ChartPart& part);
/// Returns the position at which the value axis crosses the other axis by default (ST_CrossBetween), for a
/// type of group.
std::string_view CrossBetween(std::string_view groupElement);
/// Makes a group use the axes of another group.
void ShareAxes(pugi::xml_node group, pugi::xml_node other);

/// Updates the number formats of axes that are linked to the data. The format is that of the first series, or
/// percent in a 100 % stacked chart. It is stored for programs that don't compute it.
void UpdateLinkedFormats(ChartPart& part);

}  // namespace plotsmith::xlsx

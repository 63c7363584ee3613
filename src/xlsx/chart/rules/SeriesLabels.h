#pragma once

#include <cstdint>
#include <pugixml.hpp>

#include "runtime/Variant.h"

/// The labels of a series' points, as elements of the chart part (`dLbls`, and `dLbl` for a single point).
namespace plotsmith::xlsx {

/// The labels of a series: its own, else those that its group has for all series. A null node if there are
/// none.
pugi::xml_node FindLabels(pugi::xml_node series);
/// The series' own labels. New ones begin as a copy of the group's.
pugi::xml_node EnsureLabels(pugi::xml_node series);
/// The label of one point, from 0. A new one repeats what the labels of the series say.
pugi::xml_node EnsurePointLabel(pugi::xml_node labels, long long number);

/// Whether a `dLbls` or `dLbl` element shows anything itself.
bool ShowsAnything(pugi::xml_node labels);
/// Whether a `dLbls` element, or the label of one of its points, shows anything.
bool HasLabels(pugi::xml_node labels);

/// What the labels show, as a member of XlDataLabelsType; Null if no member says it. Labels that show several
/// things count by their value, else by their percentage, because only these two can be drawn again.
runtime::Variant TypeOfLabels(pugi::xml_node labels);
/// Makes the labels show what a member of XlDataLabelsType says; false if there is no such member.
bool ShowLabels(pugi::xml_node labels, std::int32_t type);
/// Gives a series without labels labels with its values. With `shown` false, takes the labels from it; this
/// also hides labels that its group has for all series.
void SetLabels(pugi::xml_node series, bool shown);

}  // namespace plotsmith::xlsx

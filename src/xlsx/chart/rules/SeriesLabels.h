#pragma once

#include <cstdint>
#include <pugixml.hpp>

#include "runtime/Variant.h"

/// The labels of a series' points, as elements of the chart part (`dLbls`, and `dLbl` for a single point).
namespace plotsmith::xlsx {

/// The labels of a series: its own, otherwise those that its group has for all series. A null node if there
/// are none.
pugi::xml_node FindLabels(pugi::xml_node series);
/// The series' own labels. New ones begin as a copy of the group's.
pugi::xml_node EnsureLabels(pugi::xml_node series);
/// The label of one point, from 0. A new one repeats the settings of the series' labels.
pugi::xml_node EnsurePointLabel(pugi::xml_node labels, long long number);

/// Returns true if a `dLbls` or `dLbl` element itself shows anything.
bool ShowsAnything(pugi::xml_node labels);
/// Returns true if a `dLbls` element, or the label of one of its points, shows anything.
bool HasLabels(pugi::xml_node labels);

/// The content of labels, as a member of XlDataLabelsType; Null if there is no such member. Labels that show
/// the value count as xlDataLabelsShowValue, also if they show something else. The series name and the legend
/// key are ignored.
runtime::Variant TypeOfLabels(pugi::xml_node labels);
/// Makes the labels show the content of a member of XlDataLabelsType; returns false if there is no such
/// member.
bool ShowLabels(pugi::xml_node labels, std::int32_t type);
/// If `shown` is true and the series has no labels, adds labels that show its values. If `shown` is false,
/// removes the labels of the series, and hides labels that its group has for all series.
void SetLabels(pugi::xml_node series, bool shown);

}  // namespace plotsmith::xlsx

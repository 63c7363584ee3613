#pragma once

#include <cstdint>

#include "host/excel/DataLabels.h"
#include "xlsx/chart/SeriesHandle.h"

namespace plotsmith::xlsx {

/// The labels of a series' points, which must be there.
excel::Ref<excel::DataLabels> MakeDataLabels(SeriesHandle series);

/// The labels of a series: its own, else those that its group has for all; a null node without any.
pugi::xml_node FindLabels(pugi::xml_node series);
/// Its own, which begin as the group's.
pugi::xml_node EnsureLabels(pugi::xml_node series);
/// Whether labels show anything by themselves, and whether they or one of a point's do.
bool ShowsAnything(pugi::xml_node labels);
bool HasLabels(pugi::xml_node labels);

/// Makes the labels show what a type (XlDataLabelsType) says; false if there is no such type.
bool ShowLabels(pugi::xml_node labels, std::int32_t type);
/// Labels with the value where there are none; or none, also where the group has some for all.
void SetLabels(pugi::xml_node series, bool shown);

}  // namespace plotsmith::xlsx

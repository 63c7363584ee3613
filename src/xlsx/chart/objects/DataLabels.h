#pragma once

#include "host/excel/DataLabels.h"
#include "xlsx/chart/objects/SeriesHandle.h"

namespace plotsmith::xlsx {

/// The labels of a series' points for the port. The series must have labels.
excel::Ref<excel::DataLabels> MakeDataLabels(SeriesHandle series);

}  // namespace plotsmith::xlsx

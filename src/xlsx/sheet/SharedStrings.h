#pragma once

#include "xlsx/package/Archive.h"
#include "xlsx/sheet/CellStore.h"

namespace plotsmith::xlsx {

/// Reads the shared strings part into `strings`, one text per item. The runs of a rich text are joined, and
/// phonetic runs are left out.
void ReadSharedStrings(Archive::Stream& source, TextPool& strings);

}  // namespace plotsmith::xlsx

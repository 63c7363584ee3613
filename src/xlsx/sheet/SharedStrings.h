#pragma once

#include "xlsx/package/Archive.h"
#include "xlsx/sheet/CellStore.h"

namespace plotsmith::xlsx {

/// Reads the shared strings part: the text of each item, the runs of a rich one joined, phonetic runs left
/// out.
void ReadSharedStrings(Archive::Stream& source, TextPool& strings);

}  // namespace plotsmith::xlsx

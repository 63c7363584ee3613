#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class LegendEntry;

/// The entries of a legend that have not been deleted, in order: one for each series, or for each point of a
/// pie.
class LegendEntries {
 public:
  virtual ~LegendEntries() = default;

  /// The number of entries, without deleted ones.
  virtual std::int32_t Count() = 0;
  /// Returns an entry. Raises error 1004 if the index is out of range.
  virtual Ref<LegendEntry> Item(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel

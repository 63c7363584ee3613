#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class LegendEntry;

/// The entries of a legend that are left, in their order: one for each series or, in a pie, for each point.
class LegendEntries {
 public:
  virtual ~LegendEntries() = default;

  /// Without those that were deleted.
  virtual std::int32_t Count() = 0;
  /// Error 1004 outside.
  virtual Ref<LegendEntry> Item(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel

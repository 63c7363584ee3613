#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DataLabels;

class Series {
 public:
  virtual ~Series() = default;

  /// A literal text, or a reference that begins with "=", in A1 or in R1C1 style; so for the two below.
  virtual void SetName(const Variant& name) = 0;
  virtual void SetXValues(const Variant& reference) = 0;
  virtual void SetValues(const Variant& reference) = 0;
  /// `type` is one of Excel's label types (XlDataLabelsType).
  virtual void ApplyDataLabels(std::int32_t type) = 0;
  /// Nothing while there are no labels.
  virtual Ref<excel::DataLabels> DataLabels() = 0;
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel

#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;

class DataLabels {
 public:
  virtual ~DataLabels() = default;

  virtual Ref<excel::Font> Font() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  /// One of Excel's label positions (XlDataLabelPosition).
  virtual void SetPosition(std::int32_t position) = 0;
};

}  // namespace plotsmith::excel

#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DataLabel;
class Font;

/// All labels of a series; what is set, is set for each.
class DataLabels {
 public:
  virtual ~DataLabels() = default;

  virtual Ref<excel::Font> Font() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  /// One of Excel's label positions (XlDataLabelPosition).
  virtual void SetPosition(std::int32_t position) = 0;
  /// Null where the labels differ.
  virtual Variant AutoScaleFont() = 0;
  /// What the labels show (XlDataLabelsType); Null where they differ or it is none of these.
  virtual Variant Type() = 0;
  /// XlHAlign and XlVAlign.
  virtual void SetHorizontalAlignment(std::int32_t alignment) = 0;
  virtual void SetVerticalAlignment(std::int32_t alignment) = 0;
  /// Degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
  virtual void SetOrientation(std::int32_t orientation) = 0;
  /// One for each point.
  virtual std::int32_t Count() = 0;
  /// Error 1004 outside.
  virtual Ref<DataLabel> Item(std::int32_t index) = 0;
};

}  // namespace plotsmith::excel

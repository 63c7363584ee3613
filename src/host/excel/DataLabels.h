#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DataLabel;
class Font;

/// All labels of a series; what is set, is set for each.
class DataLabels {
 public:
  virtual ~DataLabels() = default;

  /// One for each point, shown or not.
  virtual std::int32_t Count() = 0;
  /// The label of a point; error 1004 outside.
  virtual Ref<DataLabel> Item(std::int32_t index) = 0;

  /// What the labels show (XlDataLabelsType), or xlNone. What no type says counts by the value that is shown,
  /// then by the percentage; without either it is Null.
  virtual Variant Type() = 0;
  /// Where the labels stand (XlDataLabelPosition). Error 1004 for a place that the chart's type doesn't have,
  /// such as xlLabelPositionBestFit outside of pies.
  virtual void SetPosition(std::int32_t position) = 0;
  /// XlHAlign, of the lines of a label's text; error 1004 for others.
  virtual void SetHorizontalAlignment(std::int32_t alignment) = 0;
  /// XlVAlign, of a label's text in its box; error 1004 for others.
  virtual void SetVerticalAlignment(std::int32_t alignment) = 0;
  /// Degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical; error 1004 for others.
  virtual void SetOrientation(std::int32_t orientation) = 0;
  /// Of all labels.
  virtual Ref<excel::Font> Font() = 0;

  /// Whether the font follows the chart's size: a Boolean, or Null where the labels differ. Hosts from
  /// version 12 on accept what is set, and nothing follows.
  ///@{
  virtual Variant AutoScaleFont() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  ///@}
};

}  // namespace plotsmith::excel

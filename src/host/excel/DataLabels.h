#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DataLabel;
class Font;

/// All data labels of a series. Setting a property sets it for every label.
class DataLabels {
 public:
  virtual ~DataLabels() = default;

  /// The number of labels. There is one for each point, whether it is shown or not.
  virtual std::int32_t Count() = 0;
  /// Returns the label of a point. Raises error 1004 if the index is out of range.
  virtual Ref<DataLabel> Item(std::int32_t index) = 0;

  /// The contents of the labels (XlDataLabelsType), or xlNone. A combination that has no type of its own
  /// counts as values if it shows values, and otherwise as percentages if it shows percentages. For all other
  /// combinations the result is Null.
  virtual Variant Type() = 0;
  /// Sets the position of the labels (XlDataLabelPosition). Raises error 1004 for a position that the chart
  /// type doesn't have, such as xlLabelPositionBestFit except on pies.
  virtual void SetPosition(std::int32_t position) = 0;
  /// Sets the horizontal alignment of the lines in a label (XlHAlign). Raises error 1004 for others.
  virtual void SetHorizontalAlignment(std::int32_t alignment) = 0;
  /// Sets the vertical alignment of the text in its box (XlVAlign). Raises error 1004 for others.
  virtual void SetVerticalAlignment(std::int32_t alignment) = 0;
  /// Sets the rotation in degrees from -90 to 90, or one of xlHorizontal, xlUpward, xlDownward, xlVertical.
  /// Raises error 1004 for others.
  virtual void SetOrientation(std::int32_t orientation) = 0;
  /// The font of all labels.
  virtual Ref<excel::Font> Font() = 0;

  /// Whether the font scales with the chart: a Boolean, or Null if the labels differ. Hosts from version 12
  /// on accept the setting and ignore it.
  ///@{
  virtual Variant AutoScaleFont() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  ///@}
};

}  // namespace plotsmith::excel

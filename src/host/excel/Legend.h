#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Font;
class LegendEntries;

/// The built-in legend of a chart.
class Legend {
 public:
  virtual ~Legend() = default;

  /// The entries that have not been deleted.
  virtual Ref<excel::LegendEntries> LegendEntries() = 0;

  /// The position (XlLegendPosition). Raises error 1004 if the legend is at no such position, for example
  /// because the user has moved it.
  virtual std::int32_t Position() = 0;
  /// Sets the position and discards the values of Left and Top. Raises error 1004 for a number that isn't a
  /// position.
  virtual void SetPosition(std::int32_t position) = 0;

  /// The distance from the top left corner of the chart in points. If it was never set, this is an estimate
  /// of the host's automatic position.
  ///@{
  virtual double Left() = 0;
  virtual double Top() = 0;
  ///@}

  /// Sets the distance from the top left corner of the chart in points. Raises error 1004 outside the chart.
  ///@{
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
  ///@}

  /// The font of all entries.
  virtual Ref<excel::Font> Font() = 0;

  /// Whether the font scales with the chart: a Boolean, or Null if the entries differ. Hosts from version 12
  /// on accept the setting and ignore it.
  ///@{
  virtual Variant AutoScaleFont() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  ///@}
};

}  // namespace plotsmith::excel

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

  /// XlLegendPosition. Error 1004 where the legend stands at no such position, as when it was dragged.
  virtual std::int32_t Position() = 0;
  /// What Left and Top were set to is given up. Error 1004 for a number that is no position.
  virtual void SetPosition(std::int32_t position) = 0;

  /// Points from the chart's corner; where nobody set it, roughly where the host puts the legend.
  ///@{
  virtual double Left() = 0;
  virtual double Top() = 0;
  ///@}

  /// Points from the chart's corner. Error 1004 outside of the chart.
  ///@{
  virtual void SetLeft(double points) = 0;
  virtual void SetTop(double points) = 0;
  ///@}

  /// Of all entries.
  virtual Ref<excel::Font> Font() = 0;

  /// Whether the font follows the chart's size: a Boolean, or Null where the entries differ. Hosts from
  /// version 12 on accept what is set, and nothing follows.
  ///@{
  virtual Variant AutoScaleFont() = 0;
  virtual void SetAutoScaleFont(const Variant& value) = 0;
  ///@}
};

}  // namespace plotsmith::excel

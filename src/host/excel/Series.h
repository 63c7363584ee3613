#pragma once

#include <vector>

#include "host/excel/Using.h"

namespace plotsmith::excel {

class Border;
class DataLabels;
class Interior;

/// A series of a chart. Its members raise error 1004 after the series was deleted.
class Series {
 public:
  virtual ~Series() = default;

  /// The name as the legend shows it. A series without a name has "Series1" and so on.
  virtual std::string Name() = 0;
  /// Sets the name to a literal text, to a cell reference in the format of SetValues, or to the text of a
  /// formula such as ="a ""b""". Raises error 1004 for other texts that begin with "=".
  virtual void SetName(const Variant& name) = 0;
  /// The formula "=SERIES(name,categories,values,order)", with each reference as it is in the chart.
  virtual std::string Formula() = 0;
  /// Sets the reference of the categories or of the X values, in the format of SetValues.
  virtual void SetXValues(const Variant& reference) = 0;
  /// The values, one for each point; Empty for a point without a value.
  virtual std::vector<Variant> Values() = 0;
  /// Sets the reference of the values. It refers to cells of this workbook and begins with "=", in A1 or R1C1
  /// style. Raises error 1004 for anything else.
  virtual void SetValues(const Variant& reference) = 0;
  /// Sets the reference of the bubble sizes, in the format of SetValues; Excel requires R1C1 style. For a
  /// series that isn't a bubble series, the sizes take effect when it becomes one.
  virtual void SetBubbleSizes(const Variant& reference) = 0;

  /// The type of the series (XlChartType). A line that shows only its markers returns xlCombination, because
  /// Excel has no type for it.
  virtual std::int32_t ChartType() = 0;
  /// Sets the type of this series alone. Raises error 1004 for a type that can't be combined with those of
  /// the others.
  virtual void SetChartType(std::int32_t type) = 0;
  /// Deletes the series and its entry in the legend.
  virtual void Delete() = 0;

  /// Whether any point shows a label. New labels show the values.
  ///@{
  virtual bool HasDataLabels() = 0;
  virtual void SetHasDataLabels(bool value) = 0;
  ///@}

  /// Shows labels of a type (XlDataLabelsType, except bubble sizes). Raises error 1004 for others.
  virtual void ApplyDataLabels(std::int32_t type) = 0;
  /// The labels, or Nothing if there are none.
  virtual Ref<excel::DataLabels> DataLabels() = 0;

  /// The fill of the columns, areas, slices or bubbles.
  virtual Ref<excel::Interior> Interior() = 0;
  /// The outline of the columns, areas, slices or bubbles, or the line of a line series.
  virtual Ref<excel::Border> Border() = 0;

  /// Sets the colour of the outline or the fill of the markers. Raises error 1004 for a series without
  /// markers, such as a column series.
  ///@{
  virtual void SetMarkerForegroundColor(std::int32_t color) = 0;
  virtual void SetMarkerBackgroundColor(std::int32_t color) = 0;
  ///@}

  /// Sets the marker style (XlMarkerStyle). Raises error 1004 for others, and for a series without markers.
  virtual void SetMarkerStyle(std::int32_t style) = 0;
  /// Sets the marker size in points, from 2 to 72. Raises error 1004 if it is out of range, and for a series
  /// without markers.
  virtual void SetMarkerSize(std::int32_t points) = 0;
};

}  // namespace plotsmith::excel

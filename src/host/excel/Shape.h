#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class FillFormat;
class LineFormat;
class TextFrame;
class TextFrame2;

/// What is drawn on a sheet or on a chart: a chart, a picture, a text box. To change it is error 1004 once it
/// has been deleted, or has become part of a group.
class Shape {
 public:
  virtual ~Shape() = default;

  /// MsoShapeType; msoAutoShape for all that is neither chart, group, picture, line nor text box.
  virtual std::int32_t Type() = 0;

  /// Several shapes may have the same. An empty one is error 1004.
  ///@{
  virtual std::string Name() = 0;
  virtual void SetName(std::string_view name) = 0;
  ///@}

  /// The text that is read to those who can't see the shape; it ties charts to their definitions.
  ///@{
  virtual std::string AlternativeText() = 0;
  virtual void SetAlternativeText(std::string_view text) = 0;
  ///@}

  /// Points from the corner of the sheet, or of the chart that the shape is drawn on. A shape that would
  /// stick out of the chart, or lie before the sheet's corner, is put at the edge.
  ///@{
  virtual double Left() = 0;
  virtual void SetLeft(double points) = 0;
  virtual double Top() = 0;
  virtual void SetTop(double points) = 0;
  ///@}

  /// Points; no more than the chart has, for a shape on one. Where the proportions are locked, the other one
  /// changes along. Error 1004 below 0.
  ///@{
  virtual double Width() = 0;
  virtual void SetWidth(double points) = 0;
  virtual double Height() = 0;
  virtual void SetHeight(double points) = 0;
  ///@}

  /// Whether width and height keep their proportions when one of them is set.
  virtual void SetLockAspectRatio(bool value) = 0;

  /// Another form with the same text in it (MsoAutoShapeType). Error 1004 for others, and for what has no
  /// such form, such as a picture.
  virtual void SetAutoShapeType(std::int32_t type) = 0;

  /// To set anything of these is error 1004 for the frame of a chart, which has its look from its chart.
  ///@{
  virtual Ref<FillFormat> Fill() = 0;
  virtual Ref<LineFormat> Line() = 0;
  ///@}

  /// The shape's text and where it stands.
  virtual Ref<excel::TextFrame> TextFrame() = 0;
  /// The same frame with what version 12 brought.
  virtual Ref<excel::TextFrame2> TextFrame2() = 0;

  /// Of a chart's frame, the chart as well.
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel

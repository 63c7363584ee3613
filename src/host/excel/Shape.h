#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class FillFormat;
class LineFormat;
class TextFrame;
class TextFrame2;

/// A shape on a sheet or on a chart, such as a chart frame, a picture or a text box. Changing it raises error
/// 1004 after it was deleted or became part of a group.
class Shape {
 public:
  virtual ~Shape() = default;

  /// The type (MsoShapeType). It is msoAutoShape for shapes other than charts, groups, pictures, lines and
  /// text boxes.
  virtual std::int32_t Type() = 0;

  /// The name. Several shapes may have the same name. Setting an empty name raises error 1004.
  ///@{
  virtual std::string Name() = 0;
  virtual void SetName(std::string_view name) = 0;
  ///@}

  /// The alternative text, which screen readers read. It connects charts with their definitions.
  ///@{
  virtual std::string AlternativeText() = 0;
  virtual void SetAlternativeText(std::string_view text) = 0;
  ///@}

  /// The position in points, measured from the top left corner of the sheet or of the chart that contains the
  /// shape. A shape that would extend beyond the chart, or beyond the corner of the sheet, is placed at the
  /// edge.
  ///@{
  virtual double Left() = 0;
  virtual void SetLeft(double points) = 0;
  virtual double Top() = 0;
  virtual void SetTop(double points) = 0;
  ///@}

  /// The size in points. A shape on a chart can't be larger than the chart. If the aspect ratio is locked,
  /// setting one dimension also changes the other. Raises error 1004 below 0.
  ///@{
  virtual double Width() = 0;
  virtual void SetWidth(double points) = 0;
  virtual double Height() = 0;
  virtual void SetHeight(double points) = 0;
  ///@}

  /// Sets whether the shape keeps its aspect ratio when its width or height is set.
  virtual void SetLockAspectRatio(bool value) = 0;

  /// Changes the form of the shape (MsoAutoShapeType) and keeps its text. Raises error 1004 for others, and
  /// for shapes without such a form, such as pictures.
  virtual void SetAutoShapeType(std::int32_t type) = 0;

  /// The fill and the line. Setting one of their properties raises error 1004 for a chart frame, which gets
  /// its look from its chart.
  ///@{
  virtual Ref<FillFormat> Fill() = 0;
  virtual Ref<LineFormat> Line() = 0;
  ///@}

  /// The text of the shape and its alignment.
  virtual Ref<excel::TextFrame> TextFrame() = 0;
  /// The same text frame, with the members that version 12 added.
  virtual Ref<excel::TextFrame2> TextFrame2() = 0;

  /// Deletes the shape. Deleting a chart frame also deletes its chart.
  virtual void Delete() = 0;
};

}  // namespace plotsmith::excel

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "host/excel/Shape.h"
#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class Journal;
class Theme;

/// The common base of the shapes on sheets and charts: a view of an object of a drawing (sp, grpSp, pic and
/// so on). The anchor determines the object's position; sheets and charts have different kinds of anchors.
class DrawnShape : public excel::Shape, public std::enable_shared_from_this<DrawnShape> {
 public:
  /// Makes the shape for an anchor and the object on it.
  DrawnShape(pugi::xml_node anchor, pugi::xml_node object);

  std::int32_t Type() override;
  std::string Name() override { return NameText(); }
  void SetName(std::string_view name) override;
  std::string AlternativeText() override { return Remembered(alternativeText_, "descr"); }
  void SetAlternativeText(std::string_view text) override;
  double Left() override { return PlacedFrame().left; }
  double Top() override { return PlacedFrame().top; }
  double Width() override { return PlacedFrame().width; }
  double Height() override { return PlacedFrame().height; }
  void SetLeft(double points) override;
  void SetTop(double points) override;
  void SetWidth(double points) override;
  void SetHeight(double points) override;
  excel::Ref<excel::TextFrame> TextFrame() override;
  excel::Ref<excel::TextFrame2> TextFrame2() override;
  excel::Ref<excel::FillFormat> Fill() override;
  excel::Ref<excel::LineFormat> Line() override;
  void SetLockAspectRatio(bool value) override;
  void SetAutoShapeType(std::int32_t type) override;
  void Delete() override;

  /// The position and size of the shape, in points from the upper left corner of the sheet or the chart.
  virtual Frame PlacedFrame() const = 0;
  /// The path of the shape in the journal.
  virtual std::string JournalPath() const = 0;
  /// Notes that the drawing must be written.
  virtual void MarkChanged() = 0;
  /// The journal of the host's calls.
  virtual const Journal& Log() const = 0;
  /// The theme of the shape's colours and fonts.
  virtual const xlsx::Theme& Theme() const = 0;
  /// The name, without copying it; raises error 1004 once the shape was deleted. The reference is valid until
  /// the name changes.
  const std::string& NameText() { return Remembered(name_, "name"); }
  /// The object's element; raises error 1004 once the shape was deleted.
  pugi::xml_node Object() const;
  /// The shape properties (spPr, or grpSpPr of a group); raises error 1004 for an object that has neither.
  pugi::xml_node Properties() const;
  /// The anchor's element; raises error 1004 once the shape was deleted.
  pugi::xml_node Anchor() const;
  /// The text of the shape in UTF-16. It is converted once, so that reading it in pieces is fast.
  const std::u16string& Text();
  /// Sets the text, in UTF-16. Raises error 1004 for an object that can't have a text.
  void SetText(std::u16string_view text);
  /// Moves the shape to the frame, as far as its drawing allows. Raises error 1004 for a frame that
  /// CheckPlace refuses.
  void Place(const Frame& frame);
  /// Fits a shape that adapts its size to the text.
  void FitToText();
  /// Call this when the shape's elements are removed. After that, every use raises error 1004.
  void Leave();

 protected:
  /// Moves the anchor and returns the frame that the anchor allows.
  virtual Frame MoveAnchor(const Frame& wanted) = 0;
  /// Removes the shape from its drawing.
  virtual void RemoveFromDrawing() = 0;
  /// The path of the shape in the journal, below that of its drawing.
  std::string JournalPathUnder(const std::string& drawing) const;

 private:
  /// Returns an attribute of the object's identity, which is read from the XML at its first use.
  const std::string& Remembered(std::optional<std::string>& text, const char* attribute) const;
  bool KeepsItsProportions() const;
  /// Turns TextFrame2.AutoSize off, because the shape gets a fixed size. The left and right margins of a text
  /// without wrapping become narrow, unless they were set.
  void StopFittingToText();

  pugi::xml_node anchor_, object_;
  std::optional<std::u16string> text_;  ///< kept until it changes
  // A search for a chart reads these three of every shape.
  std::int32_t type_;
  std::optional<std::string> name_, alternativeText_;  ///< Kept until they change.
};

/// Raises error 1004 unless all coordinates fit into Excel's type for them, Single.
void CheckPlace(const Frame& frame);

}  // namespace plotsmith::xlsx

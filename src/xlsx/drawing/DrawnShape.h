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

/// What the shapes of a sheet and those on a chart have in common: a view over an object of a drawing (sp,
/// grpSp, pic, ...). Where the object lies is a matter of its anchor, which each drawing has its own way for.
class DrawnShape : public excel::Shape, public std::enable_shared_from_this<DrawnShape> {
 public:
  DrawnShape(pugi::xml_node anchor, pugi::xml_node object);

  std::int32_t Type() override;
  std::string Name() override;
  void SetName(std::string_view name) override;
  std::string AlternativeText() override;
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

  // for the other classes of this host
  virtual Frame PlacedFrame() const = 0;
  virtual std::string JournalPath() const = 0;
  virtual void MarkChanged() = 0;
  virtual const Journal& Log() const = 0;
  /// The theme that the colours and fonts of the shape refer to.
  virtual const xlsx::Theme& Theme() const = 0;
  /// The object's element; error 1004 once the shape was deleted.
  pugi::xml_node Object() const;
  /// spPr, or a group's grpSpPr; error 1004 for what has neither.
  pugi::xml_node Properties() const;
  /// The anchor's element; error 1004 once the shape was deleted.
  pugi::xml_node Anchor() const;
  /// What the shape says, in units; whoever reads it in pieces gets them from one conversion.
  const std::u16string& Text();
  void SetText(std::u16string_view text);
  /// Puts the shape elsewhere, as near as its drawing allows. Error 1004 for one that
  /// CheckPlace refuses.
  void Place(const Frame& frame);
  /// A shape that follows its text takes the size that its text now needs.
  void FitToText();
  /// The elements are gone, or about to go.
  void Leave();

 protected:
  /// Moves the anchor and answers where that allows the shape to lie.
  virtual Frame MoveAnchor(const Frame& wanted) = 0;
  /// Takes the shape out of its drawing, and leaves.
  virtual void RemoveFromDrawing() = 0;
  std::string JournalPathUnder(const std::string& drawing) const;

 private:
  bool KeepsItsProportions() const;
  /// Turns TextFrame2.AutoSize off, because the shape gets a size of its own. Margins at the sides of a line
  /// that doesn't break become narrow, unless they were set.
  void StopFittingToText();

  pugi::xml_node anchor_, object_;
  std::optional<std::u16string> text_;  ///< kept until it changes
  std::int32_t type_;                   ///< read once: whoever seeks a chart asks all shapes
};

/// Error 1004 unless all of it fits into the type of Excel's places, Single.
void CheckPlace(const Frame& frame);

}  // namespace plotsmith::xlsx

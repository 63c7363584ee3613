#pragma once

#include <cstddef>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/drawing/TextMetrics.h"

namespace plotsmith::xlsx {

class Theme;

/// The text of a body (txBody, rich), whose paragraphs are joined by line feeds.
std::string BodyText(pugi::xml_node body);
/// Sets the text, one paragraph for each line, with the format of the first run and paragraph.
void SetBodyText(pugi::xml_node body, std::string_view text);
/// The first paragraph. If it is missing, it is made with all elements that a body must have.
pugi::xml_node EnsureParagraph(pugi::xml_node body);

/// The text of a shape, as a view of its body of paragraphs and runs. Positions count UTF-16 units from 0,
/// including the line feeds between paragraphs.
class TextBody {
 public:
  /// `object` is the shape's element.
  explicit TextBody(pugi::xml_node object) : object_(object) {}

  /// The text, whose paragraphs are joined by line feeds.
  std::string Text() const { return BodyText(Body()); }
  /// Sets the text. Raises error 1004 for an object that can't have a text.
  void SetText(std::string_view text) { SetBodyText(EnsureBody(), text); }
  /// The properties of the body, which are made if they are missing. Raises error 1004 for an object that
  /// can't have a text.
  pugi::xml_node BodyProperties();
  /// The paragraph elements.
  std::vector<pugi::xml_node> Paragraphs() const;

  /// The properties of the runs of a piece of text. Runs are split at its ends, and missing properties are
  /// made. For the whole text, this includes the end marks of paragraphs, whose format newly typed text gets.
  std::vector<pugi::xml_node> EnsureRunProperties(std::size_t start, std::size_t length);
  /// The properties of the runs of a piece of text, for reading: no run is split, and a run without
  /// properties gives a null node.
  std::vector<pugi::xml_node> RunProperties(std::size_t start, std::size_t length) const;

  /// The size of a text.
  struct Extent {
    /// The extents in points.
    double width = 0, height = 0;
  };
  /// The size of the text without the margins. Lines wrap at `width` points if it is given.
  Extent Measure(const Theme& theme, std::optional<double> width) const;

 private:
  pugi::xml_node Body() const;
  pugi::xml_node EnsureBody();

  pugi::xml_node object_;
};

/// The typeface in the properties of a run, with Excel's defaults for missing ones.
TextFace FaceOf(pugi::xml_node runProperties, const Theme& theme);

}  // namespace plotsmith::xlsx

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

/// The text of a body (txBody, rich): its paragraphs joined by line feeds.
std::string BodyText(pugi::xml_node body);
/// Sets the text, a paragraph for each line, with the format of the first run and paragraph.
void SetBodyText(pugi::xml_node body, std::string_view text);
/// The first paragraph, which is made if it is missing, with all else that a body must have.
pugi::xml_node EnsureParagraph(pugi::xml_node body);

/// The text of a shape: a view over its body of paragraphs and runs. Positions count UTF-16 units from 0, a
/// line feed between paragraphs among them.
class TextBody {
 public:
  /// `object` is the shape's element.
  explicit TextBody(pugi::xml_node object) : object_(object) {}

  /// The text, whose paragraphs are joined by line feeds.
  std::string Text() const { return BodyText(Body()); }
  /// Error 1004 for an object that can't have a text.
  void SetText(std::string_view text) { SetBodyText(EnsureBody(), text); }
  /// The properties of the body, which are made if they are missing. Error 1004 for an object that can't have
  /// a text.
  pugi::xml_node BodyProperties();
  /// The paragraph elements.
  std::vector<pugi::xml_node> Paragraphs() const;

  /// The properties of the runs of a piece of text. Runs are cut at its ends, and missing properties are
  /// made. For the whole text, this includes the ends of paragraphs, whose format the next typed text takes
  /// over.
  std::vector<pugi::xml_node> EnsureRunProperties(std::size_t start, std::size_t length);
  /// The same for reading only: nothing is cut or made, and a run without properties gives a null node.
  std::vector<pugi::xml_node> RunProperties(std::size_t start, std::size_t length) const;

  /// The size of a text.
  struct Extent {
    double width = 0, height = 0;  ///< points
  };
  /// The size of the text without the margins. Lines wrap at `width` points if it is given.
  Extent Measure(const Theme& theme, std::optional<double> width) const;

 private:
  pugi::xml_node Body() const;
  pugi::xml_node EnsureBody();

  pugi::xml_node object_;
};

/// The typeface that the properties of a run give, with Excel's defaults for what they don't say.
TextFace FaceOf(pugi::xml_node runProperties, const Theme& theme);

}  // namespace plotsmith::xlsx

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
/// The text anew, a paragraph a line, each dressed as the first run and paragraph were.
void SetBodyText(pugi::xml_node body, std::string_view text);
/// The first paragraph, and what else a body must have.
pugi::xml_node EnsureParagraph(pugi::xml_node body);

/// The text of a shape: a view over its body of paragraphs and runs. Positions count UTF-16 units from 0, a
/// line feed between paragraphs among them.
class TextBody {
 public:
  /// `object` is the shape's element.
  explicit TextBody(pugi::xml_node object) : object_(object) {}

  std::string Text() const { return BodyText(Body()); }
  /// Error 1004 for an object that can't bear a text; so for the next.
  void SetText(std::string_view text) { SetBodyText(EnsureBody(), text); }
  /// The body's properties, made where they are missing.
  pugi::xml_node BodyProperties();
  std::vector<pugi::xml_node> Paragraphs() const;

  /// The properties of the runs of a stretch, which are cut at its ends and made where they are missing; for
  /// the whole text also those of the paragraphs' ends, which what is typed next takes over.
  std::vector<pugi::xml_node> EnsureRunProperties(std::size_t start, std::size_t length);
  /// The same to look at: nothing is cut or made, and a run without properties counts as a null node.
  std::vector<pugi::xml_node> RunProperties(std::size_t start, std::size_t length) const;

  struct Extent {
    double width = 0, height = 0;  ///< points
  };
  /// The room that the text takes, without the margins; lines break at `width` if it is given.
  Extent Measure(const Theme& theme, std::optional<double> width) const;

 private:
  pugi::xml_node Body() const;
  pugi::xml_node EnsureBody();

  pugi::xml_node object_;
};

/// How a run's properties set its text; where they say nothing, as Excel does.
TextFace FaceOf(pugi::xml_node runProperties, const Theme& theme);

}  // namespace plotsmith::xlsx

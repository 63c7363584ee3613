#include "xlsx/sheet/DrawingLink.h"

#include <algorithm>

#include "xlsx/package/XmlStream.h"

namespace plotsmith::xlsx {

std::optional<Relationship> FindDrawingLink(const Package& package, const std::string& sheet) {
  const auto& links = package.Relationships(sheet);
  const auto isDrawing = [](const Relationship& link) { return link.type == "drawing" && !link.external; };
  if (std::count_if(links.begin(), links.end(), isDrawing) < 2) {
    return package.FindRelationshipOfType(sheet, "drawing");
  }
  const auto source = package.Stream(sheet);
  XmlStream stream(*source);
  for (;;) {
    const XmlStream::Tag tag = stream.Next();
    if (tag.kind == XmlStream::Kind::kEndOfInput) return std::nullopt;
    if (tag.name != "drawing" || tag.kind == XmlStream::Kind::kEnd) continue;
    const auto link = package.FindRelationship(sheet, RelationshipIdIn(tag.attributes));
    return link && isDrawing(*link) ? link : std::nullopt;
  }
}

}  // namespace plotsmith::xlsx

#include "xlsx/book/BookTheme.h"

#include "xlsx/book/BookPart.h"
#include "xlsx/drawing/DefaultTheme.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {

bool BookTheme::HasPart() const { return package_.FindRelationshipOfType(book_.Name(), "theme").has_value(); }

const Theme& BookTheme::Get() {
  if (!theme_) {
    std::string part;
    try {
      if (const auto link = package_.FindRelationshipOfType(book_.Name(), "theme")) {
        part = package_.Read(link->target);
      }
    } catch (const PackageError&) {
      // An unreadable theme is replaced by Office's colours and fonts.
    }
    theme_.emplace(part);
  }
  return *theme_;
}

void BookTheme::EnsurePart() {
  if (HasPart()) return;
  const std::string part = package_.FreeName(book_.Folder() + "theme/theme", ".xml");
  package_.Add(part, content_type::kTheme, DefaultTheme(book_.Vocabulary()));
  package_.AddRelationship(book_.Name(), book_.Vocabulary().RelationshipType("theme"), part);
}

}  // namespace plotsmith::xlsx

#include "render/model/PictureSource.h"

#include <utility>

#include "xlsx/book/BookContext.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::render {

ImageSource ImagesOf(xlsx::BookContext& book, std::string part) {
  return [&book, part = std::move(part)](const std::string& relationship) -> std::string {
    try {
      const auto link = book.Package().FindRelationship(part, relationship);
      if (!link || link->external || !book.Package().Has(link->target)) return {};
      return book.Package().Read(link->target);
    } catch (const xlsx::PackageError&) {
      return {};  // The rest of the drawing is still drawn.
    }
  };
}

}  // namespace plotsmith::render

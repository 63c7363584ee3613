#pragma once

#include <functional>
#include <string>

namespace plotsmith::xlsx {
class BookContext;
}

namespace plotsmith::render {

/// The bytes of a picture that a part refers to by the id of a relationship; empty if it can't be had.
using ImageSource = std::function<std::string(const std::string& relationship)>;
/// The pictures of a part's relationships.
ImageSource ImagesOf(xlsx::BookContext& book, std::string part);

}  // namespace plotsmith::render

#pragma once

#include <functional>
#include <string>

namespace plotsmith::xlsx {
class BookContext;
}

namespace plotsmith::render {

/// Returns the bytes of a picture that a part refers to by the id of a relationship, or an empty text if it
/// can't be read.
using ImageSource = std::function<std::string(const std::string& relationship)>;
/// Returns the source of the pictures that a part refers to. The workbook must outlive it.
ImageSource ImagesOf(xlsx::BookContext& book, std::string part);

}  // namespace plotsmith::render

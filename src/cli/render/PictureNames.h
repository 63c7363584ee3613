#pragma once

#include <set>
#include <string>
#include <string_view>

namespace plotsmith::cli {

/// The names of the pictures of a workbook in a folder, without their endings. They begin with the workbook's
/// own name, so that the pictures of several workbooks can be in one folder.
class PictureNames {
 public:
  /// `book` is the path of the workbook.
  explicit PictureNames(const std::string& book);

  /// A name for the picture of what is called so. It holds nothing that a file system or a shell takes for
  /// something else, and is told from all names before, case aside.
  std::string NameFor(std::string_view what);

 private:
  std::string stem_;
  std::set<std::string> taken_;
};

}  // namespace plotsmith::cli

#pragma once

#include <set>
#include <string>
#include <string_view>

namespace plotsmith::cli {

/// Makes the names of a workbook's pictures in a folder, without extensions. They begin with the workbook's
/// name, so that pictures of several workbooks can be in one folder.
class PictureNames {
 public:
  /// Makes names for the workbook at path `book`.
  explicit PictureNames(const std::string& book);

  /// Returns a name for the picture of `what`. It contains only characters that are safe for file systems and
  /// shells, and differs from all earlier names, ignoring case.
  std::string NameFor(std::string_view what);

 private:
  std::string stem_;
  std::set<std::string> taken_;
};

}  // namespace plotsmith::cli

#pragma once

#include <string>

namespace plotsmith::xlsx {

class Package;
struct WorkbookKind;

/// The file formats in which a workbook can be saved. The extension of the file name decides.
class SaveFormat {
 public:
  /// The format of a new workbook, which has no file yet.
  SaveFormat() = default;
  /// The format of a workbook that was opened from a file with this name.
  explicit SaveFormat(const std::string& openedPath);

  /// Throws a PackageError if the workbook can't be saved in the format of `path`'s extension.
  void Check(const Package& package, const std::string& path) const;
  /// The format of `path`'s extension. Null if it is the format of the opened file, or none.
  const WorkbookKind* OtherKind(const std::string& path) const;

 private:
  std::string extension_;  ///< the extension of the opened file, in lower case
};

}  // namespace plotsmith::xlsx

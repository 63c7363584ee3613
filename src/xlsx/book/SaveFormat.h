#pragma once

#include <string>

namespace plotsmith::xlsx {

class Package;
struct WorkbookKind;

/// The kinds of file that a workbook can be saved as. The extension of the file's name decides.
class SaveFormat {
 public:
  /// A new workbook, which was opened from no file.
  SaveFormat() = default;
  /// A workbook that was opened from a file of this name.
  explicit SaveFormat(const std::string& openedPath);

  /// Throws a PackageError if the workbook can't be saved as the kind that the extension of `path` names.
  void Check(const Package& package, const std::string& path) const;
  /// The kind that the extension of `path` names. Null if it is the kind that was opened, or no kind.
  const WorkbookKind* OtherKind(const std::string& path) const;

 private:
  std::string extension_;  ///< of the file that was opened, in lower case
};

}  // namespace plotsmith::xlsx

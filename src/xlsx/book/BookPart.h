#pragma once

#include <pugixml.hpp>
#include <string>

#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/package/Namespaces.h"

namespace plotsmith::xlsx {

class Package;

/// The workbook part, which lists the sheets and the defined names and contains the settings of the workbook.
class BookPart {
 public:
  /// Finds and parses the part. Throws a PackageError if it is missing or can't be read.
  void Load(const Package& package);

  /// The name of the part in the package.
  const std::string& Name() const { return name_; }
  /// The part's folder, with its slash. New parts are put there.
  std::string Folder() const { return name_.substr(0, name_.rfind('/') + 1); }
  /// The `workbook` element.
  pugi::xml_node Root() const;

  /// Returns true for a Strict file, false for a Transitional one.
  bool IsStrict() const { return strict_; }
  /// The namespaces of the workbook's vocabulary.
  const Namespaces& Vocabulary() const { return strict_ ? kStrict : kTransitional; }
  /// The date system that the part selects.
  DateSystem Dates() const;

  /// Notes that the part must be written.
  void MarkChanged() { changed_ = true; }
  /// Returns true if the part was changed.
  bool Changed() const { return changed_; }
  /// Puts the part into the package if it was changed.
  void Write(Package& package);

 private:
  std::string name_;
  pugi::xml_document document_;
  bool strict_ = false;
  bool changed_ = false;
};

}  // namespace plotsmith::xlsx

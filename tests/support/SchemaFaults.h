#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "xlsx/package/Package.h"

namespace plotsmith::test {

/// The published schemas of Office Open XML and of packages. They are read once and used for many parts.
class Schemas {
 public:
  /// Returns true if the schemas are installed.
  static bool Present();
  Schemas();
  ~Schemas();

  /// Returns the schema errors of a part, each once; none if there is no schema for its content. The part is
  /// first processed like a reader of the standard does (ISO/IEC 29500-3): ignorable elements are removed,
  /// and alternatives are replaced by their fallback. Extensions are removed, because they may contain
  /// anything.
  std::set<std::string> Faults(const xlsx::Package& package, const std::string& part);
  /// Returns the schema errors of the parts that differ from the original workbook, without errors that the
  /// same part had there, one per line.
  std::string NewFaults(const xlsx::Package& before, const xlsx::Package& after);
  /// The number of parts that were checked.
  int Judged() const { return judged_; }

 private:
  struct Schema;
  std::vector<std::unique_ptr<Schema>> schemas_;
  int judged_ = 0;
};

/// Converts a workbook file from the transitional to the strict vocabulary.
void MakeStrict(const std::string& from, const std::string& to);

}  // namespace plotsmith::test

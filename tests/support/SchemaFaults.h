#pragma once

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "xlsx/package/Package.h"

namespace plotsmith::test {

/// The published schemas of Office Open XML and of packages, read once and used for many parts.
class Schemas {
 public:
  /// Whether the schemas are there at all.
  static bool Present();
  Schemas();
  ~Schemas();

  /// What in the part is not as its schema wants it, each sentence once; none for a part whose content has no
  /// schema here. Before that, the part is prepared as a reader of the standard does it (ISO/IEC 29500-3):
  /// what is ignorable goes, and of alternatives the fallback counts. Extensions, which may hold anything, go
  /// as well.
  std::set<std::string> Faults(const xlsx::Package& package, const std::string& part);
  /// Faults of the parts of a workbook that it doesn't share with the one it was made from, without those
  /// that the same part had there; a line each.
  std::string NewFaults(const xlsx::Package& before, const xlsx::Package& after);
  /// How many parts were judged.
  int Judged() const { return judged_; }

 private:
  struct Schema;
  std::vector<std::unique_ptr<Schema>> schemas_;
  int judged_ = 0;
};

/// Rewrites a workbook file of the transitional vocabulary in the strict one.
void MakeStrict(const std::string& from, const std::string& to);

}  // namespace plotsmith::test

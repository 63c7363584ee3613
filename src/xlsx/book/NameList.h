#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace plotsmith::xlsx {

class BookPart;
class RowShifts;

/// A defined name in the workbook part.
struct NameEntry {
  std::string name;                  ///< the name as the file spells it
  std::optional<std::size_t> sheet;  ///< the tab of the sheet that a local name belongs to, from 0
  std::string definition;            ///< the formula without "="
};

/// The defined names of a workbook, in the order of the workbook part.
class NameList {
 public:
  /// Makes an empty list. Load fills it.
  explicit NameList(BookPart& book) : book_(book) {}

  /// Reads the names of the workbook part.
  void Load();
  /// All names in the order of the workbook part.
  const std::vector<NameEntry>& All() const { return names_; }
  /// Increases with each change of a name.
  std::uint64_t Revision() const { return revision_; }
  /// Adds a name that belongs to the whole workbook.
  void Define(std::string name, std::string definition);
  /// Renumbers local names after the tabs from `position` (counted from 0) on have moved by `step`.
  void FollowTabs(std::size_t position, int step);
  /// Updates the definitions for rows that have moved since the last call.
  void FollowRows(RowShifts& shifts);

 private:
  BookPart& book_;
  std::vector<NameEntry> names_;
  std::uint64_t revision_ = 0;
  std::size_t followed_ = 0;  ///< the mark up to which the names have followed the row shifts
};

}  // namespace plotsmith::xlsx

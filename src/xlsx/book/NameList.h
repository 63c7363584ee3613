#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace plotsmith::xlsx {

class BookPart;
class RowShifts;

/// A defined name as the workbook part holds it.
struct NameEntry {
  std::string name;
  std::optional<std::size_t> sheet;  ///< the tab of the sheet that the name is local to, from 0
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
  /// Grows with each change of a name.
  std::uint64_t Revision() const { return revision_; }
  /// Adds a name that belongs to the whole workbook.
  void Define(std::string name, std::string definition);
  /// Renumbers local names after the tabs from `position` on, from 0, have moved by `step`.
  void FollowTabs(std::size_t position, int step);
  /// Brings the definitions up to date with rows that have moved since the last call.
  void FollowRows(RowShifts& shifts);

 private:
  BookPart& book_;
  std::vector<NameEntry> names_;
  std::uint64_t revision_ = 0;
  std::size_t followed_ = 0;  ///< the mark up to which the names have followed moved rows
};

}  // namespace plotsmith::xlsx

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Sheet.h"

namespace plotsmith::xlsx {

class BookPart;
class NameList;
class Workbook;
class Worksheet;
struct SheetEntry;

/// The sheets of a workbook in the order of their tabs, and the active sheet. Tabs count from 0.
class SheetList {
 public:
  /// Makes an empty list. Load fills it.
  SheetList(Workbook& book, BookPart& part, NameList& names) : book_(book), part_(part), names_(names) {}

  /// Reads the list of the workbook part. Throws a PackageError if the part of a sheet is missing or also
  /// belongs to another sheet.
  void Load();

  /// All sheets in the order of their tabs.
  const std::vector<std::shared_ptr<SheetEntry>>& All() const { return sheets_; }
  /// The sheets with cells.
  const std::vector<std::shared_ptr<Worksheet>>& Worksheets() const { return worksheets_; }
  /// The sheet with a name, ignoring case; null if there is none.
  std::shared_ptr<SheetEntry> Find(std::string_view name) const;

  /// Adds an empty worksheet at a tab and makes it the active one.
  std::shared_ptr<Worksheet> Add(std::size_t position);
  /// Removes a sheet. Raises error 1004 for a sheet that this program hasn't added.
  void Remove(const SheetEntry& sheet);
  /// Renames a sheet. Raises error 1004 for a name that is invalid or that another sheet has, and for a
  /// sheet that this program hasn't added.
  void Rename(SheetEntry& sheet, std::string_view name);
  /// Shows or hides a sheet. `visible` is a member of XlSheetVisibility.
  void SetVisible(SheetEntry& sheet, std::int32_t visible);

  /// The active sheet; null in a workbook without sheets.
  std::shared_ptr<SheetEntry> Active() const;
  /// Makes a sheet the active one. Raises error 1004 for a hidden sheet, unless it was active in the file.
  void Activate(const SheetEntry& sheet);
  /// The number of times that a sheet or a cell was activated. A window returns from another sheet to the
  /// active one when this number has increased.
  std::uint64_t Activations() const { return activations_; }
  /// Counts the activation of a cell.
  void CountActivation() { ++activations_; }

  /// Returns true if a sheet has changes that Write would put into the package.
  bool Changed() const;
  /// Puts the changed sheets into the package, including those whose formulas refer to rows that have moved.
  void Write();
  /// Writes the active and selected tab.
  void WriteActiveTab();

 private:
  void ListWorksheets();
  /// Returns the name that Excel would give to the next new sheet.
  std::string FreeName() const;
  /// Adds the element of a new sheet to the workbook part, with its name and its id.
  pugi::xml_node InsertElement(std::size_t position);
  std::size_t PositionOf(const SheetEntry& sheet) const;
  void RenumberTabs(std::size_t position, int step);

  Workbook& book_;
  BookPart& part_;
  NameList& names_;
  std::vector<std::shared_ptr<SheetEntry>> sheets_;
  std::vector<std::shared_ptr<Worksheet>> worksheets_;  ///< the sheets of sheets_ that have cells
  std::size_t active_ = 0;
  std::uint64_t activations_ = 0;
  std::shared_ptr<SheetEntry> opened_;  ///< the sheet that is active in the file
  std::size_t followed_ = 0;            ///< the mark up to which formulas have followed the row shifts
};

}  // namespace plotsmith::xlsx

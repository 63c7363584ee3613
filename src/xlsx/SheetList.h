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

/// The sheets of a workbook in the order of their tabs, and which of them is active. Tabs count from 0.
class SheetList {
 public:
  /// Makes an empty list. Load fills it.
  SheetList(Workbook& book, BookPart& part, NameList& names) : book_(book), part_(part), names_(names) {}

  /// Reads the list of the workbook part. Throws a PackageError if the part of a sheet is missing, or belongs
  /// to another sheet as well.
  void Load();

  /// All sheets in the order of their tabs.
  const std::vector<std::shared_ptr<SheetEntry>>& All() const { return sheets_; }
  /// The sheets that have cells.
  const std::vector<std::shared_ptr<Worksheet>>& Worksheets() const { return worksheets_; }
  /// The sheet of a name, ignoring case; null if there is none.
  std::shared_ptr<SheetEntry> Find(std::string_view name) const;

  /// Adds an empty worksheet at a tab and makes it the active one.
  std::shared_ptr<Worksheet> Add(std::size_t position);
  /// Error 1004 for a sheet that this program didn't make.
  void Remove(const SheetEntry& sheet);
  /// Error 1004 for a name that Excel doesn't allow or that another sheet has, and for a sheet that this
  /// program didn't make.
  void Rename(SheetEntry& sheet, std::string_view name);
  /// `visible` is a member of XlSheetVisibility.
  void SetVisible(SheetEntry& sheet, std::int32_t visible);

  /// The active sheet; null in a workbook without sheets.
  std::shared_ptr<SheetEntry> Active() const;
  /// Error 1004 for a hidden sheet, unless the workbook was opened with it in front.
  void Activate(const SheetEntry& sheet);
  /// The number of times that a sheet or a cell was made the active one. A window in which the user has
  /// turned to another sheet returns to the active one when this number has grown.
  std::uint64_t Activations() const { return activations_; }
  /// Counts the activation of a cell.
  void CountActivation() { ++activations_; }

  /// Whether a sheet has changes that Write would put into the package.
  bool Changed() const;
  /// Puts the sheets that were changed into the package, and those whose formulas point at rows that have
  /// moved.
  void Write();
  /// Writes which tab is active and selected.
  void WriteActiveTab();

 private:
  void ListWorksheets();
  /// A name that Excel would give to the next new sheet.
  std::string FreeName() const;
  /// Adds the element of a new sheet to the workbook part, with its name and its id.
  pugi::xml_node InsertElement(std::size_t position);
  std::size_t PositionOf(const SheetEntry& sheet) const;
  void RenumberTabs(std::size_t position, int step);

  Workbook& book_;
  BookPart& part_;
  NameList& names_;
  std::vector<std::shared_ptr<SheetEntry>> sheets_;
  std::vector<std::shared_ptr<Worksheet>> worksheets_;  ///< of sheets_
  std::size_t active_ = 0;
  std::uint64_t activations_ = 0;
  std::shared_ptr<SheetEntry> opened_;  ///< the sheet that is active in the file
  std::size_t followed_ = 0;            ///< the mark up to which formulas have followed moved rows
};

}  // namespace plotsmith::xlsx

#pragma once

#include <cstdint>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <utility>

#include "host/excel/Sheet.h"
#include "xlsx/Workbook.h"
#include "xlsx/base/Journal.h"

namespace plotsmith::xlsx {

/// A sheet in the list of the workbook part.
struct SheetEntry {
  std::string name;     ///< The name on its tab.
  std::string part;     ///< The name of its part in the package.
  pugi::xml_node node;  ///< The element `sheet` in the workbook part.
  /// The sheet for the port. `worksheet` is the same object if the sheet has cells, and null otherwise.
  ///@{
  std::shared_ptr<excel::Sheet> object;
  std::shared_ptr<Worksheet> worksheet;
  ///@}
};

/// The members of all kinds of sheets, for the port's class `Base`. Changes are written to the journal. All
/// members raise error 1004 if the sheet was deleted.
template <class Base>
class SheetMembers : public Base {
 public:
  /// Makes the port's object for an entry of the sheet list.
  SheetMembers(Workbook& book, std::weak_ptr<SheetEntry> entry) : book_(book), entry_(std::move(entry)) {}

  /// The name on the tab.
  std::string Name() override { return Entry().name; }
  /// Renames a sheet that was added since the file was opened. Raises error 1004 for other sheets, and if the
  /// name is invalid or taken.
  void SetName(std::string_view name) override {
    book_.Journal().Put(Path(), "Name", name);
    book_.Tabs().Rename(Entry(), name);
  }
  /// A value of XlSheetVisibility.
  std::int32_t Visible() override {
    const std::string_view state = Entry().node.attribute("state").value();
    if (state == "veryHidden") return excel::xlSheetVeryHidden;
    return state == "hidden" ? excel::xlSheetHidden : excel::xlSheetVisible;
  }
  /// Shows or hides the sheet. `value` is of XlSheetVisibility.
  void SetVisible(std::int32_t value) override {
    book_.Journal().Put(Path(), "Visible", value);
    book_.Tabs().SetVisible(Entry(), value);
  }
  /// Makes the sheet the active one. Raises error 1004 if it is hidden, unless it was active in the file.
  void Activate() override {
    book_.Journal().Call(Path(), "Activate");
    book_.Tabs().Activate(Entry());
  }
  /// Deletes a sheet that was added since the file was opened. Raises error 1004 for other sheets.
  void Delete() override {
    book_.Journal().Call(Path(), "Delete");
    book_.Tabs().Remove(Entry());
  }

 protected:
  /// Returns the entry. Raises error 1004 if the sheet was deleted.
  SheetEntry& Entry() const {
    const auto entry = entry_.lock();
    if (!entry) throw runtime::RuntimeError(runtime::error::kApplication);  // the sheet was deleted
    return *entry;
  }
  /// Returns a function that gives the sheet's path in the journal.
  auto Path() const {
    return [this] { return "Sheets(" + xlsx::Journal::Literal(Entry().name) + ")"; };
  }

  /// The workbook, which outlives its sheets.
  Workbook& book_;
  /// The entry of the sheet list. It has expired if the sheet was deleted.
  std::weak_ptr<SheetEntry> entry_;
};

}  // namespace plotsmith::xlsx

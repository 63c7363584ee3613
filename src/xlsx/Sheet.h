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
  std::shared_ptr<excel::Sheet> object;
  std::shared_ptr<Worksheet> worksheet;
};

/// The members of all kinds of sheets, for the port's class `Base`.
template <class Base>
class SheetMembers : public Base {
 public:
  /// Makes the port's object for an entry of the sheet list.
  SheetMembers(Workbook& book, std::weak_ptr<SheetEntry> entry) : book_(book), entry_(std::move(entry)) {}

  std::string Name() override { return Entry().name; }
  void SetName(std::string_view name) override {
    book_.Journal().Put(Path(), "Name", name);
    book_.Tabs().Rename(Entry(), name);
  }
  std::int32_t Visible() override {
    const std::string_view state = Entry().node.attribute("state").value();
    if (state == "veryHidden") return excel::xlSheetVeryHidden;
    return state == "hidden" ? excel::xlSheetHidden : excel::xlSheetVisible;
  }
  void SetVisible(std::int32_t value) override {
    book_.Journal().Put(Path(), "Visible", value);
    book_.Tabs().SetVisible(Entry(), value);
  }
  void Activate() override {
    book_.Journal().Call(Path(), "Activate");
    book_.Tabs().Activate(Entry());
  }
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

  Workbook& book_;
  std::weak_ptr<SheetEntry> entry_;
};

}  // namespace plotsmith::xlsx

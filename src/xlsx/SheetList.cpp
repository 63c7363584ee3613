#include "xlsx/SheetList.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "runtime/Strings.h"
#include "xlsx/Sheet.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Errors.h"
#include "xlsx/base/Limits.h"
#include "xlsx/book/BookPart.h"
#include "xlsx/book/NameList.h"
#include "xlsx/chart/part/ChartParts.h"
#include "xlsx/package/FreeNumber.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/SelectedTab.h"
#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::xlsx {
namespace {

/// A sheet without cells: a chart sheet, a dialog sheet or a macro sheet.
class OtherSheet final : public SheetMembers<excel::Sheet> {
 public:
  using SheetMembers::SheetMembers;
};

/// Returns the XML of an empty sheet. It contains Excel's default row height, because the defaults of other
/// programs differ and would change the height of charts.
std::string EmptySheet(bool strict) {
  return std::string(kXmlDeclaration) + "<worksheet xmlns=\"" +
         std::string((strict ? kStrict : kTransitional).main) +
         "\"><dimension ref=\"A1\"/><sheetFormatPr defaultRowHeight=\"" + xml::Number(kDefaultRowHeight) +
         "\"/><sheetData/></worksheet>";
}

/// Returns true if a sheet can have the name by Excel's rules.
bool IsSheetName(std::string_view name) {
  return !name.empty() && runtime::Len(name) <= limits::kSheetName &&
         name.find_first_of("[]:*?/\\") == std::string_view::npos && !name.starts_with('\'') &&
         !name.ends_with('\'') && !runtime::EqualsIgnoreCase(name, "History");
}

}  // namespace

void SheetList::Load() {
  std::map<std::string_view, const Relationship*> links;
  for (const Relationship& link : book_.Package().Relationships(part_.Name())) links.emplace(link.id, &link);
  std::map<std::string_view, std::string_view> owners;  // the names of sheets, by part
  for (const pugi::xml_node& node : xml::Children(xml::Child(part_.Root(), "sheets"), "sheet")) {
    auto entry = std::make_shared<SheetEntry>();
    entry->name = xml::Attribute(node, "name");
    entry->node = node;
    const auto found = links.find(xml::RelationshipId(node));
    if (found == links.end() || !book_.Package().Has(found->second->target)) {
      throw PackageError("the part of its sheet " + entry->name + " is missing");
    }
    const Relationship& link = *found->second;
    const auto [owner, free] = owners.emplace(link.target, entry->name);
    if (!free) {
      throw PackageError("its sheets " + std::string(owner->second) + " and " + entry->name +
                         " share one part");
    }
    entry->part = link.target;
    if (link.type == "worksheet") {
      entry->worksheet = std::make_shared<Worksheet>(book_, entry, false);
      entry->object = entry->worksheet;
    } else {
      entry->object = std::make_shared<OtherSheet>(book_, entry);
    }
    sheets_.push_back(std::move(entry));
  }
  ListWorksheets();
  const auto view = xml::Child(part_.Root(), "bookViews", "workbookView");
  const auto active = xml::IntegerAttribute(view, "activeTab", 0);
  if (active >= 0 && active < static_cast<long long>(sheets_.size()))
    active_ = static_cast<std::size_t>(active);
  if (!sheets_.empty()) opened_ = sheets_[active_];
}

void SheetList::ListWorksheets() {
  worksheets_.clear();
  for (const auto& sheet : sheets_) {
    if (sheet->worksheet) worksheets_.push_back(sheet->worksheet);
  }
}

std::shared_ptr<SheetEntry> SheetList::Find(std::string_view name) const {
  for (const auto& sheet : sheets_) {
    if (runtime::EqualsIgnoreCase(sheet->name, name)) return sheet;
  }
  return nullptr;
}

std::size_t SheetList::PositionOf(const SheetEntry& sheet) const {
  const auto found =
      std::find_if(sheets_.begin(), sheets_.end(), [&](const auto& entry) { return entry.get() == &sheet; });
  return static_cast<std::size_t>(found - sheets_.begin());
}

std::string SheetList::FreeName() const {
  std::set<std::string> names;
  for (const auto& sheet : sheets_) names.insert(runtime::UCase(sheet->name));
  std::string name = "Sheet1";
  for (int n = 2; names.contains(runtime::UCase(name)); ++n) name = "Sheet" + std::to_string(n);
  return name;
}

pugi::xml_node SheetList::InsertElement(std::size_t position) {
  std::set<long long> ids;
  for (const auto& sheet : sheets_) ids.insert(xml::IntegerAttribute(sheet->node, "sheetId", 0));
  pugi::xml_node list = xml::Child(part_.Root(), "sheets");
  const std::string tag = std::string(xml::Prefix(part_.Root().name())) + "sheet";
  pugi::xml_node element = position < sheets_.size()
                               ? list.insert_child_before(tag.c_str(), sheets_[position]->node)
                               : list.append_child(tag.c_str());
  const std::string name = FreeName();
  xml::SetAttribute(element, "name", name);
  xml::SetAttribute(element, "sheetId", std::to_string(FreeNumber(ids, 1, limits::kSheetId)));
  return element;
}

std::shared_ptr<Worksheet> SheetList::Add(std::size_t position) {
  Package& package = book_.Package();
  const Namespaces& names = book_.Vocabulary();
  const std::string part = package.FreeName(book_.Folder() + "worksheets/sheet", ".xml");
  package.Add(part, content_type::kWorksheet, EmptySheet(book_.IsStrict()));
  const std::string link = package.AddRelationship(part_.Name(), names.RelationshipType("worksheet"), part);

  auto entry = std::make_shared<SheetEntry>();
  entry->node = InsertElement(position);
  const std::string attribute = xml::EnsurePrefix(part_.Root(), names.relationships, "r") + "id";
  xml::SetAttribute(entry->node, attribute.c_str(), link);
  entry->name = xml::Attribute(entry->node, "name");
  entry->part = part;
  entry->worksheet = std::make_shared<Worksheet>(book_, entry, true);
  entry->object = entry->worksheet;
  sheets_.insert(sheets_.begin() + static_cast<std::ptrdiff_t>(position), entry);
  ListWorksheets();
  RenumberTabs(position, 1);
  active_ = position;
  CountActivation();
  part_.MarkChanged();
  return entry->worksheet;
}

void SheetList::Remove(const SheetEntry& sheet) {
  if (!sheet.worksheet || !sheet.worksheet->IsNew()) {
    throw Refusal("The sheets of users can't be deleted.");
  }
  const std::size_t position = PositionOf(sheet);
  pugi::xml_node node = sheet.node;
  book_.Charts().RemoveRelationship(part_.Name(), xml::RelationshipId(node));
  node.parent().remove_child(node);
  sheets_.erase(sheets_.begin() + static_cast<std::ptrdiff_t>(position));
  ListWorksheets();
  RenumberTabs(position, -1);
  if (active_ >= position && active_ > 0) --active_;
  part_.MarkChanged();
}

/// Updates local names and the views of the workbook, which refer to a sheet by its tab, after the tabs from
/// `position` on have moved by `step`.
void SheetList::RenumberTabs(std::size_t position, int step) {
  names_.FollowTabs(position, step);
  for (const pugi::xml_node& view : xml::Children(xml::Child(part_.Root(), "bookViews"), "workbookView")) {
    for (const char* tab : {"activeTab", "firstSheet"}) {
      // A tab after the last sheet counts as the one directly after it.
      const auto at = std::min(xml::IntegerAttribute(view, tab, -1), static_cast<long long>(sheets_.size()));
      if (at < static_cast<long long>(position)) continue;
      xml::SetAttribute(view, tab, std::to_string(std::max(at + step, 0LL)));
    }
  }
}

void SheetList::Rename(SheetEntry& sheet, std::string_view name) {
  const auto other = Find(name);
  if (!IsSheetName(name)) {
    throw Refusal("You typed an invalid name for a sheet or chart.");
  }
  if (other && other.get() != &sheet) {
    throw Refusal("That name is already taken. Try a different one.");
  }
  if (!sheet.worksheet || !sheet.worksheet->IsNew()) {
    throw Refusal("The sheets of users can't be renamed.");
  }
  sheet.name = name;
  xml::SetAttribute(sheet.node, "name", name);
  part_.MarkChanged();
}

void SheetList::SetVisible(SheetEntry& sheet, std::int32_t visible) {
  if (visible == excel::xlSheetVisible) {
    sheet.node.remove_attribute("state");
  } else {
    xml::SetAttribute(sheet.node, "state", visible == excel::xlSheetVeryHidden ? "veryHidden" : "hidden");
  }
  part_.MarkChanged();
}

void SheetList::Activate(const SheetEntry& sheet) {
  const std::size_t position = PositionOf(sheet);
  if (position >= sheets_.size()) return;
  // Excel can't activate a hidden sheet. However, the active sheet of a file may be hidden. That sheet can be
  // activated again.
  const bool isHidden = sheet.object->Visible() != excel::xlSheetVisible;
  if (isHidden && sheets_[position] != opened_) {
    throw Refusal("Activate method of Worksheet class failed");
  }
  active_ = position;
  CountActivation();
}

std::shared_ptr<SheetEntry> SheetList::Active() const {
  return active_ < sheets_.size() ? sheets_[active_] : nullptr;
}

bool SheetList::Changed() const {
  return std::any_of(worksheets_.begin(), worksheets_.end(),
                     [](const auto& sheet) { return sheet->NeedsWriting(); });
}

void SheetList::Write() {
  for (const auto& sheet : worksheets_) sheet->Write();
  RowShifts& shifts = book_.Shifts();
  if (!shifts.AnyAfter(followed_)) return;
  for (const auto& sheet : worksheets_) sheet->FollowShifts(followed_);
  followed_ = shifts.Mark();
}

void SheetList::WriteActiveTab() {
  std::size_t shown = active_;
  if (active_ < sheets_.size() && sheets_[active_] != opened_) {
    std::vector<std::string> parts;
    for (const auto& sheet : sheets_) parts.push_back(sheet->part);
    if (SelectOnlyTab(book_.Package(), parts, sheets_[active_]->part)) {
      opened_ = sheets_[active_];
    } else if (const std::size_t before = PositionOf(*opened_); before < sheets_.size()) {
      shown = before;  // Another tab would make a group with the selected ones.
    }
  }
  const auto active = static_cast<long long>(shown);
  pugi::xml_node view = xml::Child(part_.Root(), "bookViews", "workbookView");
  if (xml::IntegerAttribute(view, "activeTab", 0) == active) return;
  if (!view) {
    const std::string prefix(xml::Prefix(part_.Root().name()));
    pugi::xml_node views = xml::Child(part_.Root(), "bookViews");
    if (!views)
      views = part_.Root().insert_child_before((prefix + "bookViews").c_str(),
                                               xml::Child(part_.Root(), "sheets"));
    view = views.append_child((prefix + "workbookView").c_str());
  }
  xml::SetAttribute(view, "activeTab", std::to_string(active));
  part_.MarkChanged();
}

}  // namespace plotsmith::xlsx

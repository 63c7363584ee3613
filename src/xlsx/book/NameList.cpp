#include "xlsx/book/NameList.h"

#include <array>
#include <pugixml.hpp>
#include <string_view>
#include <utility>

#include "xlsx/book/BookPart.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/RowShifts.h"

namespace plotsmith::xlsx {
namespace {

std::vector<pugi::xml_node> NameNodes(const BookPart& book) {
  return xml::Children(xml::Child(book.Root(), "definedNames"), "definedName");
}

}  // namespace

void NameList::Load() {
  for (const pugi::xml_node& node : NameNodes(book_)) {
    NameEntry entry{xml::Attribute(node, "name"), std::nullopt, xml::Text(node)};
    const auto local = xml::IntegerAttribute(node, "localSheetId", -1);
    if (local >= 0) entry.sheet = static_cast<std::size_t>(local);
    names_.push_back(std::move(entry));
  }
}

void NameList::Define(std::string name, std::string definition) {
  // The elements of CT_Workbook from the names on, in their order.
  static constexpr std::array<std::string_view, 11> kOrder = {
      "definedNames",  "calcPr",        "oleSize",        "customWorkbookViews", "pivotCaches", "smartTagPr",
      "smartTagTypes", "webPublishing", "fileRecoveryPr", "webPublishObjects",   "extLst"};
  pugi::xml_node list = xml::EnsureInOrder(book_.Root(), "definedNames", kOrder);
  pugi::xml_node node = xml::AppendChild(list, "definedName");
  xml::SetAttribute(node, "name", name);
  xml::SetText(node, definition);
  names_.push_back({std::move(name), std::nullopt, std::move(definition)});
  ++revision_;
  book_.MarkChanged();
}

void NameList::FollowTabs(std::size_t position, int step) {
  const auto nodes = NameNodes(book_);
  for (std::size_t i = 0; i < names_.size(); ++i) {
    auto& tab = names_[i].sheet;
    if (!tab || *tab < position) continue;
    tab = *tab + static_cast<std::size_t>(step);
    xml::SetAttribute(nodes[i], "localSheetId", std::to_string(*tab));
  }
  ++revision_;
}

void NameList::FollowRows(RowShifts& shifts) {
  if (!shifts.AnyAfter(followed_)) return;
  const auto nodes = NameNodes(book_);
  for (std::size_t i = 0; i < names_.size(); ++i) {
    const auto moved = shifts.Follow(names_[i].definition, "", followed_);
    if (!moved) continue;
    names_[i].definition = *moved;
    xml::SetText(nodes[i], *moved);
    ++revision_;
    book_.MarkChanged();
  }
  followed_ = shifts.Mark();
}

}  // namespace plotsmith::xlsx

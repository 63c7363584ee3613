#include "cli/check/ChartMarkers.h"

#include <set>

#include "cli/check/Words.h"
#include "host/excel/Constants.h"
#include "runtime/Strings.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::cli {
namespace {

/// Returns the alternative texts of the charts in a group and its nested groups.
std::vector<std::string> TextsInGroup(pugi::xml_node group) {
  struct Walker : pugi::xml_tree_walker {
    std::vector<std::string> texts;
    bool for_each(pugi::xml_node& node) override {
      if (xlsx::ChartLinkOf(node)) texts.push_back(xlsx::xml::Attribute(xlsx::IdentityOf(node), "descr"));
      return true;
    }
  } walker;
  group.traverse(walker);
  return walker.texts;
}

}  // namespace

bool ChartMarkers::ReadNextSheet() {
  const auto& sheets = book_.Tabs().Worksheets();
  if (sheetsRead_ >= sheets.size()) return false;
  xlsx::Worksheet& sheet = *sheets[sheetsRead_++];
  const xlsx::SheetDrawing* const drawing = sheet.FindDrawing();
  if (drawing == nullptr) return true;
  std::set<std::string> names;
  for (const auto& shape : drawing->Shapes()) {
    if (shape->Type() == excel::msoChart) {
      const bool hasOwnName = names.insert(runtime::UCase(shape->Name())).second;
      const std::string text = shape->AlternativeText();
      if (text.empty()) {
        ++unmarked_;
        continue;
      }
      const auto [first, isNew] =
          charts_.try_emplace(text, MarkedChart{sheet.SheetName(), shape, !hasOwnName});
      if (!isNew) first->second.others.push_back(sheet.SheetName());
    } else if (shape->Type() == excel::msoGroup) {
      for (const std::string& text : TextsInGroup(shape->Object())) grouped_.emplace(text, sheet.SheetName());
    }
  }
  return true;
}

void ChartMarkers::ReadAll() {
  while (ReadNextSheet()) {
  }
}

const ChartMarkers::MarkedChart* ChartMarkers::Find(const std::string& id) {
  auto found = charts_.find(id);
  while (found == charts_.end() && ReadNextSheet()) found = charts_.find(id);
  return found == charts_.end() ? nullptr : &found->second;
}

std::shared_ptr<xlsx::SheetShape> ChartMarkers::ShapeOf(const std::string& id) {
  const MarkedChart* const found = Find(id);
  return found == nullptr ? nullptr : found->shape;
}

std::string ChartMarkers::SheetOf(const std::string& id) {
  const MarkedChart* const found = Find(id);
  return found == nullptr ? lost_.SheetOf(id) : found->sheet;
}

bool ChartMarkers::IsHiddenByName(const std::string& id) {
  const MarkedChart* const found = Find(id);
  return found != nullptr && found->isHiddenByName;
}

bool ChartMarkers::IsGrouped(const std::string& id) {
  ReadAll();
  return grouped_.contains(id);
}

std::map<std::string, std::vector<std::string>> ChartMarkers::SheetsByText() {
  ReadAll();
  std::map<std::string, std::vector<std::string>> sheets;
  for (const auto& [text, chart] : charts_) {
    std::vector<std::string>& list = sheets[text];
    list = chart.others;
    list.insert(list.begin(), chart.sheet);
  }
  return sheets;
}

std::string ChartMarkers::Absence(const std::string& id) {
  ReadAll();
  if (const auto group = grouped_.find(id); group != grouped_.end()) {
    return "The chart with the alternative text " + Quoted(id) + " is in a group of shapes on the sheet " +
           Quoted(group->second) + ", where it isn't found; ungroup it.";
  }
  std::vector<std::string> others;
  for (const auto& [text, chart] : charts_) others.push_back(Quoted(text));
  std::vector<std::string> charts;
  if (!others.empty())
    charts.push_back((others.size() == 1 ? "a chart with " : "charts with ") + Listed(others));
  if (unmarked_ > 0) charts.push_back(Counted(unmarked_, "chart") + " without any");
  const std::string start = "No chart has the alternative text " + Quoted(id) + "; ";
  if (charts.empty()) return start + "there are no charts.";
  return start + (others.size() + unmarked_ == 1 ? "there is " : "there are ") + Listed(charts) + ".";
}

}  // namespace plotsmith::cli

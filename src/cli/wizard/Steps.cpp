#include "cli/wizard/Steps.h"

#include <algorithm>
#include <utility>

#include "cli/check/ColumnCells.h"
#include "cli/check/Words.h"
#include "cli/wizard/LayoutControls.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/TextBox.h"
#include "forms/script/ScriptError.h"
#include "forms/script/ScriptLine.h"
#include "host/excel/Excel.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

using forms::ScriptError;
using forms::WordFor;

/// Throws ScriptError if the control of an option can't be used at present.
void CheckUsable(const forms::Control& control, const std::string& option) {
  const std::string obstacle = control.Obstacle();
  if (obstacle.empty()) return;
  if (const char* need = NeedOf(control.FullName())) throw ScriptError(option + " needs " + need);
  throw ScriptError(option + " can't be used with this layout: " + control.FullName() + " " + obstacle);
}

std::vector<std::string> EntriesOf(const forms::EntryList& list) {
  std::vector<std::string> entries;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) entries.push_back(list.List(i));
  return entries;
}

/// Returns the cell that makes a column a label column, as the end of a sentence; "" if only dates do.
std::string WhyLabel(const dom::IXMLDOMElement& table, const dom::IXMLDOMElement& column) {
  const TableArea area(table);
  const std::int32_t number = GetAttributeLong(column, "worksheet-column-number");
  const ColumnCells cells(*oWorkbook->Worksheets()->Item(area.sheet), area, number);
  if (cells.LabelRow() == 0) return {};
  return ", since " + CellText(area.sheet, cells.LabelRow(), number) + " holds " + cells.LabelCell();
}

/// Returns the message for a column that exists but has the other kind.
std::string OtherKindOf(const std::string& text) {
  if (!colTables || !CollectionHasKey(sTableID, colTables)) return {};
  const auto table = colTables->Item(sTableID).selectSingleNode("table");
  for (const auto& column : table.childElements()) {
    if (GetAttributeText(column, "name") != text) continue;
    if (column.tagName() != "label-column") return "; " + Quoted(text) + " is a number column";
    return "; " + Quoted(text) + " is a label column" + WhyLabel(table, column);
  }
  return {};
}

/// Returns the entry with the text, or one that differs only in case.
std::string EntryOf(const forms::EntryList& list, const std::string& text, const char* option,
                    const char* kind) {
  const auto entries = EntriesOf(list);
  if (std::find(entries.begin(), entries.end(), text) != entries.end()) return text;
  const auto found = std::find_if(entries.begin(), entries.end(), [&](const std::string& entry) {
    return runtime::EqualsIgnoreCase(entry, text);
  });
  if (found != entries.end()) return *found;
  throw ScriptError(std::string("no ") + kind + " " + Quoted(text) + " for " + option + "; " +
                    ThereAre(entries) + OtherKindOf(text));
}

std::vector<std::string> SelectedOf(const forms::ListBox& list) {
  std::vector<std::string> entries;
  for (std::int32_t i = 0; i < list.ListCount(); ++i) {
    if (list.Selected(i)) entries.push_back(list.List(i));
  }
  return entries;
}

bool HasSame(std::vector<std::string> a, std::vector<std::string> b) {
  std::sort(a.begin(), a.end());
  std::sort(b.begin(), b.end());
  return a == b;
}

std::vector<std::string> RowsOf(const forms::VSFlexGrid& grid) {
  std::vector<std::string> rows;
  for (std::int32_t row = grid.FixedRows(); row < grid.Rows(); ++row) rows.push_back(grid.TextMatrix(row, 0));
  return rows;
}

/// Returns the word that selects an item: its text, or its number if the text is ambiguous.
std::string WordForItem(const std::vector<std::string>& items, std::int32_t index) {
  const std::string& text = items[static_cast<std::size_t>(index)];
  if (std::count(items.begin(), items.end(), text) > 1 || text.starts_with('#')) {
    return "#" + std::to_string(index + 1);
  }
  return WordFor(text);
}

}  // namespace

Step PressStep(const char* button) {
  return [button](const forms::Form&) { return std::string("press ") + button; };
}

Step TypeStep(const char* control, std::string text, const char* option) {
  return [control, text = std::move(text), option](const forms::Form& page) {
    CheckUsable(*page.FindControl(control), option);
    const forms::Control* const target = page.FindControl(control);
    const auto* box = dynamic_cast<const forms::TextBox*>(target);
    const std::string obstacle = box != nullptr
                                     ? box->ObstacleTo(text)
                                     : dynamic_cast<const forms::ComboBox&>(*target).ObstacleTo(text);
    if (!obstacle.empty()) throw ScriptError(std::string(option) + " " + obstacle);
    return std::string("type ") + control + " " + WordFor(text);
  };
}

Step FittingTextStep(const char* control, std::string text) {
  return [control, text = std::move(text)](const forms::Form& page) {
    const std::size_t limit = ControlOn<forms::TextBox>(page, control).Limit();
    const std::string line = OneLine(forms::WithLineEnds(text, "\n"));
    const std::string_view fitting = limit > 0 ? runtime::Left(line, limit) : line;
    return std::string("type ") + control + " " + WordFor(fitting);
  };
}

Step OptionStep(std::string control, std::string option) {
  return [control = std::move(control),
          option = std::move(option)](const forms::Form& page) -> std::optional<std::string> {
    const auto& button = ControlOn<forms::OptionButton>(page, control);
    if (button.Value()) return std::nullopt;
    CheckUsable(button, option);
    return "choose " + control;
  };
}

Step TickStep(const char* control, bool checked, std::string option) {
  return
      [control, checked, option = std::move(option)](const forms::Form& page) -> std::optional<std::string> {
        const auto& box = ControlOn<forms::CheckBox>(page, control);
        if ((box.Value() == forms::CheckBox::kChecked) == checked) return std::nullopt;
        CheckUsable(box, option);
        return std::string(checked ? "check " : "uncheck ") + control;
      };
}

Step EntriesStep(const char* control, std::vector<std::string> texts, const char* option, const char* kind) {
  return [control, texts = std::move(texts), option,
          kind](const forms::Form& page) -> std::optional<std::string> {
    const auto& list = ControlOn<forms::EntryList>(page, control);
    CheckUsable(list, option);
    std::vector<std::string> entries;
    for (const std::string& text : texts) entries.push_back(EntryOf(list, text, option, kind));
    const auto* open = dynamic_cast<const forms::ListBox*>(&list);
    const auto current = open != nullptr ? SelectedOf(*open) : std::vector{list.List(list.ListIndex())};
    if (HasSame(entries, current)) return std::nullopt;
    std::string line = std::string(open != nullptr ? "select " : "choose ") + control;
    for (const std::string& entry : entries) line += " " + WordFor(entry);
    return line;
  };
}

Step EntryStep(const char* control, std::int32_t index, const char* option) {
  return [control, index, option](const forms::Form& page) -> std::optional<std::string> {
    const auto& combo = ControlOn<forms::ComboBox>(page, control);
    if (combo.ListIndex() == index) return std::nullopt;
    CheckUsable(combo, option);
    return std::string("choose ") + control + " " + WordForItem(EntriesOf(combo), index);
  };
}

Step RowsStep(const char* grid, std::vector<std::int32_t> rows) {
  return [grid, rows = std::move(rows)](const forms::Form& page) {
    const auto& shown = ControlOn<forms::VSFlexGrid>(page, grid);
    std::string line = std::string("select ") + grid;
    const std::vector<std::string> items = RowsOf(shown);
    for (const std::int32_t row : rows) line += " " + WordForItem(items, row - shown.FixedRows());
    return line;
  };
}

}  // namespace plotsmith::cli

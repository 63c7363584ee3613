// Performs random actions on the wizard's pages with random tables.

#include "fuzz/Wizard.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/ModalLoop.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"
#include "fuzz/TemporaryBook.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "xlsx/Application.h"
#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::fuzz {
namespace {

constexpr int kMostGestures = 300;

/// The choices in the input, one byte each. They are zero when the input is used up.
class Choices {
 public:
  Choices(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  bool AtEnd() const { return at_ >= size_; }
  std::size_t Below(std::size_t count) { return AtEnd() || count == 0 ? 0 : data_[at_++] % count; }
  template <class List>
  auto OneOf(const List& list) {
    return list[Below(std::size(list))];
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

constexpr const char* kHeadings[] = {
    "Region", "Product", "Amount", "AMOUNT", "[none]",      "A & <B>", "#3", "1", "[all the same size]",
    "x\ny",   "Größe",   "=1+1",   " ",      "\xE2\x80\xA8"};
constexpr const char* kLabels[] = {"East", "West", "east", "", "1", "=x", "[none]", "A & B"};
constexpr double kNumbers[] = {0, 1, -5, 7.5, 1e9, 1e300, -1e-9};
constexpr const char* kTexts[] = {
    "",       "Sales",  " two  words ", "0.00", "[[", "VEX_Chart1", "a\nb\r\nc", "Data1",
    "x]:*/y", "&<>\"'", "Chart1",       "\x01", "'",  "General;;",  "ß",         "#,##0"};

/// Writes a table from row `top`: headings, then rows of labels and numbers.
void FillTable(xlsx::Worksheet& sheet, std::int32_t top, Choices& choices) {
  const auto columns = static_cast<std::int32_t>(1 + choices.Below(6));
  const auto rows = static_cast<std::int32_t>(choices.Below(6));
  for (std::int32_t column = 1; column <= columns; ++column) {
    sheet.SetCellValueAt(top, column, std::string("'") + choices.OneOf(kHeadings));
    const bool numbers = choices.Below(2) == 0;
    for (std::int32_t row = top + 1; row <= top + rows; ++row) {
      if (numbers) {
        sheet.SetCellValueAt(row, column, choices.OneOf(kNumbers));
      } else {
        sheet.SetCellValueAt(row, column, std::string("'") + choices.OneOf(kLabels));
      }
    }
  }
}

/// Fills a sheet with data, and possibly range tables, which can be bucket tables.
void FillBook(xlsx::Workbook& book, Choices& choices) {
  const auto data = book.Tabs().All()[0]->worksheet;
  data->SetName("Data1");
  FillTable(*data, 1, choices);
  const std::size_t ranges = choices.Below(3);
  for (std::size_t i = 0; i < ranges; ++i) {
    const auto sheet = book.Tabs().Add(book.Tabs().All().size());
    sheet->SetCellValueAt(1, 1, choices.OneOf(kLabels));
    FillTable(*sheet, 3, choices);
    book.DefinedNames().Define("VEX_SB" + std::to_string(i),
                               sheet->SheetName() + "!$A$1:$B$" + std::to_string(3 + choices.Below(6)));
  }
}

/// The simulated user. The input decides the actions on the front page.
class RandomHand final : public forms::View {
 public:
  explicit RandomHand(Choices& choices) : choices_(choices) {}

  void Open(forms::Form& form) override { open_.push_back(&form); }
  void Close(forms::Form&) override { open_.pop_back(); }
  void HandleEvents(forms::EventQueue&) override {}
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds>) override {
    forms::Form& front = *open_.back();
    if (choices_.AtEnd() || ++gestures_ > kMostGestures) {
      queue.Post(front, [&front] { front.UserClose(); });
    } else {
      queue.Post(front, [this, &front] { Gesture(front); });
    }
  }

 private:
  void Gesture(forms::Form& form) {
    std::vector<forms::Control*> usable;
    for (forms::Control* control : form.Controls()) {
      // Cancel ends the run, so it is used less often than other controls.
      if (control->Obstacle().empty() && (control->Name() != "cmdCancel" || choices_.Below(8) == 0)) {
        usable.push_back(control);
      }
    }
    const std::size_t what = choices_.Below(usable.size() + 1);
    if (what == usable.size()) {
      form.UserEnter();
    } else {
      Use(*usable[what]);
    }
  }

  void Use(forms::Control& control) {
    if (auto* text = dynamic_cast<forms::TextBox*>(&control)) {
      text->UserType(choices_.OneOf(kTexts));
    } else if (auto* combo = dynamic_cast<forms::ComboBox*>(&control)) {
      if (!combo->UserType(choices_.OneOf(kTexts))) combo->UserChoose(Index(combo->ListCount()));
    } else if (auto* list = dynamic_cast<forms::ListBox*>(&control)) {
      list->UserSelect(Some(list->ListCount()));
    } else if (auto* grid = dynamic_cast<forms::VSFlexGrid*>(&control)) {
      if (choices_.Below(4) == 0) {
        grid->UserDoubleClick(Index(grid->Rows()));
      } else {
        grid->UserSelect(Some(grid->Rows()));
      }
    } else if (auto* option = dynamic_cast<forms::OptionButton*>(&control)) {
      option->UserChoose();
    } else if (auto* box = dynamic_cast<forms::CheckBox*>(&control)) {
      box->UserToggle(choices_.Below(2) == 0);
    } else if (auto* button = dynamic_cast<forms::CommandButton*>(&control)) {
      button->UserPress();
    } else {
      control.UserFocus();
    }
  }

  std::int32_t Index(std::int32_t count) {
    return static_cast<std::int32_t>(choices_.Below(static_cast<std::size_t>(count) + 1));
  }
  std::vector<std::int32_t> Some(std::int32_t count) {
    std::vector<std::int32_t> indices;
    for (std::size_t i = choices_.Below(3); i > 0; --i) indices.push_back(Index(count));
    return indices;
  }

  Choices& choices_;
  std::vector<forms::Form*> open_;
  int gestures_ = 0;
};

/// Answers questions according to the input.
class RandomDesktop final : public cli::ConsoleDesktop {
 public:
  explicit RandomDesktop(Choices& choices) : choices_(choices) {}
  std::int32_t MsgBox(std::string_view, desktop::Buttons, desktop::Icon, std::string_view) override {
    return choices_.Below(3) == 0 ? desktop::kCancel : desktop::kOk;
  }

 private:
  Choices& choices_;
};

using Definitions = std::map<std::string, dom::IXMLDOMDocument2>;  // The definitions by chart id.

void UseWorkbook(const std::shared_ptr<xlsx::Application>& host) {
  ResetSystem();
  oApplication = host;
  oWorkbook = host->ActiveWorkbook();
}

void Add(Definitions& definitions, const std::string& xml) {
  auto document = NewXMLDocument();
  document.loadXML(xml);
  definitions[GetAttributeText(document.selectSingleNode("chart"), "id")] = document;
}

/// Returns the definitions that are stored in the open workbook.
Definitions StoredDefinitions(const std::shared_ptr<xlsx::Application>& host) {
  UseWorkbook(host);
  Definitions definitions;
  if (!SheetExists(kDefinitionsSheet)) return definitions;
  const auto sheet = oWorkbook->Worksheets()->Item(kDefinitionsSheet);
  for (std::int32_t row = 2;; ++row) {
    const std::string xml = runtime::CStr(GetCellValue(*sheet, row, 1, cell::kString));
    if (xml.empty()) return definitions;
    Add(definitions, xml);
  }
}

/// Loads and stores the definitions of the open workbook, and returns them.
Definitions LoadedDefinitions(const std::shared_ptr<xlsx::Application>& host) {
  UseWorkbook(host);
  Definitions definitions;
  if (!SheetExists(kDefinitionsSheet)) return definitions;
  RetrieveTableDefinitions();
  RetrieveChartDefinitions();
  for (const auto& document : *colCharts) {
    Add(definitions, document.xml());
    SaveChartDefinition(document);
  }
  return definitions;
}

/// Returns the settings in a definition that were made on the pages.
std::string ChoicesIn(const dom::IXMLDOMDocument2& document) {
  const auto chart = document.selectSingleNode("chart");
  std::string text;
  for (const char* attribute : {"name", "title", "type", "table-id", "number-format"}) {
    text += GetAttributeText(chart, attribute) + "\n";
  }
  for (const char* group : {"categories", "series", "values", "x-values", "bubble-sizes", "sort-order"}) {
    const auto element = chart.selectSingleNode(group);
    if (!element) continue;
    text += std::string(group) + " " + GetAttributeText(element, "headings-in") + "\n";
    for (const auto& column : element.childElements()) text += GetAttributeText(column, "name") + "\n";
  }
  std::set<std::string> settings;  // A load may change the order.
  for (const auto& element : chart.selectNodes("//attribute")) {
    settings.insert(GetAttributeText(element, "setting"));
  }
  for (const std::string& setting : settings) text += setting + "\n";
  return text;
}

std::string Xml(const dom::IXMLDOMDocument2& document) { return document.xml(); }

/// Aborts the program unless both contain the same text for the charts in `after`. `text` selects what is
/// compared.
void Compare(const Definitions& before, const Definitions& after,
             std::string (*text)(const dom::IXMLDOMDocument2&)) {
  for (const auto& [id, document] : after) {
    const auto found = before.find(id);
    if (found != before.end() && text(found->second) == text(document)) continue;
    std::fprintf(stderr, "a load changes the definition of %s by itself\n%s\n%s\n", id.c_str(),
                 found == before.end() ? "" : found->second.xml().c_str(), document.xml().c_str());
    std::abort();
  }
}

/// A load must not change the user's settings, and a second load must not change anything.
void CheckThatLoadsAgree(const std::shared_ptr<xlsx::Application>& host) {
  const std::string path = TemporaryBook();
  host->Book().Save(path);
  host->Open(path);
  const auto stored = StoredDefinitions(host);
  const auto first = LoadedDefinitions(host);
  host->Book().Save(path);
  host->Open(path);
  const auto second = LoadedDefinitions(host);
  ResetSystem();
  unlink(path.c_str());
  Compare(stored, first, ChoicesIn);
  Compare(first, second, Xml);
}

}  // namespace

void Wizard(const std::uint8_t* data, std::size_t size) {
  Choices choices(data, size);
  const auto host = xlsx::Application::Create(choices.Below(4) == 0 ? "11.0" : "16.0");
  FillBook(host->NewWorkbook(), choices);
  StartSystem(std::make_shared<RandomDesktop>(choices), std::make_shared<RandomHand>(choices));
  for (int run = 0; run < 3 && !choices.AtEnd(); ++run) {
    CPlotsmithController().RunPlotsmith(host, "fuzz", "");
  }
  CheckThatLoadsAgree(host);
  StopSystem();
}

}  // namespace plotsmith::fuzz

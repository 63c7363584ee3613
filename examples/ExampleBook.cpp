#include "ExampleBook.h"

#include <iostream>
#include <stdexcept>

#include "builder/looks/ChartComment.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/UnattendedView.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::examples {

ExampleBook::ExampleBook()
    : desktop_(std::make_shared<cli::ConsoleDesktop>()), host_(xlsx::Application::Create()) {
  StartSystem(desktop_, std::make_shared<forms::UnattendedView>());
  host_->NewWorkbook();
}

ExampleBook::~ExampleBook() { StopSystem(); }

excel::Ref<excel::Worksheet> ExampleBook::Sheet(const std::string& name) {
  auto& book = host_->Book();
  const auto sheet =
      sheets_++ == 0 ? book.Tabs().All().front()->worksheet : book.Tabs().Add(book.Tabs().All().size());
  sheet->SetName(name);
  return sheet;
}

void ExampleBook::Name(const std::string& name, const std::string& refersTo) {
  host_->Book().DefinedNames().Define(name, refersTo);
}

excel::Ref<excel::ChartObject> ExampleBook::Chart(const excel::Ref<excel::Worksheet>& sheet, double left,
                                                  double top, double width, double height,
                                                  const std::string& attributes, const std::string& content) {
  if (!colCharts) {
    oApplication = host_;
    oWorkbook = host_->ActiveWorkbook();
    RetrieveTableDefinitions();
    RetrieveChartDefinitions();
  }
  const std::string id = "VEX_Chart" + std::to_string(++charts_);
  const auto frame = sheet->ChartObjects()->Add(left, top, width, height);
  sheet->Shapes()->Item(frame->Name())->SetAlternativeText(id);
  frame->Chart()->ChartArea()->Interior()->SetColorIndex(excel::xlColorIndexNone);
  auto document = NewXMLDocument();
  if (!document.loadXML("<chart id=\"" + id + "\" name=\"Chart" + std::to_string(charts_) + "\" " +
                        attributes + ">" + content + "</chart>")) {
    throw std::runtime_error("a definition that doesn't parse: " + content);
  }
  SaveChartDefinition(document);
  return frame;
}

void ExampleBook::Comment(const excel::Ref<excel::Worksheet>& sheet, const std::string& text) {
  AddCommentBox(sheet->Name(), "VEX_Chart" + std::to_string(charts_))
      ->TextFrame()
      ->Characters()
      ->SetText(text);
}

void ExampleBook::FinishAsData(const std::string& path) { host_->Book().Save(path); }

void ExampleBook::Refresh() {
  ResetSystem();
  host_->Book().Tabs().All().front()->object->Activate();
  CPlotsmithController().RefreshPlotsmithData(host_, "make_examples", "");
}

void ExampleBook::Finish(const std::string& path) {
  Refresh();
  for (const std::string& message : desktop_->Messages()) std::cerr << path << ": " << message << '\n';
  host_->Book().Save(path);
}

void Fill(excel::Worksheet& sheet, int row, const std::vector<runtime::Variant>& values) {
  int column = 1;
  for (const runtime::Variant& value : values) sheet.SetCellValueAt(row, column++, value);
}

std::string Columns(const std::string& element, const std::string& headingsIn,
                    std::initializer_list<const char*> names) {
  std::string xml = "<" + element + (headingsIn.empty() ? "" : " headings-in=\"" + headingsIn + "\"") + ">";
  for (const char* name : names) xml += std::string("<column name=\"") + name + "\"/>";
  return xml + "</" + element + ">";
}

std::string Axes(const std::string& label, const std::string& value) {
  const auto axis = [](const char* type, const std::string& text) {
    return text.empty() ? ""
                        : std::string("<axis type=\"") + type + "\" label=\"" + text + "\" sticky=\"no\"/>";
  };
  return "<axes>" + axis("label", label) + axis("value", value) + "</axes>";
}

std::string Settings(std::initializer_list<const char*> names, const std::string& element) {
  if (names.size() == 0) return "<" + element + "/>";
  std::string xml = "<" + element + ">";
  for (const char* name : names) xml += std::string("<attribute setting=\"") + name + "\"/>";
  return xml + "</" + element + ">";
}

std::string Labels(const std::string& show) {
  return "<data-labels><data-label show=\"" + show + "\"/></data-labels>";
}

}  // namespace plotsmith::examples

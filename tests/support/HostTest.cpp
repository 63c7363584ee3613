#include "tests/support/HostTest.h"

#include <random>

#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/UnattendedView.h"
#include "runtime/Strings.h"
#include "tests/support/SaveFailures.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/Archive.h"

namespace plotsmith::test {

TempFolder::TempFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() / ("plotsmith-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void EditPart(const std::string& path, const std::string& part,
              const std::function<void(std::string& text)>& edit) {
  auto package = xlsx::Package::Open(path);
  std::string text = package.Read(part);
  edit(text);
  package.Replace(part, text);
  package.Save(path);
}

void SetSavingProgram(xlsx::Package& package, const std::string& program, const std::string& version) {
  const std::string office = "http://schemas.openxmlformats.org/officeDocument/2006/";
  std::string xml = "<Properties xmlns=\"" + office + "extended-properties\"><Application>" + program +
                    "</Application>" + (version.empty() ? "" : "<AppVersion>" + version + "</AppVersion>") +
                    "</Properties>";
  package.Add("/docProps/app.xml", "application/vnd.openxmlformats-officedocument.extended-properties+xml",
              std::move(xml));
  package.AddRelationship("", office + "relationships/extended-properties", "/docProps/app.xml");
}

HostTest::HostTest() : desktop_(std::make_shared<cli::ConsoleDesktop>()) {
  StartSystem(desktop_, std::make_shared<forms::UnattendedView>());
}

HostTest::~HostTest() { StopSystem(); }

void HostTest::Start(const std::string& version) {
  ResetSystem();
  host_ = xlsx::Application::Create(version);
  host_->Journal().SetSink([this](std::string_view line) { journal_.emplace_back(line); });
}

xlsx::Workbook& HostTest::OpenRenamed(const PlainBook& book, const std::string& from,
                                      const std::string& entry, const std::string& written) {
  book.Write(folder_ / "plain.xlsx");
  const xlsx::Package package = xlsx::Package::Open(folder_ / "plain.xlsx");
  std::vector<std::pair<std::string, std::string>> parts;
  for (const std::string& part : package.Parts()) {
    std::string bytes = package.Read(part);
    if (part.ends_with(".rels") || part.starts_with("/[")) bytes = runtime::Replace(bytes, from, written);
    parts.emplace_back(runtime::Replace(part.substr(1), from, entry), std::move(bytes));
  }
  xlsx::ArchiveWriter writer(folder_ / "renamed.xlsx");
  for (const auto& [name, bytes] : parts) writer.Add(name, bytes);
  writer.Finish();
  return OpenFile(folder_ / "renamed.xlsx");
}

xlsx::Workbook& HostTest::OpenFile(const std::string& path, const std::string& version) {
  Start(version);
  host_->Open(path);
  oApplication = host_;
  oWorkbook = host_->ActiveWorkbook();
  return Book();
}

xlsx::Workbook& HostTest::Open(const PlainBook& book, const std::string& version) {
  book.Write(folder_ / "book.xlsx");
  return OpenFile(folder_ / "book.xlsx", version);
}

void HostTest::Refresh() { CPlotsmithController().RefreshPlotsmithData(host_, "Test", ""); }

xlsx::Workbook& HostTest::SaveAndReopen() {
  SaveThroughFailures(folder_ / "saved.xlsx", [this](const std::string& path) { Book().Save(path); });
  const std::string version = host_->Version();
  return OpenFile(folder_ / "saved.xlsx", version);
}

std::string HostTest::SavedPart(const std::string& part) const {
  return xlsx::Package::Open(folder_ / "saved.xlsx").Read(part);
}

std::string HostTest::Cells(const std::string& sheet, int row1, int column1, int row2, int column2) {
  const auto worksheet = Book().FindWorksheet(sheet);
  if (!worksheet) return "no sheet " + sheet;
  std::string text, scratch;
  for (int row = row1; row <= row2; ++row) {
    if (row > row1) text += '\n';
    for (int column = column1; column <= column2; ++column) {
      if (column > column1) text += '|';
      text += worksheet->CellTextAt(row, column, scratch);
    }
  }
  return text;
}

PlainSheet SalesSheet(const std::string& name) {
  using S = std::string;
  PlainSheet sheet{name};
  sheet.rows = {{S("Region"), S("Product"), S("Amount"), S("Cost")},
                {S("East"), S("Widget"), 10.0, 7.5},
                {S("West"), S("Widget"), 5.0, 4.0},
                {S("East"), S("Gadget"), 7.0, 5.0},
                {S("east"), S("Widget"), 1.0, 0.5}};
  return sheet;
}

std::string Definition::Xml() const {
  return "<chart id=\"" + id + "\" name=\"Name of " + id + "\" type=\"" + type + "\" " + attributes + ">" +
         categories + series + values + rest + "</chart>";
}

std::string Settings(std::initializer_list<const char*> settings, const std::string& group) {
  std::string xml = "<" + group + ">";
  for (const char* setting : settings) xml += std::string("<attribute setting=\"") + setting + "\"/>";
  return xml + "</" + group + ">";
}

PlainBook SalesBook(const std::vector<Definition>& definitions) {
  PlainBook book;
  book.sheets.push_back(SalesSheet());
  PlainSheet charts{"Charts"};
  std::vector<std::string> xml;
  for (const Definition& definition : definitions) {
    const int place = static_cast<int>(charts.frames.size());
    charts.frames.push_back({definition.id, "", (place % 3) * 9, (place / 3) * 20});
    xml.push_back(definition.Xml());
  }
  book.sheets.push_back(std::move(charts));
  book.AddDefinitions(xml);
  return book;
}

}  // namespace plotsmith::test

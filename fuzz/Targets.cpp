#include "fuzz/Targets.h"

#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

#include "cli/ConsoleDesktop.h"
#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/UnattendedView.h"
#include "fuzz/Pictures.h"
#include "fuzz/TemporaryBook.h"
#include "fuzz/Wizard.h"
#include "runtime/RuntimeError.h"
#include "xlsx/Application.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/sheet/Formula.h"
#include "xlsx/sheet/RowShifts.h"
#include "xlsx/sheet/SharedStrings.h"
#include "xlsx/sheet/SheetFormulas.h"
#include "xlsx/sheet/SheetScanner.h"
#include "xlsx/sheet/SheetSplice.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::fuzz {
namespace {

std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Calls a function and ignores the errors that invalid bytes may cause, but no others.
template <class Body>
void Tolerate(const Body& body) {
  try {
    body();
  } catch (const xlsx::PackageError&) {
  } catch (const runtime::RuntimeError&) {
  }
}

/// A file in memory with a path.
class MemoryFile {
 public:
  MemoryFile(const std::uint8_t* data, std::size_t size) : file_(memfd_create("book", 0)) {
    while (size > 0) {
      const auto count = write(file_, data, size);
      if (count <= 0) break;
      data += count;
      size -= static_cast<std::size_t>(count);
    }
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  std::string Path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};

/// Runs a complete refresh of a workbook.
void Refresh(const std::shared_ptr<xlsx::Application>& host) {
  const auto desktop = std::make_shared<cli::ConsoleDesktop>();
  StartSystem(desktop, std::make_shared<forms::UnattendedView>());
  CPlotsmithController().RefreshPlotsmithData(host, "fuzz", "");
  StopSystem();
}

void Package(const std::uint8_t* data, std::size_t size) {
  const MemoryFile file(data, size);
  Tolerate([&] {
    const auto package = xlsx::Package::Open(file.Path());
    for (const std::string& part : package.Parts()) {
      Tolerate([&] { package.Read(part); });
      Tolerate([&] { package.Relationships(part); });
      package.ContentType(part);
    }
  });
}

void Workbook(const std::uint8_t* data, std::size_t size) {
  const MemoryFile file(data, size);
  Tolerate([&] {
    const auto host = xlsx::Application::Create();
    host->Open(file.Path());
    Refresh(host);
  });
}

void Sheet(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Text(data, size);
  const xlsx::Styles styles("");
  // Read everything at once, and in pieces that split every structure but aren't too many.
  for (const std::size_t piece : {size + 1, size / 2000 + 3}) {
    Tolerate([&] {
      xlsx::MemoryStream stream(text, piece);
      const auto sheet = xlsx::ScanSheet(stream, xlsx::DateSystem::k1900);
      const auto geometry = xlsx::ReadGeometry(sheet.head, sheet.rowHeights, styles);
      geometry.columns.IndexAt(geometry.columns.EdgeOf(100));
      if (sheet.used) sheet.cells.ValueAt(sheet.used->row2, sheet.used->column2);
    });
  }
  xlsx::RowShifts shifts;
  shifts.Add("Sheet1", 3, 2);
  std::string part(text);
  xlsx::ShiftSheetFormulas(part, "Home", shifts);
  Tolerate([&] { xlsx::SetDrawingLink(part = text, "r", "rId1"); });
  Tolerate([&] {
    xlsx::ReplaceSheetData(part = text, [](const std::string&) { return "x"; }, {1, 1, 2, 2});
  });
}

void SharedStrings(const std::uint8_t* data, std::size_t size) {
  Tolerate([&] {
    xlsx::MemoryStream stream(Text(data, size), 7);
    xlsx::TextPool strings;
    xlsx::ReadSharedStrings(stream, strings);
    if (strings.Count() > 0) strings.At(0);
  });
}

void Styles(const std::uint8_t* data, std::size_t size) {
  Tolerate([&] {
    xlsx::Styles styles(Text(data, size));
    for (const std::uint32_t style : {0U, 1U, 7U, 0xFFFFFFFFU}) {
      std::string text;
      styles.Format(style).AppendNumber(text, 43831.25, xlsx::DateSystem::k1900);
      styles.WithFormat(style, "0.000");
    }
    styles.SetPaletteColor(17, styles.PaletteColor(18));
    xlsx::Styles again(styles.Serialize());
  });
}

constexpr const char* kChartPart = "/xl/charts/chart1.xml";
constexpr const char* kDefinition =
    "<chart id=\"VEX_Chart1\" type=\"area\" title=\"T\" table-id=\"Data1\"><categories "
    "headings-in=\"rows\"><column name=\"Region\"/></categories><series headings-in=\"columns\"><column "
    "name=\"Amount\"/></series><axes><axis type=\"label\" label=\"L\"/><axis type=\"value\" "
    "label=\"V\"/></axes>"
    "<data-labels><data-label show=\"values\"/></data-labels><dynamic-attributes><attribute "
    "setting=\"3D\"/></dynamic-attributes><comment>C</comment><auto-persistence><persist "
    "property=\"legend-visibility\" value=\"show\"/></auto-persistence></chart>";

/// Returns a workbook with a table, a chart and its definition. It is saved only once, because a save takes
/// longer than what a target does with it.
const MemoryFile& BookWithChart() {
  static const MemoryFile file = [] {
    const auto host = xlsx::Application::Create();
    auto& book = host->NewWorkbook();
    const auto data = book.Tabs().All()[0]->worksheet;
    data->SetName("Data1");
    data->SetCellValueAt(1, 1, "Region");
    data->SetCellValueAt(1, 2, "Amount");
    data->SetCellValueAt(2, 1, "East");
    data->SetCellValueAt(2, 2, 5.0);
    data->ChartObjects()->Add(0, 0, 100, 100);
    data->Shapes()->Item(1)->SetAlternativeText("VEX_Chart1");
    const auto definitions = book.Tabs().Add(1);
    definitions->SetName("VEX_ChartDefinitions");
    definitions->SetVisible(excel::xlSheetVeryHidden);
    definitions->SetCellValueAt(2, 1, kDefinition);
    std::ostringstream bytes;
    book.Save(bytes);
    const std::string text = std::move(bytes).str();
    return MemoryFile(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
  }();
  return file;
}

/// Lets `change` change the workbook with a chart, and refreshes it before and after a save. The chart is
/// drawn each time.
template <class Change>
void RefreshAfter(const Change& change) {
  const auto host = xlsx::Application::Create();
  const std::string path = TemporaryBook();
  Tolerate([&] {
    host->Open(BookWithChart().Path());
    change(host->Book());
    Tolerate([&] { DrawPictures(host->Book(), kChartPart); });
    Refresh(host);
    Tolerate([&] { DrawPictures(host->Book(), kChartPart); });
    host->Book().Save(path);
    host->Open(path);
    Refresh(host);
  });
  unlink(path.c_str());
}

void RefreshWithPart(const char* part, std::string_view bytes) {
  RefreshAfter([&](xlsx::Workbook& book) { book.Package().Replace(part, std::string(bytes)); });
}

void Chart(const std::uint8_t* data, std::size_t size) { RefreshWithPart(kChartPart, Text(data, size)); }
void Drawing(const std::uint8_t* data, std::size_t size) {
  RefreshWithPart("/xl/drawings/drawing1.xml", Text(data, size));
}
void Definition(const std::uint8_t* data, std::size_t size) {
  if (size == 0 || size >= 30000 || data[0] != '<') return;
  RefreshAfter([&](xlsx::Workbook& book) {
    book.Tabs().All()[1]->worksheet->SetCellValueAt(2, 1, std::string(Text(data, size)));
  });
}

/// Draws the shapes on a chart, reads, formats and moves each, and finally groups or deletes them.
void ChartShapes(const std::uint8_t* data, std::size_t size) {
  const auto host = xlsx::Application::Create();
  auto& book = host->NewWorkbook();
  book.Tabs()
      .All()[0]
      ->worksheet->ChartObjects()
      ->Add(0, 0, 100, 100)
      ->Chart()
      ->Shapes()
      ->AddShape(1, 0, 0, 9, 9);
  const std::string path = TemporaryBook();
  book.Save(path);
  Tolerate([&] {
    host->Open(path);
    host->Book().Package().Replace("/xl/drawings/drawing2.xml", std::string(Text(data, size)));
    Tolerate([&] { DrawPictures(host->Book(), kChartPart); });
    const auto frame = host->Book().Tabs().All()[0]->worksheet->ChartObjects()->Item("Chart 1");
    const auto shapes = frame->Chart()->Shapes();
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= shapes->Count(); ++i) {
      const auto shape = shapes->Item(i);
      names.push_back(shape->Name());
      Tolerate([&] { shape->SetAlternativeText(shape->AlternativeText() + std::to_string(shape->Type())); });
      Tolerate([&] { shape->TextFrame()->Characters(2, 3)->Font()->SetBold(true); });
      Tolerate(
          [&] { shape->TextFrame()->Characters(3)->Insert(shape->TextFrame()->Characters(1, 5)->Text()); });
      Tolerate([&] { shape->TextFrame2()->SetAutoSize(1); });
      Tolerate([&] { shape->SetLockAspectRatio(true); });
      Tolerate([&] { shape->SetWidth(shape->Height() + shape->Left()); });
      Tolerate([&] { shape->Line()->SetVisible(i % 2 == 0); });
      Tolerate([&] { shape->SetAutoShapeType(9); });
    }
    Tolerate([&] { shapes->Range(names)->Group(); });
    Tolerate([&] { shapes->Item(1)->Delete(); });
    host->Book().Save(path);
    host->Open(path);
  });
  unlink(path.c_str());
}

void NumberFormat(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Text(data, size);
  const auto tab = text.find('\t');
  const auto format = xlsx::NumberFormat::Parse(text.substr(0, tab));
  if (!format) return;
  std::string out;
  const auto value = runtime::ParseNumber(tab == std::string_view::npos ? "1234.5" : text.substr(tab + 1));
  format->AppendNumber(out, value.value_or(-0.5), xlsx::DateSystem::k1900);
  format->AppendNumber(out, value.value_or(1e300), xlsx::DateSystem::k1904);
  format->AppendText(out, text);
  format->AppendBoolean(out, true);
}

void Formula(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Text(data, size);
  xlsx::RowShifts shifts;
  shifts.Add("Sheet1", 5, 3);
  shifts.Add("Sheet1", 4, -3);
  shifts.Follow(text, "Sheet1", 0);
  shifts.Follow(text, "", 0);
  xlsx::OffsetFormula(text, 1000000, -5);
  xlsx::ParseSheetRange(text);
  xlsx::ParseR1C1(text);
  runtime::ParseNumber(text);
  Tolerate([&] { runtime::Val(text); });
}

constexpr Target kAll[] = {
    {"package", Package, Form::kZip},
    {"workbook", Workbook, Form::kZip},
    {"sheet", Sheet, Form::kXml},
    {"shared-strings", SharedStrings, Form::kXml},
    {"styles", Styles, Form::kXml},
    {"drawing", Drawing, Form::kXml},
    {"chart", Chart, Form::kXml},
    {"definition", Definition, Form::kXml},
    {"formula", Formula, Form::kBytes},
    {"number-format", NumberFormat, Form::kBytes},
    {"chart-shapes", ChartShapes, Form::kXml},
    {"wizard", Wizard, Form::kBytes},
};

}  // namespace

const std::span<const Target> kTargets = kAll;

}  // namespace plotsmith::fuzz

#include "xlsx/Workbook.h"

#include "xlsx/Application.h"
#include "xlsx/DefinedNames.h"
#include "xlsx/DocumentProperties.h"
#include "xlsx/Sheets.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/objects/Chart.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/WorkbookKind.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/DrawingLink.h"

namespace plotsmith::xlsx {

using excel::Ref;

namespace {

constexpr std::string_view kEmptyWorkbook =
    R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
    R"(<bookViews><workbookView/></bookViews><sheets/></workbook>)";

}  // namespace

Workbook::Workbook(xlsx::Application& application)
    : BookContext(application.weak_from_this(), application.Journal()) {}

Workbook::~Workbook() = default;

std::shared_ptr<Workbook> Workbook::Open(xlsx::Application& application, const std::string& path) {
  CheckFile(path);
  std::shared_ptr<Workbook> book(new Workbook(application));
  book->Package() = xlsx::Package::Open(path);
  book->format_ = SaveFormat(path);
  book->Load();
  return book;
}

std::shared_ptr<Workbook> Workbook::New(xlsx::Application& application) {
  std::shared_ptr<Workbook> book(new Workbook(application));
  book->Package().Add("/xl/workbook.xml", content_type::kWorkbook,
                      std::string(kXmlDeclaration) + std::string(kEmptyWorkbook));
  book->Package().AddRelationship("", kTransitional.RelationshipType("officeDocument"), "/xl/workbook.xml");
  book->Load();
  book->Tabs().Add(0);
  return book;
}

void Workbook::Load() {
  LoadContext();
  sheets_.Load();
  names_.Load();
}

bool Workbook::ProtectStructure() {
  return xml::BooleanAttribute(xml::Child(Part().Root(), "workbookProtection"), "lockStructure", false);
}

// A shared workbook keeps a log of its users' changes.
bool Workbook::MultiUserEditing() {
  return Package().FindRelationshipOfType(Part().Name(), "revisionHeaders").has_value();
}

Ref<excel::DocumentProperty> Workbook::BuiltinDocumentProperties(std::string_view name) {
  return MakeDocumentProperty(*this, name);
}

bool Workbook::CalculatesManually() const {
  return xml::Attribute(xml::Child(Part().Root(), "calcPr"), "calcMode") == "manual";
}

Ref<excel::Sheet> Workbook::ActiveSheet() {
  const auto sheet = sheets_.Active();
  return sheet ? sheet->object : nullptr;
}

Ref<excel::Sheets> Workbook::Sheets() { return MakeSheets(*this); }

Ref<excel::Worksheets> Workbook::Worksheets() { return MakeWorksheets(*this); }

Ref<excel::Names> Workbook::Names() {
  names_.FollowRows(Shifts());
  if (!nameObjects_ || nameRevision_ != names_.Revision()) {
    nameObjects_ = MakeNames(*this);
    nameRevision_ = names_.Revision();
  }
  return nameObjects_;
}

std::int32_t Workbook::Colors(std::int32_t index) { return Styles().PaletteColor(index); }

void Workbook::SetColors(std::int32_t index, std::int32_t color) {
  Journal().Put([] { return std::string("Workbook"); }, "Colors(" + std::to_string(index) + ")", color);
  Styles().SetPaletteColor(index, color);
}

std::shared_ptr<Worksheet> Workbook::FindWorksheet(std::string_view name) const {
  const auto sheet = sheets_.Find(name);
  return sheet ? sheet->worksheet : nullptr;
}

std::shared_ptr<CellSource> Workbook::FindCells(std::string_view sheet) const { return FindWorksheet(sheet); }

Ref<excel::Chart> Workbook::ActiveChart() {
  const auto sheet = sheets_.Active();
  return sheet ? ChartOf(*sheet) : nullptr;
}

Ref<excel::Chart> Workbook::ChartOf(const SheetEntry& sheet) {
  if (sheet.worksheet) return nullptr;
  try {
    const auto drawing = FindDrawingLink(Package(), sheet.part);
    const auto chart = drawing ? Package().FindRelationshipOfType(drawing->target, "chart") : std::nullopt;
    if (!chart) return nullptr;
    return std::make_shared<xlsx::Chart>(charts_.At(chart->target), std::weak_ptr<DrawnShape>());
  } catch (const PackageError&) {
    return nullptr;  // A chart sheet that can't be read shows no chart.
  }
}

std::string Workbook::NormalFontName() {
  const std::string scheme = Styles().NormalFontScheme();
  if (scheme.empty() || !ThemePart().HasPart()) return Styles().NormalFontName();
  return scheme == "major" ? Theme().MajorFont() : Theme().MinorFont();
}

bool Workbook::Changed() const {
  return Part().Changed() || Package().Changed() || Styles().Changed() || !Shifts().None() ||
         sheets_.Changed() || charts_.Changed();
}

void Workbook::CheckTarget(const std::string& path) const {
  format_.Check(Package(), path);
  Package().CheckUnchanged(path);
}

void Workbook::Save(const std::string& path) {
  CheckTarget(path);
  WriteModels();
  const WorkbookKind* const kind = format_.OtherKind(path);
  if (kind == nullptr) return Package().Save(path);
  // The next save may be to a file of the opened kind again.
  const std::string openedType = Package().ContentType(Part().Name());
  const auto restore = [&] { Package().SetContentType(Part().Name(), openedType); };
  Package().SetContentType(Part().Name(), kind->contentType);
  try {
    Package().Save(path);
  } catch (...) {
    restore();
    throw;
  }
  restore();
}

void Workbook::Save(std::ostream& out) {
  WriteModels();
  Package().Save(out);
}

void Workbook::WriteModels() {
  sheets_.Write();
  if (charts_.Changed()) ThemePart().EnsurePart();
  charts_.Write();
  names_.FollowRows(Shifts());
  WriteStyles();
  sheets_.WriteActiveTab();
  Part().Write(Package());
}

}  // namespace plotsmith::xlsx

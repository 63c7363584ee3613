#include "xlsx/Workbook.h"

#include <algorithm>
#include <array>
#include <set>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "xlsx/Application.h"
#include "xlsx/DefinedNames.h"
#include "xlsx/DocumentProperties.h"
#include "xlsx/Errors.h"
#include "xlsx/Limits.h"
#include "xlsx/Sheets.h"
#include "xlsx/Worksheet.h"
#include "xlsx/chart/Chart.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/drawing/DefaultTheme.h"
#include "xlsx/package/FreeNumber.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/WorkbookKind.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/DrawingLink.h"
#include "xlsx/sheet/SelectedTab.h"
#include "xlsx/sheet/SharedStrings.h"
#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

/// A sheet without cells: a chart sheet, a dialog, a macro sheet.
class OtherSheet final : public SheetMembers<excel::Sheet> {
 public:
  using SheetMembers::SheetMembers;
};

constexpr std::string_view kEmptyWorkbook =
    R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
    R"(<bookViews><workbookView/></bookViews><sheets/></workbook>)";

/// The sheet has the height of rows, as in Excel's, because other programs have a default of their own,
/// which would change the height of charts.
std::string EmptySheet(bool strict) {
  return std::string(kXmlDeclaration) + "<worksheet xmlns=\"" +
         std::string((strict ? kStrict : kTransitional).main) +
         "\"><dimension ref=\"A1\"/><sheetFormatPr defaultRowHeight=\"" + xml::Number(kDefaultRowHeight) +
         "\"/><sheetData/></worksheet>";
}

/// Whether a sheet can have the name (Excel's rules).
bool IsSheetName(std::string_view name) {
  return !name.empty() && runtime::Len(name) <= limits::kSheetName &&
         name.find_first_of("[]:*?/\\") == std::string_view::npos && !name.starts_with('\'') &&
         !name.ends_with('\'') && !runtime::EqualsIgnoreCase(name, "History");
}

}  // namespace

Workbook::~Workbook() = default;

std::shared_ptr<Workbook> Workbook::Open(xlsx::Application& application, const std::string& path) {
  CheckFile(path);
  std::shared_ptr<Workbook> book(new Workbook(application));
  book->package_ = xlsx::Package::Open(path);
  book->extension_ = ExtensionOf(path);
  book->Load();
  return book;
}

std::shared_ptr<Workbook> Workbook::New(xlsx::Application& application) {
  std::shared_ptr<Workbook> book(new Workbook(application));
  book->package_.Add("/xl/workbook.xml", content_type::kWorkbook,
                     std::string(kXmlDeclaration) + std::string(kEmptyWorkbook));
  book->package_.AddRelationship("", kTransitional.RelationshipType("officeDocument"), "/xl/workbook.xml");
  book->Load();
  book->AddWorksheet(0);
  return book;
}

pugi::xml_node Workbook::Root() const { return xml::Root(document_); }

void Workbook::Load() {
  const auto main = package_.FindRelationshipOfType("", "officeDocument");
  if (!main || !package_.Has(main->target)) throw PackageError("it is not a workbook: it names no main part");
  part_ = main->target;
  const std::string type = package_.ContentType(part_);
  if (type.find("sheet.binary") != std::string::npos) {
    throw OtherFormat("a binary workbook (.xlsb)");
  }
  InPart(part_, [&] { xml::Parse(document_, package_.Read(part_)); });
  if (!xml::Is(Root(), "workbook")) throw PackageError("it is not a workbook");
  strict_ = xml::NamespaceOf(Root()) == kStrict.main;
  dates_ = xml::BooleanAttribute(xml::Child(Root(), "workbookPr"), "date1904", false) ? DateSystem::k1904
                                                                                      : DateSystem::k1900;
  const auto styles = package_.FindRelationshipOfType(part_, "styles");
  if (styles && package_.Has(styles->target)) {
    InPart(styles->target, [&] { styles_ = std::make_unique<xlsx::Styles>(package_.Read(styles->target)); });
  } else {
    styles_ = std::make_unique<xlsx::Styles>("", strict_);
  }
  LoadSheets();
  LoadNames();
}

void Workbook::LoadSheets() {
  std::map<std::string_view, const Relationship*> links;
  for (const Relationship& link : package_.Relationships(part_)) links.emplace(link.id, &link);
  std::map<std::string_view, std::string_view> owners;  // by part
  for (const pugi::xml_node& node : xml::Children(xml::Child(Root(), "sheets"), "sheet")) {
    auto entry = std::make_shared<SheetEntry>();
    entry->name = xml::Attribute(node, "name");
    entry->node = node;
    const auto found = links.find(xml::RelationshipId(node));
    if (found == links.end() || !package_.Has(found->second->target)) {
      throw PackageError("the part of its sheet " + entry->name + " is missing");
    }
    const Relationship& link = *found->second;
    const auto [owner, free] = owners.emplace(link.target, entry->name);
    if (!free) {
      throw PackageError("its sheets " + std::string(owner->second) + " and " + entry->name +
                         " have one part in common");
    }
    entry->part = link.target;
    if (link.type == "worksheet") {
      entry->worksheet = std::make_shared<Worksheet>(*this, entry, false);
      entry->object = entry->worksheet;
    } else {
      entry->object = std::make_shared<OtherSheet>(*this, entry);
    }
    sheets_.push_back(std::move(entry));
  }
  ListWorksheets();
  const auto view = xml::Child(Root(), "bookViews", "workbookView");
  const auto active = xml::IntegerAttribute(view, "activeTab", 0);
  if (active >= 0 && active < static_cast<long long>(sheets_.size()))
    activeSheet_ = static_cast<std::size_t>(active);
  if (!sheets_.empty()) openedSheet_ = sheets_[activeSheet_];
}

void Workbook::ListWorksheets() {
  worksheets_.clear();
  for (const auto& sheet : sheets_) {
    if (sheet->worksheet) worksheets_.push_back(sheet->worksheet);
  }
}

void Workbook::LoadNames() {
  for (const pugi::xml_node& node : xml::Children(xml::Child(Root(), "definedNames"), "definedName")) {
    NameEntry entry{xml::Attribute(node, "name"), std::nullopt, xml::Text(node)};
    const auto local = xml::IntegerAttribute(node, "localSheetId", -1);
    if (local >= 0) entry.sheet = static_cast<std::size_t>(local);
    names_.push_back(std::move(entry));
  }
}

Ref<excel::Application> Workbook::Application() { return application_.shared_from_this(); }

const xlsx::Journal& Workbook::Journal() const { return application_.Journal(); }

bool Workbook::ProtectStructure() {
  return xml::BooleanAttribute(xml::Child(Root(), "workbookProtection"), "lockStructure", false);
}

// a shared workbook keeps the log of its users' changes
bool Workbook::MultiUserEditing() {
  return package_.FindRelationshipOfType(part_, "revisionHeaders").has_value();
}

Ref<excel::DocumentProperty> Workbook::BuiltinDocumentProperties(std::string_view name) {
  return MakeDocumentProperty(*this, name);
}

bool Workbook::CalculatesManually() const {
  return xml::Attribute(xml::Child(Root(), "calcPr"), "calcMode") == "manual";
}

Ref<excel::Sheet> Workbook::ActiveSheet() {
  return activeSheet_ < sheets_.size() ? sheets_[activeSheet_]->object : nullptr;
}

Ref<excel::Sheets> Workbook::Sheets() { return MakeSheets(*this); }

Ref<excel::Worksheets> Workbook::Worksheets() { return MakeWorksheets(*this); }

Ref<excel::Names> Workbook::Names() {
  ShiftNames();
  if (!nameObjects_) nameObjects_ = MakeNames(*this);
  return nameObjects_;
}

std::int32_t Workbook::Colors(std::int32_t index) { return styles_->PaletteColor(index); }

void Workbook::SetColors(std::int32_t index, std::int32_t color) {
  Journal().Put([] { return std::string("Workbook"); }, "Colors(" + std::to_string(index) + ")", color);
  styles_->SetPaletteColor(index, color);
}

const TextPool& Workbook::SharedStrings() {
  if (!sharedStrings_) {
    TextPool strings;
    Guarded([&] {
      const auto link = package_.FindRelationshipOfType(part_, "sharedStrings");
      if (!link || !package_.Has(link->target)) return;
      const auto stream = package_.Stream(link->target);
      InPart(link->target, [&] { ReadSharedStrings(*stream, strings); });
    });
    sharedStrings_ = std::move(strings);
  }
  return *sharedStrings_;
}

std::shared_ptr<SheetEntry> Workbook::FindSheet(std::string_view name) const {
  for (const auto& sheet : sheets_) {
    if (runtime::EqualsIgnoreCase(sheet->name, name)) return sheet;
  }
  return nullptr;
}

std::shared_ptr<Worksheet> Workbook::FindWorksheet(std::string_view name) const {
  const auto sheet = FindSheet(name);
  return sheet ? sheet->worksheet : nullptr;
}

std::size_t Workbook::PositionOf(const SheetEntry& sheet) const {
  const auto found =
      std::find_if(sheets_.begin(), sheets_.end(), [&](const auto& entry) { return entry.get() == &sheet; });
  return static_cast<std::size_t>(found - sheets_.begin());
}

std::shared_ptr<Worksheet> Workbook::AddWorksheet(std::size_t position) {
  const std::string part = package_.FreeName(Folder() + "worksheets/sheet", ".xml");
  package_.Add(part, content_type::kWorksheet, EmptySheet(strict_));
  const std::string link = package_.AddRelationship(part_, Vocabulary().RelationshipType("worksheet"), part);

  std::set<long long> ids;
  std::set<std::string> names;
  for (const auto& sheet : sheets_) {
    ids.insert(xml::IntegerAttribute(sheet->node, "sheetId", 0));
    names.insert(runtime::UCase(sheet->name));
  }
  std::string name = "Sheet1";
  for (int n = 2; names.contains(runtime::UCase(name)); ++n) name = "Sheet" + std::to_string(n);

  pugi::xml_node list = xml::Child(Root(), "sheets");
  const std::string tag = std::string(xml::Prefix(Root().name())) + "sheet";
  auto entry = std::make_shared<SheetEntry>();
  entry->node = position < sheets_.size() ? list.insert_child_before(tag.c_str(), sheets_[position]->node)
                                          : list.append_child(tag.c_str());
  entry->name = name;
  entry->part = part;
  xml::SetAttribute(entry->node, "name", name);
  xml::SetAttribute(entry->node, "sheetId", std::to_string(FreeNumber(ids, 1, limits::kSheetId)));
  xml::SetAttribute(entry->node, (xml::EnsurePrefix(Root(), Vocabulary().relationships, "r") + "id").c_str(),
                    link);
  entry->worksheet = std::make_shared<Worksheet>(*this, entry, true);
  entry->object = entry->worksheet;
  sheets_.insert(sheets_.begin() + static_cast<std::ptrdiff_t>(position), entry);
  ListWorksheets();
  RenumberTabs(position, 1);
  activeSheet_ = position;
  CountActivation();
  changed_ = true;
  return entry->worksheet;
}

void Workbook::RemoveSheet(const SheetEntry& sheet) {
  if (!sheet.worksheet || !sheet.worksheet->IsNew()) {
    throw Refusal("The sheets of users can't be deleted.");
  }
  const std::size_t position = PositionOf(sheet);
  pugi::xml_node node = sheet.node;
  RemoveRelationship(part_, xml::RelationshipId(node));
  node.parent().remove_child(node);
  sheets_.erase(sheets_.begin() + static_cast<std::ptrdiff_t>(position));
  ListWorksheets();
  RenumberTabs(position, -1);
  if (activeSheet_ >= position && activeSheet_ > 0) --activeSheet_;
  changed_ = true;
}

/// Names that are local to a sheet, and the views of the workbook, know a sheet by its place, and places from
/// `position` on have moved.
void Workbook::RenumberTabs(std::size_t position, int step) {
  const auto nodes = xml::Children(xml::Child(Root(), "definedNames"), "definedName");
  for (std::size_t i = 0; i < names_.size() && i < nodes.size(); ++i) {
    auto& place = names_[i].sheet;
    if (!place || *place < position) continue;
    place = *place + static_cast<std::size_t>(step);
    xml::SetAttribute(nodes[i], "localSheetId", std::to_string(*place));
  }
  for (const pugi::xml_node& view : xml::Children(xml::Child(Root(), "bookViews"), "workbookView")) {
    for (const char* tab : {"activeTab", "firstSheet"}) {
      // a place behind the last sheet was none before either
      const auto at = std::min(xml::IntegerAttribute(view, tab, -1), static_cast<long long>(sheets_.size()));
      if (at < static_cast<long long>(position)) continue;
      xml::SetAttribute(view, tab, std::to_string(std::max(at + step, 0LL)));
    }
  }
  nameObjects_ = nullptr;
}

void Workbook::RenameSheet(SheetEntry& sheet, std::string_view name) {
  const auto other = FindSheet(name);
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
  changed_ = true;
}

void Workbook::SetVisible(SheetEntry& sheet, std::int32_t visible) {
  if (visible == excel::xlSheetVisible) {
    sheet.node.remove_attribute("state");
  } else {
    xml::SetAttribute(sheet.node, "state", visible == excel::xlSheetVeryHidden ? "veryHidden" : "hidden");
  }
  changed_ = true;
}

void Workbook::Activate(const SheetEntry& sheet) {
  const std::size_t position = PositionOf(sheet);
  if (position >= sheets_.size()) return;
  // Excel can't show a hidden sheet. A file may nevertheless open with one in front, which then may come
  // back.
  const bool isHidden = sheet.object->Visible() != excel::xlSheetVisible;
  if (isHidden && sheets_[position] != openedSheet_) {
    throw Refusal("Activate method of Worksheet class failed");
  }
  activeSheet_ = position;
  CountActivation();
}

std::shared_ptr<Worksheet> Workbook::ActiveWorksheet() const {
  return activeSheet_ < sheets_.size() ? sheets_[activeSheet_]->worksheet : nullptr;
}

void Workbook::DefineName(std::string name, std::string definition) {
  // what comes behind the names in CT_Workbook
  static constexpr std::array<std::string_view, 11> kOrder = {
      "definedNames",  "calcPr",        "oleSize",        "customWorkbookViews", "pivotCaches", "smartTagPr",
      "smartTagTypes", "webPublishing", "fileRecoveryPr", "webPublishObjects",   "extLst"};
  pugi::xml_node list = xml::EnsureInOrder(Root(), "definedNames", kOrder);
  pugi::xml_node node = xml::AppendChild(list, "definedName");
  xml::SetAttribute(node, "name", name);
  xml::SetText(node, definition);
  names_.push_back({std::move(name), std::nullopt, std::move(definition)});
  nameObjects_ = nullptr;
  changed_ = true;
}

std::shared_ptr<ChartPart> Workbook::Chart(const std::string& part) {
  auto& chart = charts_[part];
  if (!chart) chart = std::make_shared<ChartPart>(*this, part);
  return chart;
}

void Workbook::RemoveRelationship(const std::string& part, const std::string& id) {
  for (const std::string& gone : package_.RemoveRelationship(part, id)) {
    const auto chart = charts_.find(gone);
    if (chart == charts_.end()) continue;
    chart->second->Leave();
    deletedCharts_.push_back(std::move(chart->second));
    charts_.erase(chart);
  }
}

Ref<excel::Chart> Workbook::ActiveChart() {
  return activeSheet_ < sheets_.size() ? ChartOf(*sheets_[activeSheet_]) : nullptr;
}

Ref<excel::Chart> Workbook::ChartOf(const SheetEntry& sheet) {
  if (sheet.worksheet) return nullptr;
  try {
    const auto drawing = FindDrawingLink(package_, sheet.part);
    const auto chart = drawing ? package_.FindRelationshipOfType(drawing->target, "chart") : std::nullopt;
    if (!chart) return nullptr;
    return std::make_shared<xlsx::Chart>(Chart(chart->target), std::weak_ptr<SheetShape>());
  } catch (const PackageError&) {
    return nullptr;  // a chart sheet that can't be read shows none
  }
}

void Workbook::RaiseDamage(const PackageError& error) {
  if (!damage_) damage_ = error.what();
  throw Refusal("The workbook can't be read: " + std::string(error.what()) + ".");
}

bool Workbook::Changed() const {
  if (changed_ || package_.Changed() || styles_->Changed() || !shifts_.None()) return true;
  const auto sheetChanged = [](const auto& sheet) {
    return sheet->worksheet && sheet->worksheet->NeedsWriting();
  };
  const auto chartChanged = [](const auto& chart) { return chart.second->Changed(); };
  return std::any_of(sheets_.begin(), sheets_.end(), sheetChanged) ||
         std::any_of(charts_.begin(), charts_.end(), chartChanged);
}

void Workbook::ShiftNames() {
  if (!shifts_.AnyBehind(namesFollowed_)) return;
  const auto nodes = xml::Children(xml::Child(Root(), "definedNames"), "definedName");
  for (std::size_t i = 0; i < names_.size() && i < nodes.size(); ++i) {
    const auto shifted = shifts_.Follow(names_[i].definition, "", namesFollowed_);
    if (!shifted) continue;
    names_[i].definition = *shifted;
    xml::SetText(nodes[i], *shifted);
    nameObjects_ = nullptr;
    changed_ = true;
  }
  namesFollowed_ = shifts_.Mark();
}

void Workbook::WriteStyles() {
  if (!styles_->Changed()) return;
  const auto link = package_.FindRelationshipOfType(part_, "styles");
  if (link && package_.Has(link->target)) {
    package_.Replace(link->target, styles_->Serialize());
    return;
  }
  const std::string part = Folder() + "styles.xml";
  package_.Add(part, content_type::kStyles, styles_->Serialize());
  if (!link) package_.AddRelationship(part_, Vocabulary().RelationshipType("styles"), part);
}

void Workbook::WriteActiveTab() {
  if (activeSheet_ < sheets_.size() && sheets_[activeSheet_] != openedSheet_) {
    std::vector<std::string> parts;
    for (const auto& sheet : sheets_) parts.push_back(sheet->part);
    SelectOnlyTab(package_, parts, sheets_[activeSheet_]->part);
    openedSheet_ = sheets_[activeSheet_];
  }
  const auto active = static_cast<long long>(activeSheet_);
  pugi::xml_node view = xml::Child(Root(), "bookViews", "workbookView");
  if (xml::IntegerAttribute(view, "activeTab", 0) == active) return;
  if (!view) {
    const std::string prefix(xml::Prefix(Root().name()));
    pugi::xml_node views = xml::Child(Root(), "bookViews");
    if (!views)
      views = Root().insert_child_before((prefix + "bookViews").c_str(), xml::Child(Root(), "sheets"));
    view = views.append_child((prefix + "workbookView").c_str());
  }
  xml::SetAttribute(view, "activeTab", std::to_string(active));
  changed_ = true;
}

bool Workbook::HasMacros() const {
  const auto parts = package_.Parts();
  return std::any_of(parts.begin(), parts.end(),
                     [&](const std::string& part) { return HoldsMacros(package_.ContentType(part)); });
}

const WorkbookKind* Workbook::OtherKind(const std::string& path) const {
  const std::string extension = ExtensionOf(path);
  return extension == extension_ ? nullptr : KindOfName(path);
}

void Workbook::CheckName(const std::string& path) const {
  if (IsForeignName(path)) {
    throw PackageError("a workbook can't be written as " + ExtensionOf(path) +
                       ", only as .xlsx, .xlsm, .xltx or .xltm");
  }
  const WorkbookKind* kind = OtherKind(path);
  if (kind != nullptr && !kind->macros && HasMacros()) {
    throw PackageError("the workbook has macros, which a file " + std::string(kind->extension) +
                       " can't hold; give it the extension .xlsm");
  }
}

void Workbook::Save(const std::string& path) {
  CheckName(path);
  if (const WorkbookKind* kind = OtherKind(path)) package_.SetContentType(part_, kind->contentType);
  WriteModels();
  package_.Save(path);
}

void Workbook::Save(std::ostream& out) {
  WriteModels();
  package_.Save(out);
}

void Workbook::WriteModels() {
  for (const auto& sheet : sheets_) {
    if (sheet->worksheet) sheet->worksheet->Write();
  }
  if (shifts_.AnyBehind(sheetsFollowed_)) {
    for (const auto& sheet : sheets_) {
      if (sheet->worksheet) sheet->worksheet->FollowShifts(sheetsFollowed_);
    }
    sheetsFollowed_ = shifts_.Mark();
  }
  WriteCharts();
  ShiftNames();
  WriteStyles();
  WriteActiveTab();
  if (changed_) package_.Replace(part_, xml::Serialize(document_));
  changed_ = false;
}

/// Charts in use write what was changed on them. Others are looked at only if rows have moved, and touched
/// only if they point at such rows.
void Workbook::WriteCharts() {
  if (!shifts_.None()) {
    for (const std::string& part : package_.Parts()) {
      if (package_.ContentType(part) != content_type::kChart) continue;
      if (charts_.contains(part)) continue;
      try {
        if (shifts_.MayConcern(xml::ToUtf8(package_.Read(part)))) Chart(part);
      } catch (const PackageError&) {
        // a chart that nobody can read follows nothing, and stays as it is
      }
    }
  }
  const bool drawn =
      std::any_of(charts_.begin(), charts_.end(), [](const auto& chart) { return chart.second->Changed(); });
  if (drawn) EnsureTheme();
  for (const auto& [part, chart] : charts_) chart->Write();
}

const Theme& Workbook::Theme() {
  if (!theme_) {
    std::string part;
    try {
      if (const auto link = package_.FindRelationshipOfType(part_, "theme"))
        part = package_.Read(link->target);
    } catch (const PackageError&) {
      // then the colours and fonts are Office's own
    }
    theme_.emplace(part);
  }
  return *theme_;
}

std::string Workbook::NormalFontName() {
  const std::string scheme = styles_->NormalFontScheme();
  if (scheme.empty() || !package_.FindRelationshipOfType(part_, "theme")) return styles_->NormalFontName();
  return scheme == "major" ? Theme().MajorFont() : Theme().MinorFont();
}

void Workbook::EnsureTheme() {
  if (package_.FindRelationshipOfType(part_, "theme")) return;
  const std::string part = package_.FreeName(Folder() + "theme/theme", ".xml");
  package_.Add(part, content_type::kTheme, DefaultTheme(strict_));
  package_.AddRelationship(part_, Vocabulary().RelationshipType("theme"), part);
}

}  // namespace plotsmith::xlsx

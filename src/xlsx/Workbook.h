#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <ostream>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Excel.h"
#include "runtime/RuntimeError.h"
#include "xlsx/Journal.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/sheet/CellStore.h"
#include "xlsx/sheet/RowShifts.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {

class Application;
class ChartPart;
class Worksheet;
struct SheetEntry;
struct WorkbookKind;

/// A defined name as the workbook part holds it.
struct NameEntry {
  std::string name;
  std::optional<std::size_t> sheet;  ///< the sheet that it is local to, from 0
  std::string definition;            ///< without "="
};

/// A workbook file, open. What the system changes is held in memory until Save.
class Workbook : public excel::Workbook, public std::enable_shared_from_this<Workbook> {
 public:
  static std::shared_ptr<Workbook> Open(xlsx::Application& application, const std::string& path);
  static std::shared_ptr<Workbook> New(xlsx::Application& application);
  ~Workbook() override;

  // the port
  excel::Ref<excel::Application> Application() override;
  bool ProtectStructure() override;
  bool MultiUserEditing() override;
  excel::Ref<excel::DocumentProperty> BuiltinDocumentProperties(std::string_view name) override;
  excel::Ref<excel::Sheet> ActiveSheet() override;
  excel::Ref<excel::Sheets> Sheets() override;
  excel::Ref<excel::Worksheets> Worksheets() override;
  excel::Ref<excel::Names> Names() override;
  std::int32_t Colors(std::int32_t index) override;
  void SetColors(std::int32_t index, std::int32_t color) override;

  // the file
  /// Whether Save would write anything but what was read.
  bool Changed() const;
  /// Saves as the kind of workbook that the extension tells, if it isn't the one that was opened. Throws
  /// PackageError; then the file is as it was.
  void Save(const std::string& path);
  void Save(std::ostream& out);
  /// Throws a PackageError if the workbook can't be saved as the kind that the name's extension tells.
  void CheckName(const std::string& path) const;
  /// What was found damaged while the workbook was in use, as a sentence. A workbook that has this must not
  /// be saved: what was built on it is incomplete.
  const std::optional<std::string>& Damage() const { return damage_; }
  bool CalculatesManually() const;
  /// For programs that make workbooks: a defined name of the whole workbook.
  void DefineName(std::string name, std::string definition);

  // for the other classes of this host
  xlsx::Package& Package() { return package_; }
  /// The folder of the workbook part, with its slash: where new parts go.
  std::string Folder() const { return part_.substr(0, part_.rfind('/') + 1); }
  xlsx::Styles& Styles() { return *styles_; }
  const TextPool& SharedStrings();
  DateSystem Dates() const { return dates_; }
  const xlsx::Journal& Journal() const;
  RowShifts& Shifts() { return shifts_; }
  /// In the order of their tabs.
  const std::vector<std::shared_ptr<SheetEntry>>& AllSheets() const { return sheets_; }
  /// Those of them that have cells.
  const std::vector<std::shared_ptr<Worksheet>>& AllWorksheets() const { return worksheets_; }
  /// Null if there is none of the name, ignoring case.
  std::shared_ptr<SheetEntry> FindSheet(std::string_view name) const;
  std::shared_ptr<Worksheet> FindWorksheet(std::string_view name) const;
  const std::vector<NameEntry>& AllNames() const { return names_; }
  /// A new worksheet at a place among the tabs, from 0, made active.
  std::shared_ptr<Worksheet> AddWorksheet(std::size_t position);
  void RemoveSheet(const SheetEntry& sheet);
  void RenameSheet(SheetEntry& sheet, std::string_view name);
  void SetVisible(SheetEntry& sheet, std::int32_t visible);
  void Activate(const SheetEntry& sheet);
  /// How often a sheet or a cell was made the active one. A window that shows another sheet meanwhile, since
  /// its user turned to it, then comes back to the active one.
  std::uint64_t Activations() const { return activations_; }
  void CountActivation() { ++activations_; }
  /// Null if the active sheet has no cells.
  std::shared_ptr<Worksheet> ActiveWorksheet() const;
  /// The chart of a part, which is read when something of the chart is asked for.
  std::shared_ptr<ChartPart> Chart(const std::string& part);
  excel::Ref<excel::Chart> ActiveChart();
  /// The chart of a chart sheet; Nothing for another sheet, and for one that can't be read.
  excel::Ref<excel::Chart> ChartOf(const SheetEntry& sheet);
  /// Takes out a relationship of a part, and the parts that nothing else refers to. Charts among them are
  /// deleted.
  void RemoveRelationship(const std::string& part, const std::string& id);
  const Namespaces& Vocabulary() const { return strict_ ? kStrict : kTransitional; }
  bool IsStrict() const { return strict_; }
  /// The workbook's theme, or the one that it gets when a chart is drawn in it.
  const xlsx::Theme& Theme();
  /// The font of the Normal style; the theme's where the style says so.
  std::string NormalFontName();

  /// Runs what reads the file behind the port: a PackageError is kept as the workbook's damage and goes on as
  /// the run-time error that the port allows. So is want of memory.
  template <class Read>
  auto Guarded(Read&& read) -> decltype(read()) {
    try {
      return read();
    } catch (const PackageError& e) {
      RaiseDamage(e);
    } catch (const std::bad_alloc&) {
      RaiseDamage(PackageError("there is not enough memory for it"));
    }
  }

  /// Runs what reads the workbook only to show it: what it finds damaged fails as ever, but is no reason not
  /// to save the workbook, as nothing is built on it.
  template <class Read>
  auto Viewed(Read&& read) -> decltype(read()) {
    const auto before = damage_;
    try {
      return read();
    } catch (const runtime::RuntimeError&) {
      damage_ = before;
      throw;
    }
  }

 private:
  explicit Workbook(xlsx::Application& application) : application_(application) {}
  void Load();
  void LoadSheets();
  void ListWorksheets();
  void LoadNames();
  pugi::xml_node Root() const;
  std::size_t PositionOf(const SheetEntry& sheet) const;
  void RenumberTabs(std::size_t position, int step);
  void ShiftNames();
  bool HasMacros() const;
  /// The kind that the name's extension tells; null if it is the one that was opened, or none.
  const WorkbookKind* OtherKind(const std::string& path) const;
  /// Writes what was changed into the package.
  void WriteModels();
  void WriteCharts();
  void WriteActiveTab();
  void WriteStyles();
  void EnsureTheme();
  [[noreturn]] void RaiseDamage(const PackageError& error);

  xlsx::Application& application_;
  xlsx::Package package_;
  std::string part_;       ///< the workbook part
  std::string extension_;  ///< of the file that was opened, in lower case
  pugi::xml_document document_;
  bool changed_ = false;
  bool strict_ = false;
  DateSystem dates_ = DateSystem::k1900;
  std::unique_ptr<xlsx::Styles> styles_;
  std::optional<TextPool> sharedStrings_;
  std::vector<std::shared_ptr<SheetEntry>> sheets_;
  std::vector<std::shared_ptr<Worksheet>> worksheets_;  ///< of sheets_
  std::size_t activeSheet_ = 0;
  std::uint64_t activations_ = 0;
  std::shared_ptr<SheetEntry> openedSheet_;  ///< the active sheet as the file tells
  std::vector<NameEntry> names_;
  excel::Ref<excel::Names> nameObjects_;  ///< made when first asked for, until a name changes
  std::map<std::string, std::shared_ptr<ChartPart>, std::less<>> charts_;  ///< those in use, by part
  std::vector<std::shared_ptr<ChartPart>> deletedCharts_;  ///< kept for the objects that refer to them
  std::optional<xlsx::Theme> theme_;
  RowShifts shifts_;
  std::size_t namesFollowed_ = 0;   ///< of the shifts
  std::size_t sheetsFollowed_ = 0;  ///< likewise, by the formulas of all sheets
  std::optional<std::string> damage_;
};

}  // namespace plotsmith::xlsx

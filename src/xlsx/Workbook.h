#pragma once

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/excel/Excel.h"
#include "xlsx/SheetList.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/book/NameList.h"
#include "xlsx/book/SaveFormat.h"
#include "xlsx/chart/part/ChartParts.h"
#include "xlsx/chart/rules/PlotGroups.h"

namespace plotsmith::xlsx {

class Application;

/// An open workbook file. Changes are kept in memory until Save.
class Workbook final : public excel::Workbook,
                       public BookContext,
                       public std::enable_shared_from_this<Workbook> {
 public:
  /// Opens a file. Throws PackageError.
  static std::shared_ptr<Workbook> Open(xlsx::Application& application, const std::string& path);
  /// Makes a workbook with one empty sheet.
  static std::shared_ptr<Workbook> New(xlsx::Application& application);
  ~Workbook() override;

  // The members of the port.
  bool ProtectStructure() override;
  bool MultiUserEditing() override;
  excel::Ref<excel::DocumentProperty> BuiltinDocumentProperties(std::string_view name) override;
  excel::Ref<excel::Sheet> ActiveSheet() override;
  excel::Ref<excel::Sheets> Sheets() override;
  excel::Ref<excel::Worksheets> Worksheets() override;
  excel::Ref<excel::Names> Names() override;
  std::int32_t Colors(std::int32_t index) override;
  void SetColors(std::int32_t index, std::int32_t color) override;

  /// Returns true if Save would write other bytes than the opened file has.
  bool Changed() const;
  /// Saves the workbook in the format of the extension. If that fails, throws a PackageError and leaves the
  /// file unchanged.
  void Save(const std::string& path);
  /// Saves to a stream. The workbook is complete before the stream gets its first byte.
  void Save(std::ostream& out);
  /// Throws a PackageError if the workbook can't be saved in the format of the extension, or if another
  /// program has changed the file since it was read or saved.
  void CheckTarget(const std::string& path) const;

  /// The sheets and their tabs.
  ///@{
  SheetList& Tabs() { return sheets_; }
  const SheetList& Tabs() const { return sheets_; }
  ///@}
  /// The worksheet with a name, ignoring case; null if there is none, or if the sheet has no cells.
  std::shared_ptr<Worksheet> FindWorksheet(std::string_view name) const;
  std::shared_ptr<CellSource> FindCells(std::string_view sheet) const override;
  /// The defined names.
  ///@{
  NameList& DefinedNames() { return names_; }
  const NameList& DefinedNames() const { return names_; }
  ///@}

  /// The chart parts that are in use.
  ChartParts& Charts() { return charts_; }
  /// The chart of a part, which is parsed at its first use.
  std::shared_ptr<ChartPart> Chart(const std::string& part) { return charts_.At(part); }
  /// The chart of the active sheet if that is a chart sheet, otherwise Nothing.
  excel::Ref<excel::Chart> ActiveChart();
  /// The chart of a chart sheet; Nothing for a worksheet and for an unreadable chart.
  excel::Ref<excel::Chart> ChartOf(const SheetEntry& sheet);

  /// Returns true if the workbook is set to manual calculation.
  bool CalculatesManually() const;
  /// The name of the Normal style's font. It is the theme's font if the style refers to that.
  std::string NormalFontName();

 private:
  explicit Workbook(xlsx::Application& application);
  void Load();
  /// Writes the changes into the package.
  void WriteModels();

  SaveFormat format_;
  NameList names_{Part()};
  SheetList sheets_{*this, Part(), names_};
  ChartParts charts_{*this, CompleteChart};
  excel::Ref<excel::Names> nameObjects_;  ///< made at the first use
  std::uint64_t nameRevision_ = 0;        ///< the revision of names_ when nameObjects_ was made
};

}  // namespace plotsmith::xlsx

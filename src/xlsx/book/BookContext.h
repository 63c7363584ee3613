#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "host/excel/Application.h"
#include "xlsx/base/Journal.h"
#include "xlsx/book/BookDamage.h"
#include "xlsx/book/BookPart.h"
#include "xlsx/book/BookTheme.h"
#include "xlsx/package/Package.h"
#include "xlsx/sheet/CellStore.h"
#include "xlsx/sheet/RowShifts.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {

class CellSource;

/// The common state of an open workbook for its sheets and charts: package, styles, theme and so on. The
/// classes of sheets and charts depend only on this class, and not on Workbook.
class BookContext : public BookDamage {
 public:
  BookContext(const BookContext&) = delete;
  BookContext& operator=(const BookContext&) = delete;
  virtual ~BookContext() = default;

  /// The package of the workbook.
  xlsx::Package& Package() { return package_; }
  /// The package of the workbook.
  const xlsx::Package& Package() const { return package_; }
  /// The folder of the workbook part, with its slash. New parts are put there.
  std::string Folder() const { return part_.Folder(); }
  /// Returns true for a Strict file, false for a Transitional one.
  bool IsStrict() const { return part_.IsStrict(); }
  /// The namespaces of the workbook's vocabulary.
  const Namespaces& Vocabulary() const { return part_.Vocabulary(); }
  /// The date system of the workbook.
  DateSystem Dates() const { return dates_; }
  /// The styles of cells.
  xlsx::Styles& Styles() { return *styles_; }
  /// The styles of cells.
  const xlsx::Styles& Styles() const { return *styles_; }
  /// The theme of the workbook, or Office's if it has none.
  const xlsx::Theme& Theme() { return theme_.Get(); }
  /// The texts of the shared strings part, which is read at the first use. Raises error 1004 if it can't be
  /// read.
  const TextPool& SharedStrings();
  /// The rows that were inserted and deleted.
  RowShifts& Shifts() { return shifts_; }
  /// The rows that were inserted and deleted.
  const RowShifts& Shifts() const { return shifts_; }
  /// The journal of the host's calls.
  const xlsx::Journal& Journal() const { return journal_; }
  /// The host that has the workbook open.
  excel::Ref<excel::Application> Host() const { return host_.lock(); }

  /// The cells of the sheet with a name, ignoring case. Null if no such sheet has cells.
  virtual std::shared_ptr<CellSource> FindCells(std::string_view sheet) const = 0;

 protected:
  /// `host` and `journal` must outlive the workbook.
  BookContext(std::weak_ptr<excel::Application> host, const xlsx::Journal& journal)
      : host_(std::move(host)), journal_(journal), theme_(package_, part_) {}

  /// Reads the workbook part and the styles of the package. Throws PackageError.
  void LoadContext();
  /// Puts the styles into the package if they were changed.
  void WriteStyles();

  /// The workbook part.
  BookPart& Part() { return part_; }
  /// The workbook part.
  const BookPart& Part() const { return part_; }
  /// The theme part.
  BookTheme& ThemePart() { return theme_; }

 private:
  std::weak_ptr<excel::Application> host_;
  const xlsx::Journal& journal_;
  xlsx::Package package_;
  BookPart part_;
  DateSystem dates_ = DateSystem::k1900;
  std::unique_ptr<xlsx::Styles> styles_;
  std::optional<TextPool> sharedStrings_;
  BookTheme theme_;
  RowShifts shifts_;
};

}  // namespace plotsmith::xlsx

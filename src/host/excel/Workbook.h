#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DocumentProperty;
class Names;
class Sheet;
class Sheets;
class Worksheets;

/// A workbook that is open in the host.
class Workbook {
 public:
  virtual ~Workbook() = default;

  /// Whether the structure is protected, so that sheets can't be added or deleted.
  virtual bool ProtectStructure() = 0;
  /// Whether the workbook is shared.
  virtual bool MultiUserEditing() = 0;
  /// Returns a document property by Excel's English name, ignoring case. Raises error 5 if there is no such
  /// property. A host has at least "Application name", the program that saved the workbook last.
  virtual Ref<DocumentProperty> BuiltinDocumentProperties(std::string_view name) = 0;

  /// The active sheet, of any kind.
  virtual Ref<Sheet> ActiveSheet() = 0;
  /// All sheets in tab order, including chart sheets.
  virtual Ref<excel::Sheets> Sheets() = 0;
  /// The sheets with cells.
  virtual Ref<excel::Worksheets> Worksheets() = 0;
  /// The defined names, including those of single sheets.
  virtual Ref<excel::Names> Names() = 0;

  /// An entry of the palette. `index` is from 1 to 56; raises error 9 if it is out of range.
  ///@{
  virtual std::int32_t Colors(std::int32_t index) = 0;
  virtual void SetColors(std::int32_t index, std::int32_t color) = 0;
  ///@}
};

}  // namespace plotsmith::excel

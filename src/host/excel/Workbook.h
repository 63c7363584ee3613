#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

class DocumentProperty;
class Names;
class Sheet;
class Sheets;
class Worksheets;

/// A workbook, open in the host.
class Workbook {
 public:
  virtual ~Workbook() = default;

  /// Whether sheets can be neither added nor removed.
  virtual bool ProtectStructure() = 0;
  /// Whether the workbook is shared.
  virtual bool MultiUserEditing() = 0;
  /// A property by Excel's English name for it, capitals or not; error 5 if there is none of the name. A host
  /// has at least "Application name", the program that saved the workbook last.
  virtual Ref<DocumentProperty> BuiltinDocumentProperties(std::string_view name) = 0;

  /// The sheet in front, of any kind.
  virtual Ref<Sheet> ActiveSheet() = 0;
  /// All sheets in the order of their tabs, chart sheets among them.
  virtual Ref<excel::Sheets> Sheets() = 0;
  /// Those of them that have cells.
  virtual Ref<excel::Worksheets> Worksheets() = 0;
  /// Also those that belong to single sheets.
  virtual Ref<excel::Names> Names() = 0;

  /// Entry `index`, from 1 to 56, of the palette; error 9 outside.
  ///@{
  virtual std::int32_t Colors(std::int32_t index) = 0;
  virtual void SetColors(std::int32_t index, std::int32_t color) = 0;
  ///@}
};

}  // namespace plotsmith::excel

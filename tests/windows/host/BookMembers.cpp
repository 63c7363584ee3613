#include "runtime/RuntimeError.h"
#include "tests/windows/host/Automation.h"
#include "tests/windows/host/HostMembers.h"
#include "xlsx/Range.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::automation {
namespace {

using runtime::RuntimeError;

/// Excel's error while a cell is being edited: 0x800AC472.
constexpr int kSuspended = 0xC472;

void CheckEditing(const HostPtr& host) {
  if (host->editing) throw RuntimeError(kSuspended);
}

/// The list of a workbook's properties. The port has only its items.
struct DocumentProperties {
  Ref<excel::Workbook> book;
};

/// The display format of cells, of which the proxies need only the number format.
struct DisplayFormat {
  Ref<excel::Range> range;
};

void AddWays(Table<excel::Application>& table) {
  table.Add({L"Run", DISPATCH_METHOD, 1, 31, nullptr,
             [](excel::Application& application, const Arguments& arguments, const HostPtr&) {
               std::vector<excel::Variant> passed;
               for (std::size_t i = 1; i < arguments.Count(); ++i) {
                 passed.push_back(com::FromVariant(arguments[i]));
               }
               application.Run(Given<std::string>(arguments[0]), passed);
               return com::OwnedVariant();
             }});
  AddHostMembers(table);
}

void AddWays(Table<excel::Workbook>& table) {
  table.Add({L"BuiltinDocumentProperties", DISPATCH_PROPERTYGET, 0, 0, nullptr,
             [](excel::Workbook& book, const Arguments&, const HostPtr& host) {
               const Ref<excel::Workbook> kept(std::dynamic_pointer_cast<excel::Workbook>(
                   dynamic_cast<xlsx::Workbook&>(book).shared_from_this()));
               return Answer(runtime::MakeRef<DocumentProperties>(DocumentProperties{kept}), host);
             }});
}

void AddWays(Table<excel::Sheets>& table) {
  table.Add({L"Add", DISPATCH_METHOD, 0, 4, nullptr,
             [](excel::Sheets& sheets, const Arguments& arguments, const HostPtr& host) {
               const auto sheet = [](const VARIANT& value) -> Ref<excel::Sheet> {
                 if (com::IsMissing(value)) return nullptr;
                 const auto object = com::ObjectOf(value);
                 if (const auto* other = dynamic_cast<ComObject<excel::Sheet>*>(object.Get()))
                   return other->Object();
                 return ObjectBehind<excel::Worksheet>(value);
               };
               return Answer(sheets.Add(sheet(arguments[0]), sheet(arguments[1])), host);
             }});
}

void AddWays(Table<excel::Sheet>&) {}
void AddWays(Table<excel::Worksheet>&) {}

/// Returns the result of `of` for the only cell, or for all cells as an array.
template <class Of>
com::OwnedVariant EachOf(excel::Range& range, const Of& of) {
  const auto [sheet, cells] = xlsx::CellsOf(range);
  if (cells.CellCount() == 1) return com::ToVariant(of(sheet, cells.row1, cells.column1));
  com::CellArrayWriter values(cells.RowCount(), cells.ColumnCount());
  for (std::int32_t row = 0; row < cells.RowCount(); ++row) {
    for (std::int32_t column = 0; column < cells.ColumnCount(); ++column) {
      values.Set(row, column, of(sheet, cells.row1 + row, cells.column1 + column));
    }
  }
  return values.Take();
}

excel::Variant ValueAt(xlsx::Worksheet& sheet, std::int32_t row, std::int32_t column) {
  return sheet.CellValueAt(row, column).ToVariant();
}

/// Returns the result of `of` if it is the same for every cell, otherwise Null.
template <class Of>
excel::Variant Common(excel::Range& range, const Of& of) {
  const auto [sheet, cells] = xlsx::CellsOf(range);
  const auto first = of(sheet, cells.row1, cells.column1);
  for (std::int32_t row = cells.row1; row <= cells.row2; ++row) {
    for (std::int32_t column = cells.column1; column <= cells.column2; ++column) {
      if (of(sheet, row, column) != first) return runtime::kNull;
    }
  }
  return first;
}

std::string TextAt(xlsx::Worksheet& sheet, std::int32_t row, std::int32_t column) {
  std::string scratch;
  return std::string(sheet.CellTextAt(row, column, scratch));
}

/// Returns the formula of a cell, or its value if it has none, which has the same effect for texts.
excel::Variant FormulaAt(const Host& host, xlsx::Worksheet& sheet, std::int32_t row, std::int32_t column) {
  const auto formula = host.formulas.find({row, column});
  return formula == host.formulas.end() ? ValueAt(sheet, row, column) : excel::Variant(formula->second);
}

void AddWays(Table<excel::Range>& table) {
  table.Add({L"Value", DISPATCH_PROPERTYGET, 0, 0, nullptr,
             [](excel::Range& range, const Arguments&, const HostPtr&) { return EachOf(range, ValueAt); }});
  table.Add({L"Formula", DISPATCH_PROPERTYGET, 0, 0, nullptr,
             [](excel::Range& range, const Arguments&, const HostPtr& host) {
               return EachOf(range, [&](auto&&... cell) { return FormulaAt(*host, cell...); });
             }});
  table.Add({L"HasFormula", DISPATCH_PROPERTYGET, 0, 0, nullptr,
             [](excel::Range& range, const Arguments&, const HostPtr& host) {
               return Answer(Common(range,
                                    [&](xlsx::Worksheet&, std::int32_t row, std::int32_t column) {
                                      return host->formulas.contains({row, column});
                                    }),
                             host);
             }});
  table.Add(
      {L"Text", DISPATCH_PROPERTYGET, 0, 0, nullptr,
       [](excel::Range& range, const Arguments&, const HostPtr& host) {
         return Answer(
             Common(range,
                    [&](xlsx::Worksheet& sheet, std::int32_t row, std::int32_t column) {
                      const bool shown = host->displayFormulas && host->formulas.contains({row, column});
                      return shown ? host->formulas.at({row, column}) : TextAt(sheet, row, column);
                    }),
             host);
       }});
  table.Add({L"DisplayFormat", DISPATCH_PROPERTYGET, 0, 0, nullptr,
             [](excel::Range& range, const Arguments&, const HostPtr& host) {
               const auto [sheet, cells] = xlsx::CellsOf(range);
               return Answer(runtime::MakeRef<DisplayFormat>(
                                 DisplayFormat{xlsx::MakeRange(sheet.shared_from_this(), cells)}),
                             host);
             }});
  table.Add({L"Sort", DISPATCH_METHOD, 11, 15, nullptr,
             [](excel::Range& range, const Arguments& arguments, const HostPtr&) {
               constexpr std::size_t kKey1 = 0, kOrder1 = 1, kHeader = 7, kOrderCustom = 8, kMatchCase = 9,
                                     kOrientation = 10;
               range.Sort(ObjectBehind<excel::Range>(arguments[kKey1]),
                          Given<std::int32_t>(arguments[kOrder1]), Given<std::int32_t>(arguments[kHeader]),
                          Given<std::int32_t>(arguments[kOrderCustom]), Given<bool>(arguments[kMatchCase]),
                          Given<std::int32_t>(arguments[kOrientation]));
               return com::OwnedVariant();
             }});
}

}  // namespace

template <>
const Table<DocumentProperties>& TableOf<DocumentProperties>() {
  static const Table<DocumentProperties> table = [] {
    Table<DocumentProperties> made("DocumentProperties");
    made.Add({L"Item", DISPATCH_PROPERTYGET, 1, 1, nullptr,
              [](DocumentProperties& properties, const Arguments& arguments, const HostPtr& host) {
                return Answer(properties.book->BuiltinDocumentProperties(Given<std::string>(arguments[0])),
                              host);
              }});
    return made;
  }();
  return table;
}

template <>
const Table<DisplayFormat>& TableOf<DisplayFormat>() {
  static const Table<DisplayFormat> table = [] {
    Table<DisplayFormat> made("DisplayFormat");
    made.Add({L"NumberFormat", DISPATCH_PROPERTYGET, 0, 0, nullptr,
              [](DisplayFormat& look, const Arguments&, const HostPtr& host) {
                return Answer(Common(*look.range,
                                     [](xlsx::Worksheet& sheet, std::int32_t row, std::int32_t column) {
                                       return sheet.NumberFormatAt(row, column);
                                     }),
                              host);
              }});
    return made;
  }();
  return table;
}

#include "tests/windows/host/MemberLines.h"
#include "windows/excel/members/Book.inc"

}  // namespace plotsmith::automation

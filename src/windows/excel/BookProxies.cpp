#include <algorithm>

#include "runtime/RuntimeError.h"
#include "windows/excel/CellReader.h"
#include "windows/excel/Proxy.h"
#include "windows/excel/WrapApplication.h"

namespace plotsmith::proxies {

#include "windows/excel/ProxyLines.h"
#include "windows/excel/members/Book.inc"

namespace {

using runtime::RuntimeError;

class ExcelApplication final : public ApplicationProxy {
 public:
  using ApplicationProxy::ApplicationProxy;

  void Run(std::string_view macro, const std::vector<excel::Variant>& arguments) override {
    constexpr std::size_t kMostArguments = 30;
    if (arguments.size() > kMostArguments) throw RuntimeError(runtime::error::kArgumentCount);
    std::array<com::OwnedVariant, 1 + kMostArguments> passed;
    passed[0] = Passed(macro);
    std::transform(arguments.begin(), arguments.end(), passed.begin() + 1,
                   [](const auto& value) { return com::ToVariant(value); });
    std::generate(passed.begin() + 1 + static_cast<std::ptrdiff_t>(arguments.size()), passed.end(),
                  com::Missing);
    static com::Member run(L"Run");
    com::Call(Object(), run, com::Kind::kMethod, passed);
  }
};

class ExcelWorkbook final : public WorkbookProxy {
 public:
  using WorkbookProxy::WorkbookProxy;

  Ref<excel::DocumentProperty> BuiltinDocumentProperties(std::string_view name) override {
    static com::Member properties(L"BuiltinDocumentProperties"), item(L"Item");
    const auto all = com::ObjectOf(com::Call(Object(), properties, com::Kind::kGet, {}).Get());
    return Ask<Ref<excel::DocumentProperty>>(all.Get(), item, com::Kind::kGet, name);
  }
};

class ExcelSheets final : public SheetsProxy {
 public:
  using SheetsProxy::SheetsProxy;

  Ref<excel::Worksheet> Add(Ref<excel::Sheet> before, Ref<excel::Sheet> after) override {
    static com::Member add(L"Add");
    return Method<Ref<excel::Worksheet>>(add, OrMissing(before), OrMissing(after));
  }

 private:
  static com::OwnedVariant OrMissing(const Ref<excel::Sheet>& sheet) {
    return sheet ? Passed(sheet) : com::Missing();
  }
};

class ExcelWorksheet final : public WorksheetProxy {
 public:
  using WorksheetProxy::WorksheetProxy;

  excel::CellValue CellValueAt(std::int32_t row, std::int32_t column) override {
    CheckCell(row, column);
    return cells_.ValueAt(row, column);
  }
  std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) override {
    CheckCell(row, column);
    return cells_.TextAt(row, column, scratch);
  }
  std::int32_t NextRowAt(std::int32_t row, std::int32_t column) override {
    CheckCell(row, column);
    return cells_.NextRow(row, column);
  }
  void SetCellValueAt(std::int32_t row, std::int32_t column, const excel::Variant& value) override {
    Cells(row, column)->SetValue(value);
  }

 private:
  /// Excel itself checks the upper limits.
  static void CheckCell(std::int32_t row, std::int32_t column) {
    if (row < 1 || column < 1) throw RuntimeError(runtime::error::kApplication);
  }

  CellReader cells_{Object()};
};

class ExcelRange final : public RangeProxy {
 public:
  using RangeProxy::RangeProxy;

  excel::Variant Value() override {
    static com::Member value(L"Value");
    const com::OwnedVariant answer = com::Call(Object(), value, com::Kind::kGet, {});
    if (!com::IsArray(answer.Get())) return com::FromVariant(answer.Get());
    const com::CellArray cells(answer.Get());
    return com::FromVariant(cells.At(0, 0));
  }
  std::string Text() override {
    static com::Member text(L"Text");
    const auto answer = Get<excel::Variant>(text);
    // Null means that the cells show different texts
    return answer.IsNull() ? Cells(1, 1)->Text() : runtime::CStr(answer);
  }
  void Sort(Ref<excel::Range> key1, std::int32_t order1, std::int32_t header, std::int32_t orderCustom,
            bool matchCase, std::int32_t orientation) override {
    static com::Member sort(L"Sort");
    // Key2, Type, Order2, Key3 and Order3 come between the first order and the header
    Method<void>(sort, key1, order1, com::Missing(), com::Missing(), com::Missing(), com::Missing(),
                 com::Missing(), header, orderCustom, matchCase, orientation);
  }
};

/// Returns true if a sheet is a worksheet. Excel's objects implement its interface; other objects count as
/// worksheets if they have cells.
bool IsWorksheet(const com::ComPtr<IDispatch>& sheet) {
  constexpr IID kWorksheet = {0x000208D8, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  constexpr IID kChart = {0x000208D6, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  if (sheet.As<IDispatch>(kWorksheet)) return true;
  return !sheet.As<IDispatch>(kChart) && com::HasMember(sheet.Get(), L"Cells");
}

}  // namespace

template <>
Ref<excel::Application> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelApplication>(std::move(object));
}
template <>
Ref<excel::Workbook> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelWorkbook>(std::move(object));
}
template <>
Ref<excel::Sheets> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelSheets>(std::move(object));
}
template <>
Ref<excel::Sheet> Wrap(com::ComPtr<IDispatch> object) {
  if (IsWorksheet(object)) return Wrap<excel::Worksheet>(std::move(object));
  return MakeProxy<SheetProxy>(std::move(object));
}
template <>
Ref<excel::Worksheet> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelWorksheet>(std::move(object));
}
template <>
Ref<excel::Range> Wrap(com::ComPtr<IDispatch> object) {
  return MakeProxy<ExcelRange>(std::move(object));
}

}  // namespace plotsmith::proxies

namespace plotsmith::excel {

Ref<Application> WrapApplication(IDispatch* application) {
  return proxies::Wrap<Application>(com::ComPtr<IDispatch>(application));
}

}  // namespace plotsmith::excel

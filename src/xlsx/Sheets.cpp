#include "xlsx/Sheets.h"

#include <algorithm>

#include "runtime/RuntimeError.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Errors.h"

namespace plotsmith::xlsx {

using excel::Ref;
using runtime::RuntimeError;

namespace {

class BookSheets final : public excel::Sheets {
 public:
  explicit BookSheets(Workbook& book) : book_(book) {}

  std::int32_t Count() override { return static_cast<std::int32_t>(book_.Tabs().All().size()); }
  Ref<excel::Sheet> Item(std::int32_t index) override {
    if (index < 1 || index > Count()) throw RuntimeError(runtime::error::kSubscript);
    return book_.Tabs().All()[static_cast<std::size_t>(index) - 1]->object;
  }
  Ref<excel::Sheet> Item(std::string_view name) override {
    const auto sheet = book_.Tabs().Find(name);
    if (!sheet) throw RuntimeError(runtime::error::kSubscript);
    return sheet->object;
  }

  Ref<excel::Worksheet> Add(Ref<excel::Sheet> before, Ref<excel::Sheet> after) override {
    if (book_.ProtectStructure()) {
      throw MethodFailed("Add", "Sheets");
    }
    const auto name = [](const Ref<excel::Sheet>& sheet) {
      return sheet ? runtime::Variant(sheet->Name()) : runtime::Variant();
    };
    book_.Journal().Call([] { return std::string("Sheets"); }, "Add", {name(before), name(after)});
    const auto& sheets = book_.Tabs().All();
    const auto position = [&](const Ref<excel::Sheet>& sheet) {
      const auto found = std::find_if(sheets.begin(), sheets.end(),
                                      [&](const auto& entry) { return entry->object == sheet.shared(); });
      return static_cast<std::size_t>(found - sheets.begin());
    };
    if (after) return book_.Tabs().Add(position(after) + 1);
    return book_.Tabs().Add(position(before ? before : book_.ActiveSheet()));
  }

 private:
  Workbook& book_;
};

class BookWorksheets final : public excel::Worksheets {
 public:
  explicit BookWorksheets(Workbook& book) : book_(book) {}

  std::int32_t Count() override { return static_cast<std::int32_t>(book_.Tabs().Worksheets().size()); }
  Ref<excel::Worksheet> Item(std::int32_t index) override {
    if (index < 1 || index > Count()) throw RuntimeError(runtime::error::kSubscript);
    return book_.Tabs().Worksheets()[static_cast<std::size_t>(index) - 1];
  }
  Ref<excel::Worksheet> Item(std::string_view name) override {
    auto sheet = book_.FindWorksheet(name);
    if (!sheet) throw RuntimeError(runtime::error::kSubscript);
    return sheet;
  }

 private:
  Workbook& book_;
};

}  // namespace

Ref<excel::Sheets> MakeSheets(Workbook& book) { return std::make_shared<BookSheets>(book); }

Ref<excel::Worksheets> MakeWorksheets(Workbook& book) { return std::make_shared<BookWorksheets>(book); }

}  // namespace plotsmith::xlsx

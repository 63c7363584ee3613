#include "xlsx/Window.h"

#include <memory>
#include <string>
#include <utility>

#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"
#include "xlsx/base/Errors.h"
#include "xlsx/sheet/SheetSplice.h"

namespace plotsmith::xlsx {
namespace {

class WindowObject final : public excel::Window {
 public:
  explicit WindowObject(std::shared_ptr<Workbook> book) : book_(std::move(book)) {}

  void SetDisplayGridlines(bool value) override { Set("DisplayGridlines", kShowGridLines, value); }
  void SetDisplayHeadings(bool value) override { Set("DisplayHeadings", kShowHeadings, value); }

 private:
  void Set(const std::string& property, const ViewSetting& setting, bool value) {
    book_->Journal().Put([] { return std::string("ActiveWindow"); }, property, value);
    const auto sheet = book_->Tabs().Active();
    if (!sheet || !sheet->worksheet) throw CantSet(property, "Window");
    sheet->worksheet->SetView(setting, value);
  }

  std::shared_ptr<Workbook> book_;
};

}  // namespace

excel::Ref<excel::Window> MakeWindow(Workbook& book) {
  return std::make_shared<WindowObject>(book.shared_from_this());
}

}  // namespace plotsmith::xlsx

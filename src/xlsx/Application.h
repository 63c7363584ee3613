#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "host/excel/Excel.h"
#include "xlsx/base/Journal.h"

namespace plotsmith::xlsx {

class Workbook;

/// The embedded host: one workbook file, and no spreadsheet program. The objects that it hands out must not
/// be used after it is gone.
class Application : public excel::Application, public std::enable_shared_from_this<Application> {
 public:
  using Macro = std::function<void(const std::vector<runtime::Variant>& arguments)>;

  /// `version` as Excel tells it, such as "16.0".
  static std::shared_ptr<Application> Create(std::string version = "16.0");
  ~Application() override;

  /// Opens a file as the active workbook. Throws PackageError.
  Workbook& Open(const std::string& path);
  /// Makes an empty workbook of one sheet the active one.
  Workbook& NewWorkbook();
  Workbook& Book() { return *workbook_; }

  /// A macro that Run finds, as a host add-in would bring it.
  void DefineMacro(const std::string& name, Macro macro) { macros_[name] = std::move(macro); }
  xlsx::Journal& Journal() { return journal_; }

  excel::Ref<excel::Workbook> ActiveWorkbook() override;
  excel::Ref<excel::Chart> ActiveChart() override;
  excel::Ref<excel::Window> ActiveWindow() override;
  std::string Version() override { return version_; }
  bool ScreenUpdating() override { return screenUpdating_; }
  void SetScreenUpdating(bool value) override;
  bool Interactive() override { return interactive_; }
  void SetInteractive(bool value) override;
  std::int32_t Calculation() override { return calculation_; }
  void SetCalculation(std::int32_t value) override;
  void SetDisplayAlerts(bool value) override;
  /// The font that new workbooks get, in Excel; here that of the workbook's cells.
  std::string StandardFont() override;
  double StandardFontSize() override;
  void Run(std::string_view macro, const std::vector<runtime::Variant>& arguments) override;

 private:
  explicit Application(std::string version) : version_(std::move(version)) {}

  std::string version_;
  xlsx::Journal journal_;
  std::map<std::string, Macro, std::less<>> macros_;
  std::shared_ptr<Workbook> workbook_;
  bool screenUpdating_ = true;
  bool interactive_ = true;
  std::int32_t calculation_ = excel::xlCalculationAutomatic;
};

}  // namespace plotsmith::xlsx

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

/// The embedded host: one workbook file without a spreadsheet program. The objects that it returns must not
/// be used after it has been destroyed.
class Application : public excel::Application, public std::enable_shared_from_this<Application> {
 public:
  /// A macro of the workbook. `arguments` are those of Run after the name.
  using Macro = std::function<void(const std::vector<runtime::Variant>& arguments)>;

  /// Makes a host without a workbook. `version` is the result of Version, such as "16.0".
  static std::shared_ptr<Application> Create(std::string version = "16.0");
  ~Application() override;

  /// Opens a file as the active workbook. Throws PackageError.
  Workbook& Open(const std::string& path);
  /// Makes a workbook with one empty sheet, which becomes the active workbook.
  Workbook& NewWorkbook();
  /// The active workbook. There must be one.
  Workbook& Book() { return *workbook_; }

  /// Defines a macro for Run, as an add-in does in Excel.
  void DefineMacro(const std::string& name, Macro macro) { macros_[name] = std::move(macro); }
  /// The journal of the host's calls.
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
  /// Returns the name of the Normal style's font. In Excel, StandardFont is the font of new workbooks.
  std::string StandardFont() override;
  double StandardFontSize() override;
  /// Runs the macro with that name. Raises error 1004 if there is none.
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

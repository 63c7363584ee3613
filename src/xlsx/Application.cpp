#include "xlsx/Application.h"

#include "xlsx/Window.h"
#include "xlsx/Workbook.h"

namespace plotsmith::xlsx {

using runtime::RuntimeError;
using runtime::Variant;

namespace {

std::string ApplicationPath() { return "Application"; }

}  // namespace

std::shared_ptr<Application> Application::Create(std::string version) {
  return std::shared_ptr<Application>(new Application(std::move(version)));
}

Application::~Application() = default;

Workbook& Application::Open(const std::string& path) {
  workbook_ = Workbook::Open(*this, path);
  calculation_ = workbook_->CalculatesManually() ? excel::xlCalculationManual : excel::xlCalculationAutomatic;
  return *workbook_;
}

Workbook& Application::NewWorkbook() {
  workbook_ = Workbook::New(*this);
  return *workbook_;
}

excel::Ref<excel::Workbook> Application::ActiveWorkbook() { return workbook_; }

excel::Ref<excel::Chart> Application::ActiveChart() {
  return workbook_ ? workbook_->ActiveChart() : excel::Ref<excel::Chart>();
}

excel::Ref<excel::Window> Application::ActiveWindow() {
  return workbook_ ? MakeWindow(*workbook_) : excel::Ref<excel::Window>();
}

void Application::SetScreenUpdating(bool value) {
  journal_.Put(ApplicationPath, "ScreenUpdating", value);
  screenUpdating_ = value;
}

void Application::SetInteractive(bool value) {
  journal_.Put(ApplicationPath, "Interactive", value);
  interactive_ = value;
}

void Application::SetCalculation(std::int32_t value) {
  journal_.Put(ApplicationPath, "Calculation", value);
  calculation_ = value;
}

// This host shows no alerts.
void Application::SetDisplayAlerts(bool value) { journal_.Put(ApplicationPath, "DisplayAlerts", value); }

std::string Application::StandardFont() { return workbook_ ? workbook_->NormalFontName() : "Calibri"; }

double Application::StandardFontSize() { return workbook_ ? workbook_->Styles().NormalFontSize() : 11; }

void Application::Run(std::string_view macro, const std::vector<Variant>& arguments) {
  if (journal_) {
    std::string line = Journal::Literal(macro);
    for (const Variant& argument : arguments) line += ", " + Journal::Literal(argument);
    journal_.Call([&] { return std::string("Application"); }, "Run(" + line + ")");
  }
  const auto found = macros_.find(macro);
  if (found == macros_.end()) {
    throw RuntimeError(
        runtime::error::kApplication,
        "Cannot run the macro '" + std::string(macro) +
            "'. The macro may not be available in this workbook or all macros may be disabled.");
  }
  found->second(arguments);
}

}  // namespace plotsmith::xlsx

#include "common/Messages.h"

#include "common/App.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "host/desktop/Desktop.h"
#include "runtime/Strings.h"

namespace plotsmith {
namespace {

constexpr std::string_view kToken = "/TKN/";

runtime::RuntimeError oLastError(0, "");

}  // namespace

void ShowMessage(std::string_view sMessage) {
  const std::string sText = sMessage.empty() ? sPendingMessage : std::string(sMessage);
  sPendingMessage.clear();
  if (sText.empty()) return;
  App.Desktop->MsgBox(sText, desktop::Buttons::kOk, desktop::Icon::kNone, kProductTitle);
}

std::int32_t AskOkCancel(std::string_view sMessage) {
  return App.Desktop->MsgBox(sMessage, desktop::Buttons::kOkCancel, desktop::Icon::kNone, kProductTitle);
}

void ShowRuntimeError(const runtime::RuntimeError& oErr) {
  const std::string sText = std::string("ERROR") + kLineBreak + "Number: " + std::to_string(oErr.Number()) +
                            kLineBreak + "Description: " + oErr.Description() + kLineBreak +
                            "Source: " + oErr.Source();
  App.Desktop->MsgBox(sText, desktop::Buttons::kOk, desktop::Icon::kCritical, "");
}

void ShowEventError(const runtime::RuntimeError& oErr) {
  App.Desktop->MsgBox(oErr.Description(), desktop::Buttons::kOk, desktop::Icon::kNone,
                      sCustomAppName + " " + kProductTitle);
}

void ShowComplaint(std::string_view sProcedure, std::string_view sComplaint) {
  App.Desktop->MsgBox(std::string(sProcedure) + kLineBreak + std::string(sComplaint), desktop::Buttons::kOk,
                      desktop::Icon::kNone, "");
}

void ShowErrorReport(std::string_view sProcedure, const runtime::RuntimeError& oErr) {
  oLastError = oErr;
  ShowMessage(std::string(sProcedure) + kLineBreak + oErr.Description());
}

const runtime::RuntimeError& LastReportedError() { return oLastError; }

std::string ReplaceTokens(std::string_view sTemplate, std::initializer_list<runtime::Variant> aTokens) {
  std::string sText(sTemplate);
  for (const runtime::Variant& vToken : aTokens) {
    const std::string sToken = runtime::CStr(vToken);
    const auto lAt = sText.find(kToken);
    if (lAt != std::string::npos) sText.replace(lAt, kToken.size(), sToken);
  }
  return runtime::Replace(sText, kToken, "");
}

}  // namespace plotsmith

#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"

namespace plotsmith {

/// An OK box under the product's title. With nothing to say it shows `sPendingMessage`, if there is one; in
/// every case that is empty afterwards.
void ShowMessage(std::string_view sMessage);
/// An OK and Cancel box under the product's title: 1 is OK, 2 is Cancel.
std::int32_t AskOkCancel(std::string_view sMessage);
/// The critical box that shows all of an error, one line each.
void ShowRuntimeError(const runtime::RuntimeError& oErr);
/// The report of an event procedure: a plain box with the description, titled with the host's name for itself
/// and the product's title.
void ShowEventError(const runtime::RuntimeError& oErr);
/// A complaint of the program about itself: a plain box of two lines without a title.
void ShowComplaint(std::string_view sProcedure, std::string_view sComplaint);
/// The report of an error block: the procedure's name, a line break, the description.
void ShowErrorReport(std::string_view sProcedure, const runtime::RuntimeError& oErr);
/// The error of the last such report.
const runtime::RuntimeError& LastReportedError();

/// Fills the placeholders "/TKN/" by position; those left over go.
std::string ReplaceTokens(std::string_view sTemplate, std::initializer_list<runtime::Variant> aTokens);

}  // namespace plotsmith

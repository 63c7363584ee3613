#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "runtime/RuntimeError.h"
#include "runtime/Variant.h"

namespace plotsmith {

/// Shows an OK box with the product's title. For an empty message it shows `sPendingMessage`, if there is
/// one. `sPendingMessage` is always empty afterwards.
void ShowMessage(std::string_view sMessage);
/// Shows an OK and Cancel box with the product's title. Returns 1 for OK and 2 for Cancel.
std::int32_t AskOkCancel(std::string_view sMessage);
/// Shows a critical box with the number, the description and the source of an error, one per line.
void ShowRuntimeError(const runtime::RuntimeError& oErr);
/// Shows the report of an event procedure: a plain box with the description. Its title is the host's name and
/// the product's title.
void ShowEventError(const runtime::RuntimeError& oErr);
/// Shows that the program has detected an internal error: a plain box of two lines without a title.
void ShowComplaint(std::string_view sProcedure, std::string_view sComplaint);
/// Shows the report of an error block: the procedure's name, a line break, the description.
void ShowErrorReport(std::string_view sProcedure, const runtime::RuntimeError& oErr);
/// Returns the error of the last such report.
const runtime::RuntimeError& LastReportedError();

/// Replaces the placeholders "/TKN/" by the tokens, in order. Placeholders without a token are removed.
std::string ReplaceTokens(std::string_view sTemplate, std::initializer_list<runtime::Variant> aTokens);

}  // namespace plotsmith

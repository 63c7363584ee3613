#pragma once

#include <string>
#include <vector>

namespace plotsmith::cli {

/// What a finding is about.
enum class FindingKind {
  kXml,     ///< the text of a definition is no XML
  kUnread,  ///< the definition lies where the system doesn't read
  kId,      ///< the id is missing, or an earlier row has it
  kChart,   ///< no chart bears the id, or the chart can't be read
  kFormat,  ///< an element, an attribute or a value that a definition can't have, or one that is missing
  kTable,   ///< a table isn't there, or doesn't fit
  kColumn,  ///< a column isn't there, or doesn't fit
  kCells    ///< cells of a table hold errors or formulas without a result
};

/// What a command that writes the workbook does about a finding.
enum class Severity {
  kSaid,      ///< it says the sentence and goes on
  kKeeps,     ///< it keeps what the chart has against the definition, and says so
  kConfuses,  ///< it says the sentence; to make, change or delete charts it wants --drop-broken
  kRemoves,   ///< it removes the definition, whose chart was drawn and is gone, and says so
  kRefuses    ///< it would lose the definition, and so writes nothing without --drop-broken
};

/// Something that is wrong in a workbook.
struct Finding {
  std::string place;  ///< a cell such as "Data1!C5", or a defined name
  FindingKind kind;
  std::string sentence;
  Severity severity = Severity::kSaid;
};

using Findings = std::vector<Finding>;

/// Whether a command that writes the workbook loses the row for this, or would lose it.
bool LosesRow(const Finding& finding);

/// Puts findings behind others.
void Append(Findings& findings, Findings more);

/// The kind in one word, for programs.
const char* KindName(FindingKind kind);
/// The severity in one word, for programs.
const char* SeverityName(Severity severity);
/// The sentence with what the next command that writes the workbook does about it.
std::string Foretold(const Finding& finding);
/// The sentence with what a command that wrote the workbook has done about it.
std::string Reported(const Finding& finding);

}  // namespace plotsmith::cli

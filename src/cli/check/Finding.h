#pragma once

#include <string>
#include <vector>

namespace plotsmith::cli {

/// The subject of a finding.
enum class FindingKind {
  kXml,     ///< The text of a definition isn't XML.
  kUnread,  ///< The definition is in a row that the system doesn't read.
  kId,      ///< The id is missing, or an earlier row has it.
  kChart,   ///< No chart has the id, or the chart can't be read.
  kFormat,  ///< An element, an attribute or a value is invalid or missing.
  kTable,   ///< A table is missing or doesn't fit.
  kColumn,  ///< A column is missing or doesn't fit.
  kCells    ///< Cells of a table contain errors or formulas without a result.
};

/// The effect of a finding on a command that writes the workbook.
enum class Severity {
  kReports,      ///< The command prints the sentence and continues.
  kKeepsChart,   ///< The command keeps the chart's setting, not the definition's, and reports that.
  kBlocksEdits,  ///< The command prints the sentence. Making, changing or deleting charts needs
                 ///< --drop-broken.
  kRemoves,      ///< The command removes and reports a definition whose drawn chart no longer exists.
  kRefuses       ///< The command would lose the definition. It writes nothing without --drop-broken.
};

/// A problem in a workbook.
struct Finding {
  std::string place;                       ///< A cell such as "Data1!C5", or a defined name.
  FindingKind kind;                        ///< The kind of the problem, for programs.
  std::string sentence;                    ///< The message, with a full stop.
  Severity severity = Severity::kReports;  ///< The effect on a command that writes the workbook.
};

/// A list of findings.
using Findings = std::vector<Finding>;

/// Returns true if a command that writes the workbook loses, or would lose, the row because of this finding.
bool LosesRow(const Finding& finding);

/// Appends findings.
void Append(Findings& findings, Findings more);

/// Returns the kind in one word, for programs.
const char* KindName(FindingKind kind);
/// Returns the severity in one word, for programs.
const char* SeverityName(Severity severity);
/// Returns the sentence with the effect on the next command that writes the workbook.
std::string SentenceBeforeRun(const Finding& finding);
/// Returns the sentence with the effect on the command that has written the workbook.
std::string SentenceAfterRun(const Finding& finding);

}  // namespace plotsmith::cli

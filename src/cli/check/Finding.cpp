#include "cli/check/Finding.h"

#include <iterator>

namespace plotsmith::cli {
namespace {

/// Returns the sentence with another clause before its full stop.
std::string With(const std::string& sentence, const char* clause) {
  return sentence.substr(0, sentence.find_last_not_of('.') + 1) + "; " + clause + ".";
}

}  // namespace

void Append(Findings& findings, Findings more) {
  findings.insert(findings.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

bool LosesRow(const Finding& finding) {
  return finding.severity == Severity::kRemoves || finding.severity == Severity::kRefuses;
}

const char* KindName(FindingKind kind) {
  switch (kind) {
    case FindingKind::kXml:
      return "xml";
    case FindingKind::kUnread:
      return "unread";
    case FindingKind::kId:
      return "id";
    case FindingKind::kChart:
      return "chart";
    case FindingKind::kFormat:
      return "format";
    case FindingKind::kTable:
      return "table";
    case FindingKind::kColumn:
      return "column";
    case FindingKind::kCells:
      return "cells";
  }
  return "";
}

const char* SeverityName(Severity severity) {
  switch (severity) {
    case Severity::kReports:
      return "reports";
    case Severity::kKeepsChart:
      return "keeps-chart";
    case Severity::kBlocksEdits:
      return "blocks-edits";
    case Severity::kRemoves:
      return "removes";
    case Severity::kRefuses:
      return "refuses";
  }
  return "";
}

std::string SentenceBeforeRun(const Finding& finding) {
  switch (finding.severity) {
    case Severity::kReports:
      break;
    case Severity::kKeepsChart:
      return With(finding.sentence, "the next refresh keeps the one on the chart");
    case Severity::kBlocksEdits:
      return With(finding.sentence,
                  "until this is corrected, charts are only made, changed or deleted with --drop-broken");
    case Severity::kRemoves:
      return With(finding.sentence,
                  "the chart was drawn and no longer exists, so the next refresh removes its definition");
    case Severity::kRefuses:
      return With(finding.sentence,
                  "until this is corrected, the workbook is only written with --drop-broken");
  }
  return finding.sentence;
}

std::string SentenceAfterRun(const Finding& finding) {
  switch (finding.severity) {
    case Severity::kReports:
    case Severity::kBlocksEdits:
      break;
    case Severity::kKeepsChart:
      return With(finding.sentence, "the one on the chart was kept");
    case Severity::kRemoves:
      return With(finding.sentence,
                  "the chart was drawn and no longer exists, so its definition was removed");
    case Severity::kRefuses:
      return With(finding.sentence, "the row was dropped");
  }
  return finding.sentence;
}

}  // namespace plotsmith::cli

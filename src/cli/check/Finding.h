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

/// Something that is wrong in a workbook.
struct Finding {
  std::string place;  ///< a cell such as "Data1!C5", or a defined name
  FindingKind kind;
  std::string sentence;
};

using Findings = std::vector<Finding>;

/// The kind in one word, for programs.
const char* KindName(FindingKind kind);

}  // namespace plotsmith::cli

#include "cli/Candidates.h"

#include <algorithm>
#include <exception>
#include <sstream>

#include "cli/Session.h"
#include "cli/check/TableCheck.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

using Words = std::vector<std::string>;

/// Adds a word once, unless it doesn't fit on a line.
void Add(Words& words, const std::string& word) {
  const bool isPlain =
      std::none_of(word.begin(), word.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
  if (word.empty() || !isPlain || std::find(words.begin(), words.end(), word) != words.end()) return;
  words.push_back(word);
}

Words Tables() {
  Words words;
  for (const std::string& id : LoadedTableIds()) Add(words, id);
  return words;
}

Words Charts() {
  Words words;
  for (const char* attribute : {"id", "name"}) {
    for (const auto& document : *colCharts) {
      Add(words, GetAttributeText(document.selectSingleNode("chart"), attribute));
    }
  }
  return words;
}

/// Returns the columns of one table, or of all tables if `table` is empty.
Words Columns(const std::string& table) {
  Words words;
  for (const auto& document : *colTables) {
    const auto element = document.selectSingleNode("table");
    if (!table.empty() && !runtime::EqualsIgnoreCase(GetAttributeText(element, "id"), table)) continue;
    for (const auto& column : element.childElements()) Add(words, GetAttributeText(column, "name"));
  }
  return words;
}

Words Candidates(const std::vector<std::string>& arguments) {
  if (arguments.size() < 2) return {};
  std::istringstream in;
  std::ostringstream silent;
  Session session(arguments[1], {}, {in, silent, silent});
  if (arguments[0] == "charts") {
    session.LoadTablesAndCharts();
    return Charts();
  }
  session.LoadTables();
  if (arguments[0] == "tables") return Tables();
  if (arguments[0] != "columns") return {};
  const bool hasTable = arguments.size() == 4 && arguments[2] == "--table";
  return Columns(hasTable ? arguments[3] : "");
}

}  // namespace

void PrintCandidates(const std::vector<std::string>& arguments, const Streams& streams) {
  try {
    for (const std::string& word : Candidates(arguments)) streams.out << word << '\n';
    streams.out.flush();
  } catch (const std::exception&) {
    // A message would disturb the line that the user types.
  }
}

}  // namespace plotsmith::cli

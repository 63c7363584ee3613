#include "tests/support/VerbsTest.h"

namespace plotsmith::test {

using S = std::string;

PlainBook PlainSales() {
  PlainBook book;
  book.sheets.push_back(SalesSheet());
  PlainSheet targets{"Targets"};
  targets.rows = {{S("Targets")}, {}, {S("Region"), S("Amount")}, {S("East"), 100.0}, {S("West"), 50.0}};
  book.sheets.push_back(targets);
  book.names = {{"VEX_SB1", "Targets!$A$1:$B$5"}};
  return book;
}

std::string VerbsTest::Write(const PlainBook& book, const std::string& name) {
  book.Write(folder_ / name);
  return folder_ / name;
}

CommandResult VerbsTest::Wizard(const std::string& book, const std::string& script,
                                const std::vector<std::string>& more) {
  return RunCommand(Joined({"wizard", book, "--script", "-"}, more), script);
}

std::string VerbsTest::Charts(const std::string& book) { return RunCommand({"charts", book}).out; }

std::string VerbsTest::StoredDefinition(const std::string& book, const std::string& chart) {
  return RunCommand({"definition", book, chart}).out;
}

}  // namespace plotsmith::test

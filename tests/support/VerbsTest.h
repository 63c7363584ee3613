#pragma once

#include <string>
#include <vector>

#include "tests/support/HostTest.h"
#include "tests/support/RunCommand.h"

namespace plotsmith::test {

/// Returns a workbook without charts: sales by region and product, and a table of regions that can be a
/// bucket table.
PlainBook PlainSales();

/// Tests of the verbs of the command. Each test has its own files.
class VerbsTest : public ::testing::Test {
 protected:
  std::string Write(const PlainBook& book, const std::string& name = "book.xlsx");
  /// Runs a script on the pages, with further arguments.
  static CommandResult Wizard(const std::string& book, const std::string& script,
                              const std::vector<std::string>& more = {});
  static std::string Charts(const std::string& book);
  static std::string StoredDefinition(const std::string& book, const std::string& chart);

  TempFolder folder_;
};

}  // namespace plotsmith::test

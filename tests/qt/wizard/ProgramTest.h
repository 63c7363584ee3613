#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "tests/qt/support/Robot.h"
#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/WizardWays.h"

namespace plotsmith::test {

/// The result of a run of the program on a workbook.
struct ProgramResult {
  int code;             ///< The exit code.
  std::string failure;  ///< The failure of the robot's script, or "".
  std::string seen;     ///< The windows that were shown.
  std::vector<std::string> told;
  std::string err;  ///< The text on stderr, or the reason why the program didn't start.
};

/// A test of plotsmith-wizard on a copy of a workbook in its own folder.
class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest();
  /// Runs the program with a script for the robot, which must play to its end. Expects the exit code 0.
  ProgramResult Run(const std::string& script, Actions actions = {},
                    const std::optional<std::string>& output = std::nullopt);
  /// Runs the program. The script may stop before its end, and the exit code may be any.
  ProgramResult RunFreely(const std::string& script, Actions actions = {},
                          const std::optional<std::string>& output = std::nullopt);

  /// Builds a chart in the workbook, so that the wizard has all its pages.
  void AddChart();

  TempFolder folder_;
  std::string book_;   ///< The copy: a table of orders, without charts.
  std::string fresh_;  ///< The bytes of the copy.
};

/// The actions that make a column chart of the orders, except the last press.
inline constexpr const char* kNewChart =
    "page frmPSSelectTable; select grdTables Data1; choose optType(1); press cmdNext; page frmPSLayoutABC; "
    "type txtTitle Sums; press cmdNext; page frmPSChartLocation; ";

}  // namespace plotsmith::test

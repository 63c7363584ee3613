#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "tests/qt/support/Robot.h"
#include "tests/support/HostTest.h"
#include "tests/support/WizardWays.h"

namespace plotsmith::test {

/// A run of the program on a workbook, and what came of it.
struct ProgramResult {
  int code;             ///< the exit code
  std::string failure;  ///< of the robot's script; "" if it was played to its end
  std::string seen;     ///< the windows that came
  std::vector<std::string> told;
  std::string err;  ///< what stderr has, or the reason why the program didn't start
};

/// A test of plotsmith-wizard on a copy of a workbook, in a folder of its own.
class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest();
  ProgramResult Run(const std::string& script, Robot::Deeds deeds = {},
                    const std::optional<std::string>& output = std::nullopt);

  /// Builds a chart in the workbook, so that the wizard has all its pages.
  void AddChart();

  TempFolder folder_;
  std::string book_;   ///< the copy: one table of orders, no chart
  std::string fresh_;  ///< its bytes
};

/// All bytes of a file; "" if there is none.
std::string BytesOf(const std::string& path);

/// The gestures that make a column chart of the orders, up to the page before the last press.
inline constexpr const char* kNewChart =
    "page frmPSSelectTable; select grdTables Data1; choose optType(1); press cmdNext; page frmPSLayoutABC; "
    "type txtTitle Sums; press cmdNext; page frmPSChartLocation; ";

}  // namespace plotsmith::test

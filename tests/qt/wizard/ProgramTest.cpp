#include "tests/qt/wizard/ProgramTest.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "qt/wizard/WizardProgram.h"
#include "tests/support/Paths.h"
#include "tests/support/RunCommand.h"

namespace plotsmith::test {

const std::string kToTable =
    "page frmPSSelectAction; select grdCharts #1; press cmdNew; page frmPSSelectTable; select grdTables "
    "Data1; ";

namespace {

std::string ToLayout(int type, const std::string& page) {
  return kToTable + "choose optType(" + std::to_string(type) + "); press cmdNext; page " + page + "; ";
}

}  // namespace

const std::vector<Way> kWays = {
    {"frmPSSelectAction", "page frmPSSelectAction; select grdCharts #1; "},
    {"frmPSSelectTable", kToTable + "choose optType(1); "},
    {"frmPSLayoutABC", ToLayout(1, "frmPSLayoutABC") + "type txtTitle A; "},
    {"frmPSLayoutPie", ToLayout(3, "frmPSLayoutPie") + "type txtTitle A; select lstCategories Region; "},
    {"frmPSLayoutBubble", ToLayout(4, "frmPSLayoutBubble")},
    {"frmPSLayoutStrBuck", ToLayout(5, "frmPSLayoutStrBuck")},
    {"frmPSChartLocation",
     ToLayout(1, "frmPSLayoutABC") + "type txtTitle A; press cmdNext; page frmPSChartLocation; "},
};

ProgramTest::ProgramTest() : book_(folder_ / "orders.xlsx") {
  std::filesystem::copy_file(std::string(test::kSourceFolder) + "/examples/data/orders.xlsx", book_);
  fresh_ = BytesOf(book_);
}

void ProgramTest::AddChart() {
  const auto made = RunCommand({"new", book_, "--table", "Data1", "--type", "pie", "--title", "Units",
                                "--categories", "Product", "--values", "Units"});
  ASSERT_EQ(made.code, 0) << made.err;
  fresh_ = BytesOf(book_);
}

ProgramResult ProgramTest::Run(const std::string& script, Robot::Deeds deeds,
                               const std::optional<std::string>& output) {
  std::istringstream in;
  std::ostringstream out, err;
  const Robot robot(script, std::move(deeds));
  int code = 0;
  std::string refusal;
  try {
    code = qt::WizardProgram({book_, output, {}}, {in, out, err}).Run();
  } catch (const cli::CommandError& e) {
    code = e.ExitCode();
    refusal = e.what();
  }
  return {code, robot.Failure(), robot.Seen(), robot.Told(), err.str() + refusal};
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

}  // namespace plotsmith::test

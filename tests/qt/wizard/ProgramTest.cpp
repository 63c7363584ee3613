#include "tests/qt/wizard/ProgramTest.h"

#include <filesystem>
#include <sstream>

#include "qt/wizard/WizardProgram.h"
#include "tests/support/Files.h"
#include "tests/support/Paths.h"
#include "tests/support/RunCommand.h"

namespace plotsmith::test {

ProgramTest::ProgramTest() : book_(folder_ / "orders.xlsx") {
  std::filesystem::copy_file(std::string(test::kSourceFolder) + "/examples/data/orders.xlsx", book_);
  fresh_ = test::BytesOf(book_);
}

void ProgramTest::AddChart() {
  const auto made = RunCommand({"new", book_, "--table", "Data1", "--type", "pie", "--title", "Units",
                                "--categories", "Product", "--values", "Units"});
  ASSERT_EQ(made.code, 0) << made.err;
  fresh_ = test::BytesOf(book_);
}

ProgramResult ProgramTest::Run(const std::string& script, Actions actions,
                               const std::optional<std::string>& output) {
  auto result = RunFreely(script, std::move(actions), output);
  EXPECT_EQ(result.failure, "");
  EXPECT_EQ(result.code, 0);
  return result;
}

ProgramResult ProgramTest::RunFreely(const std::string& script, Actions actions,
                                     const std::optional<std::string>& output) {
  std::istringstream in;
  std::ostringstream out, err;
  const Robot robot(script, std::move(actions));
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

}  // namespace plotsmith::test

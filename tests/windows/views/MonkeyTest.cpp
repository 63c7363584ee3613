#include <gtest/gtest.h>

#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/Monkey.h"

namespace plotsmith {
namespace {

using S = std::string;

constexpr int kEvents = 120;  ///< The number of events of a run, unless it ends early.
constexpr unsigned kSeeds = 3;

class MonkeyTest : public test::DialogTest, public testing::WithParamInterface<std::size_t> {};

// After each line of a script, the stage compares the window with its form.
TEST_P(MonkeyTest, APageShowsTheStateOfItsForm) {
  const test::Way& way = test::kWays[GetParam()];
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    test::Monkey monkey(seed);
    const auto action = [&] {
      if (test::FrontWindow() == nullptr) return;
      monkey.MakeEvent(test::FrontWindow());
      test::EndAction();
    };
    S script = way.lines;
    for (int i = 0; i < kEvents; ++i) script += "answer cancel; do monkey; ";
    const S failure = PlayOnOrders(script, {{"monkey", action}});
    EXPECT_TRUE(failure.empty() || failure.find("a message that no line expects") != S::npos ||
                failure.find("the run is over") != S::npos)
        << failure;
    EXPECT_TRUE(IsWindowEnabled(hostWindow_.Handle()));
    EXPECT_EQ(hostWindow_.Inputs(), 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Pages, MonkeyTest, testing::Range(std::size_t{0}, test::kWays.size()),
                         [](const auto& page) { return test::kWays[page.param].page; });

}  // namespace
}  // namespace plotsmith

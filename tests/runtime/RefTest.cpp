#include <gtest/gtest.h>
#include <string>

#include "runtime/Ref.h"
#include "tests/support/ErrorOf.h"

namespace plotsmith::runtime {
namespace {

TEST(RefTest, NothingIsError91) {
  const Ref<std::string> nothing;
  EXPECT_EQ(test::ErrorOf([&] { static_cast<void>(nothing->size()); }), error::kObjectNotSet);
  EXPECT_EQ(MakeRef<std::string>("abc")->size(), 3u);
}

}  // namespace
}  // namespace plotsmith::runtime

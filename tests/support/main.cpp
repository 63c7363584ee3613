#include <clocale>
#include <gtest/gtest.h>
#include <iostream>
#include <locale>
#include <stdexcept>

/// The tests run in the locale of the environment, like the component inside another program, because nothing
/// may depend on it.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  try {
    std::locale::global(std::locale(""));
  } catch (const std::runtime_error&) {
    std::cerr << "the environment names a locale that isn't there\n";
    return 1;
  }
  return RUN_ALL_TESTS();
}

#include "Fault.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <mutex>
#include <vector>

namespace plotsmith_fault {
namespace {

/// Returns the number of the active fault; 0 for none.
int Active() {
  const char* number = std::getenv("PLOTSMITH_FAULT");
  return number == nullptr ? 0 : std::atoi(number);
}

/// Appends "fault TAB test" to the file that the environment names. A fault that the same test reaches again
/// isn't repeated.
void Record(int fault) {
  static std::FILE* const file = [] {
    const char* path = std::getenv("PLOTSMITH_FAULTS_RECORD");
    return path == nullptr ? nullptr : std::fopen(path, "a");
  }();
  if (file == nullptr) return;
  static std::mutex lock;
  static std::vector<const void*> last;
  const std::lock_guard guard(lock);
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  const auto at = static_cast<std::size_t>(fault);
  if (last.size() <= at) last.resize(at + 1000, &last);
  if (last[at] == test) return;
  last[at] = test;
  if (test == nullptr) {
    std::fprintf(file, "%d\t*\n", fault);
  } else {
    std::fprintf(file, "%d\t%s.%s\n", fault, test->test_suite_name(), test->name());
  }
  std::fflush(file);
}

}  // namespace

bool On(int fault) {
  static const int active = Active();
  static const bool records = std::getenv("PLOTSMITH_FAULTS_RECORD") != nullptr;
  if (records) Record(fault);
  return fault == active;
}

}  // namespace plotsmith_fault

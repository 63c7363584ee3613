// The entry that libFuzzer calls, for the target that the build names.

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const plotsmith::fuzz::Target* const target = [] {
    for (const auto& candidate : plotsmith::fuzz::kTargets) {
      if (std::string_view(candidate.name) == PLOTSMITH_FUZZ_TARGET) return &candidate;
    }
    std::cerr << "no target " << PLOTSMITH_FUZZ_TARGET << '\n';
    std::abort();
  }();
  target->run(data, size);
  return 0;
}

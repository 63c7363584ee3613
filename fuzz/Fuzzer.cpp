// The entry point for libFuzzer. The environment variable PLOTSMITH_FUZZ_TARGET selects the target.

#include <cstdlib>
#include <iostream>
#include <string_view>

#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const plotsmith::fuzz::Target target = [] {
    const char* const name = std::getenv("PLOTSMITH_FUZZ_TARGET");
    for (const auto& candidate : plotsmith::fuzz::kTargets) {
      if (name != nullptr && std::string_view(name) == candidate.name) return candidate;
    }
    std::cerr << "PLOTSMITH_FUZZ_TARGET names no target\n";
    std::exit(2);
  }();
  target.run(data, size);
  return 0;
}

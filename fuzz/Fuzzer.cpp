// The entry points for libFuzzer. The environment variable PLOTSMITH_FUZZ_TARGET selects the target.

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "fuzz/Mutations.h"
#include "fuzz/Targets.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace plotsmith::fuzz {
namespace {

const Target& ChosenTarget() {
  static const Target target = [] {
    const char* const name = std::getenv("PLOTSMITH_FUZZ_TARGET");
    for (const Target& candidate : kTargets) {
      if (name != nullptr && std::string_view(name) == candidate.name) return candidate;
    }
    std::cerr << "PLOTSMITH_FUZZ_TARGET names no target\n";
    std::exit(2);
  }();
  return target;
}

std::string Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

std::string MutateText(const std::string& text) {
  std::string bytes = text;
  bytes.resize(text.size() + 64);
  bytes.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(bytes.data()), text.size(), bytes.size()));
  return bytes;
}

}  // namespace
}  // namespace plotsmith::fuzz

using namespace plotsmith::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ChosenTarget().run(data, size);
  return 0;
}

// Two of three changes keep the form of the input. The others change any bytes.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  Random random(seed);
  const Form form = random() % 3 == 0 ? Form::kBytes : ChosenTarget().form;
  std::string changed;
  if (form == Form::kXml) changed = MutateXml(Text(data, size), random, MutateText);
  if (form == Form::kZip) changed = MutateZip(Text(data, size), random, MutateText);
  if (changed.empty() || changed.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  std::copy(changed.begin(), changed.end(), data);
  return changed.size();
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data, std::size_t size,
                                                 const std::uint8_t* other, std::size_t otherSize,
                                                 std::uint8_t* out, std::size_t maxSize, unsigned seed) {
  Random random(seed);
  const std::string crossed = ChosenTarget().form == Form::kXml
                                  ? CrossXml(Text(data, size), Text(other, otherSize), random)
                                  : std::string();
  if (crossed.size() > maxSize) return 0;  // libFuzzer changes the input in another way
  std::copy(crossed.begin(), crossed.end(), out);
  return crossed.size();
}

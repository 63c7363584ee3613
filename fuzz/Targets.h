#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace plotsmith::fuzz {

/// What reads foreign bytes, one entry each. A target takes any bytes and returns; what it must not do is
/// crash, hang, or take memory without bound. The fuzzers run them on inputs that they make up, and an
/// ordinary test on the inputs that once failed.
struct Target {
  const char* name;  ///< also the folder of its seeds and findings
  void (*run)(const std::uint8_t* data, std::size_t size);
};

extern const std::span<const Target> kTargets;

}  // namespace plotsmith::fuzz

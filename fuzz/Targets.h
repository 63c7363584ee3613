#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace plotsmith::fuzz {

/// The outer form of a target's inputs, which tells how a fuzzer changes them.
enum class Form { kBytes, kXml, kZip };

/// A fuzz target: code that reads bytes from outside. A target accepts any bytes. It must not crash, hang, or
/// use memory without bound. The fuzzers run targets on generated inputs, and an ordinary test runs them on
/// inputs that have failed.
struct Target {
  const char* name;  ///< The name, also of the folder of its seeds and findings.
  void (*run)(const std::uint8_t* data, std::size_t size);
  Form form;  ///< The form of most inputs. The target accepts others too.
};

extern const std::span<const Target> kTargets;

}  // namespace plotsmith::fuzz

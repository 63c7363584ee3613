#pragma once

#include <cstdint>

#include "cli/ConsoleDesktop.h"

namespace plotsmith::test {

/// A desktop in another country.
class ForeignDesktop final : public cli::ConsoleDesktop {
 public:
  explicit ForeignDesktop(std::int32_t lcid) : lcid_(lcid) {}
  std::int32_t UserDefaultLCID() override { return lcid_; }

 private:
  std::int32_t lcid_;
};

}  // namespace plotsmith::test

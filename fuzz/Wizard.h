#pragma once

#include <cstddef>
#include <cstdint>

namespace plotsmith::fuzz {

/// Performs random actions on the wizard's pages with random tables. Aborts the program if a load changes
/// settings that were made on the pages, or if a second load changes anything.
void Wizard(const std::uint8_t* data, std::size_t size);

}  // namespace plotsmith::fuzz

#pragma once

#include <cstddef>
#include <cstdint>

namespace plotsmith::fuzz {

/// Random gestures on the pages of the wizard, over random tables. Stops the program if a load changes by
/// itself what was chosen on the pages, or if a second load changes anything.
void Wizard(const std::uint8_t* data, std::size_t size);

}  // namespace plotsmith::fuzz

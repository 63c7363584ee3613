#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"

namespace plotsmith::cli {

/// The word by which the completions of a shell ask the command. It is no verb: neither help nor manual tells
/// of it.
inline constexpr const char* kComplete = "complete";

/// Prints what a shell can offer, one candidate a line. `arguments` are behind the word: "tables", "charts"
/// or "columns", a workbook, and for columns perhaps "--table" and an id. Where anything fails there is
/// nothing to offer, and nothing is said.
void PrintCandidates(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace plotsmith::cli

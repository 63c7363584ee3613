#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"

namespace plotsmith::cli {

/// The word with which shell completions call the command. It isn't a verb, and neither help nor manual
/// mentions it.
inline constexpr const char* kComplete = "complete";

/// Prints the candidates for a shell completion, one per line. `arguments` follow the word: "tables",
/// "charts" or "columns", then a workbook, and for columns optionally "--table" and an id. If an error
/// occurs, it prints nothing.
void PrintCandidates(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace plotsmith::cli

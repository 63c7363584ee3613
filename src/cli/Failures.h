#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Performs the work and returns its exit code. An exception becomes a sentence on `err` and the matching
/// exit code.
int Guarded(std::ostream& err, const std::function<int()>& work);

/// Returns the error for an argument that names something which the workbook doesn't have. `kind` is a noun,
/// such as "sheet", and `there` are the names that the workbook has.
CommandError NotInBook(const std::string& book, const std::string& kind, const std::string& name,
                       const std::vector<std::string>& there);

}  // namespace plotsmith::cli

#pragma once

#include <string>
#include <vector>

namespace plotsmith::cli {

/// Returns the path of another program of Plotsmith: in the folder of the command's executable, or in a
/// folder of PATH. It is empty if the program isn't found.
std::string FindProgram(const std::string& name);

/// Replaces this process by the program, so that the caller gets its exit code and the signals that end it.
/// `arguments` don't include the program's name. Throws CommandError if the program can't be started;
/// otherwise it doesn't return.
[[noreturn]] void BecomeProgram(const std::string& path, const std::vector<std::string>& arguments);

}  // namespace plotsmith::cli

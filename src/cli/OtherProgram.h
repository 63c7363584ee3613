#pragma once

#include <string>
#include <vector>

namespace plotsmith::cli {

/// The path of a program of Plotsmith's other than the command: in the folder of the command's own
/// executable, else in a folder of PATH. Empty if neither has it.
std::string FindProgram(const std::string& name);

/// Runs the program in place of this one, so that its exit code and the signals that end it reach the caller.
/// `arguments` don't include the program's name. Returns only by a CommandError: the program can't be
/// started.
[[noreturn]] void BecomeProgram(const std::string& path, const std::vector<std::string>& arguments);

}  // namespace plotsmith::cli

#pragma once

#include <optional>
#include <string>

#include "cli/Command.h"
#include "cli/wizard/VerbScript.h"

namespace plotsmith::cli {

/// The options of all verbs that use the wizard's pages.
struct VerbOptions {
  std::string book;                   ///< The path of the workbook.
  std::optional<std::string> output;  ///< The path of the result; absent for the original file.
  bool printScript = false;           ///< Whether the script is printed and nothing is saved.
};

/// Declares the workbook.
void DeclareBook(CLI::App& verb, VerbOptions& options);
/// Declares the output and the printing of the script.
void DeclareOutput(CLI::App& verb, VerbOptions& options);

/// Runs the verb's script and saves, or prints the script. Returns an exit code. Throws CommandError if a
/// page rejects its input or an option can't be used; nothing is saved then.
int PlayVerb(VerbScript& script, const VerbOptions& verb, const GlobalOptions& options,
             const Streams& streams);

}  // namespace plotsmith::cli

#include "cli/wizard/PlayVerb.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/WizardRun.h"

namespace plotsmith::cli {
namespace {

/// Returns the sentence with a full stop unless it has punctuation at the end.
std::string Ended(const std::string& sentence) {
  return sentence.ends_with('.') || sentence.ends_with('!') ? sentence : sentence + ".";
}

}  // namespace

void DeclareBook(CLI::App& verb, VerbOptions& options) {
  verb.add_option("BOOK", options.book, "The workbook (.xlsx, .xlsm, .xltx or .xltm)")->required();
}

void DeclareOutput(CLI::App& verb, VerbOptions& options) {
  verb.add_option("-o,--output", options.output, kOutputDescription)->type_name("FILE");
  verb.add_flag("--print-script", options.printScript,
                "Print the wizard's script for this command, and save nothing");
}

int PlayVerb(VerbScript& script, const VerbOptions& verb, const GlobalOptions& options,
             const Streams& streams) {
  WizardRun run(
      verb.book, options, streams, script, [](const forms::FormState&) {}, Outside::kCommand);
  script.SetPageMessages(run.Desktop().PageMessages());
  if (!verb.printScript) {
    run.OpenSession().CheckWritable(verb.output);
    run.OpenSession().CheckBeforeRun(DefinitionsAre::kEdited);
  }
  run.Play();
  if (const auto& failure = run.Player().Failed()) {
    run.OpenSession().Finish();
    throw CommandError(exit_code::kUsage, Ended(failure->sentence));
  }
  if (!run.HasChangedCharts()) {
    // The run ended early and has reported the reason.
    run.OpenSession().Finish();
    throw CommandError(exit_code::kUsage, "nothing was done, and nothing is saved.");
  }
  if (!verb.printScript) return run.OpenSession().Save(verb.output);
  const int code = run.OpenSession().Finish();
  for (const std::string& line : script.Lines()) streams.out << line << '\n';
  return code;
}

}  // namespace plotsmith::cli

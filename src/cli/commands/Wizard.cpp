#include "cli/commands/Wizard.h"

#include <CLI/CLI.hpp>
#include <cerrno>
#include <fstream>
#include <utility>
#include <vector>

#include "cli/FormPrinter.h"
#include "cli/OtherProgram.h"
#include "cli/wizard/WizardRun.h"
#include "runtime/SystemErrors.h"
#include "runtime/Utf8Path.h"
#include "runtime/Variant.h"

namespace plotsmith::cli {
namespace {

constexpr const char* kStandardInput = "-";
/// The program with the windows of the pages. It is a separate program because linking a toolkit would slow
/// down the start of the command.
constexpr const char* kWindowProgram = "plotsmith-wizard";

}  // namespace

void WizardCommand::DeclareOptions(CLI::App& verb) {
  verb.footer(
      "plotsmith wizard BOOK [-o FILE]\n"
      "plotsmith wizard BOOK --script FILE [-o FILE] [--show] [--json]");
  verb.add_option("BOOK", book_, "The workbook (.xlsx, .xlsm, .xltx or .xltm)")->required();
  CLI::Option* const script =
      verb.add_option("--script", script_, "The script, one action per line; \"-\" is the standard input")
          ->type_name("FILE");
  verb.add_option("-o,--output", output_, kOutputDescription)->type_name("FILE");
  verb.add_flag("--show", show_, "Print the page that is open when the script ends")->needs(script);
  verb.add_flag("--json", json_, "Print pages as JSON")->needs(script);
}

int WizardCommand::Run(const GlobalOptions& options, const Streams& streams) {
  if (!script_) OpenWindow(options);
  if (*script_ == kStandardInput) return Play(streams.in, options, streams);
  std::ifstream file(runtime::PathOf(*script_), std::ios::binary);
  // A folder can be opened but not read.
  if (!file || (file.peek() == std::ifstream::traits_type::eof() && !file.eof())) {
    throw CommandError(exit_code::kFile,
                       "can't read \"" + *script_ + "\": " + runtime::SystemErrorText(errno) + ".");
  }
  return Play(file, options, streams);
}

void WizardCommand::OpenWindow(const GlobalOptions& options) const {
  const std::string program = FindProgram(kWindowProgram);
  if (program.empty()) {
    throw CommandError(exit_code::kUsage,
                       "the wizard's window is the program plotsmith-wizard, which isn't installed; without "
                       "it, --script FILE runs a script on the wizard's pages, and the verbs new, modify, "
                       "copy and delete operate the pages.");
  }
  // The equals sign and "--" support file names that begin with a dash.
  std::vector<std::string> arguments = {"--host-version", runtime::NumberText(options.hostVersion)};
  if (options.journal) arguments.emplace_back("--journal");
  if (options.force) arguments.emplace_back("--force");
  if (options.dropBroken) arguments.emplace_back("--drop-broken");
  if (output_) arguments.push_back("--output=" + *output_);
  arguments.insert(arguments.end(), {"--", book_});
  BecomeProgram(program, arguments);
}

int WizardCommand::Play(std::istream& script, const GlobalOptions& options, const Streams& streams) const {
  forms::StreamLines lines(script);
  bool isFirst = true;
  std::ostream& pages = IsStandardOutput(output_) ? streams.err : streams.out;
  const auto print = [&](const forms::FormState& form) {
    if (!std::exchange(isFirst, false) && !json_) pages << '\n';
    (json_ ? PrintFormAsJson : PrintForm)(pages, form);
    pages.flush();
  };
  WizardRun run(book_, options, streams, lines, print, Outside::kScript);
  run.OpenSession().CheckWritable(output_);
  run.OpenSession().CheckBeforeRun(DefinitionsAre::kEdited);
  run.Play();
  if (const auto& failure = run.Player().Failed()) {
    run.OpenSession().Finish();
    throw CommandError(exit_code::kUsage,
                       *script_ + ":" + std::to_string(failure->line) + ": " + failure->sentence + ".");
  }
  if (show_ && run.Player().LastState()) print(*run.Player().LastState());
  if (run.HasChangedCharts()) {
    run.OpenSession().Save(output_);
  } else {
    run.OpenSession().Finish();
  }
  return exit_code::kDone;  // A script that fits the pages has succeeded, even if the workbook has problems.
}

}  // namespace plotsmith::cli

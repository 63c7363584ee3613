#include <CLI/CLI.hpp>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <iostream>
#include <utility>

#include "cli/LiteralArguments.h"
#include "cli/NumberOptions.h"
#include "qt/Texts.h"
#include "qt/wizard/EventLoop.h"
#include "qt/wizard/WizardProgram.h"

namespace {

using plotsmith::qt::TextOf;

/// Asks the user for a workbook if the program was started without one. Returns "" if none is selected.
std::string PickBook() {
  QFileDialog dialog(nullptr, QStringLiteral("Open a workbook"), QString(),
                     QString::fromLatin1(plotsmith::qt::kWorkbookFilter));
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (plotsmith::qt::RunDialog(dialog) != QDialog::Accepted) return {};
  return TextOf(dialog.selectedFiles().front());
}

/// Returns true if there is a screen. Without one, Qt would end the program like a crash instead of printing
/// a message.
bool HasScreen() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

/// Declares the arguments.
void Declare(CLI::App& app, plotsmith::qt::WizardOptions& options) {
  app.add_option("BOOK", options.book,
                 "The workbook (.xlsx, .xlsm, .xltx or .xltm); without it, a dialog asks for one");
  app.add_option("-o,--output", options.output, "Write to this file and leave BOOK as it is")
      ->type_name("FILE");
  app.add_flag("--force", options.global.force, "Also write a workbook that another program has open");
  app.add_flag("--drop-broken", options.global.dropBroken,
               "Also write a workbook whose definitions are broken or have no chart, and drop these");
  app.add_flag("--journal", options.global.journal,
               "Print each change to the workbook as it is made, one per line");
  plotsmith::cli::DeclareHostVersion(app, options.global.hostVersion);
  app.set_version_flag("-V,--version", std::string("plotsmith-wizard ") + PLOTSMITH_VERSION);
}

/// Opens the workbook. If the command line names none, the user is asked for it.
int Run(plotsmith::qt::WizardOptions options) {
  namespace cli = plotsmith::cli;
  if (options.book.empty()) options.book = PickBook();
  if (options.book.empty()) return cli::exit_code::kDone;
  const cli::Streams streams{std::cin, std::cout, std::cerr};
  try {
    return plotsmith::qt::WizardProgram(std::move(options), streams).Run();
  } catch (const cli::CommandError& e) {
    plotsmith::qt::ReportError(nullptr, e.what(), streams);
    return e.ExitCode();
  } catch (const std::exception& e) {
    plotsmith::qt::ReportError(nullptr, std::string("an unexpected error occurred: ") + e.what(), streams);
    return cli::exit_code::kFile;
  }
}

}  // namespace

int main(int argc, char** argv) {
  namespace cli = plotsmith::cli;
  CLI::App app("Makes, changes, copies and deletes the charts of a workbook, page by page.",
               "plotsmith-wizard");
  plotsmith::qt::WizardOptions options;
  Declare(app, options);
  // Help and version need no screen, so the arguments are read before Qt starts.
  try {
    cli::ParseLiterally(app, {argv + 1, argv + argc});
  } catch (const CLI::Success& e) {
    return app.exit(e);
  } catch (const cli::CommandError& e) {
    std::cerr << "plotsmith-wizard: " << e.what() << '\n';
    return e.ExitCode();
  }
  if (!HasScreen()) {
    std::cerr << "plotsmith-wizard: there is no screen for the window; \"plotsmith new\" and its other verbs "
                 "make and change charts without one.\n";
    return cli::exit_code::kUsage;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("plotsmith-wizard"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QStringLiteral("plotsmith-wizard"));
  QApplication::setQuitOnLastWindowClosed(false);
  return Run(std::move(options));
}

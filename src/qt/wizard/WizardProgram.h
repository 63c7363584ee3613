#pragma once

#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "cli/Command.h"
#include "cli/Session.h"
#include "qt/forms/QtView.h"
#include "qt/wizard/LivePreview.h"
#include "qt/wizard/WizardDesktop.h"
#include "qt/wizard/WizardWindow.h"

namespace plotsmith::qt {

/// The filter for workbooks in file dialogs.
inline constexpr const char* kWorkbookFilter = "Workbooks (*.xlsx *.xlsm *.xltx *.xltm)";

/// The arguments of the wizard.
struct WizardOptions {
  std::string book;  ///< The path of the workbook.
  /// The output file; if absent, the user is asked when there is something to save.
  std::optional<std::string> output;
  cli::GlobalOptions global;  ///< The options that apply to all verbs of the command.
};

/// The wizard on one workbook: its window, the pages in front of it, and saving. The file is written only
/// when the user confirms it.
class WizardProgram {
 public:
  /// Opens a workbook. Throws CommandError if it can't be opened or another program has it open.
  WizardProgram(WizardOptions options, const cli::Streams& streams);

  /// Runs the wizard until the user quits. Returns an exit code.
  int Run();

 private:
  /// What follows a run.
  enum class Next { kRunAgain, kQuit };

  /// Checks the definitions. If the run would lose some, or if charts could be confused, asks the user.
  /// Returns false if the run must not begin.
  bool CheckBeforeRun();
  /// Shows the messages of the session, if any.
  void ShowMessages();
  /// Returns the session's messages since the last call, without the program's name.
  QString TakeMessages();
  /// Runs the pages. Returns true if a chart was built or deleted.
  bool RunPages();
  Next Finish();
  /// Offers Save, Save As and Discard. Returns nothing if the user returns to the window.
  std::optional<Next> AskToSave(const QString& outcome);
  std::optional<Next> AskBeforeClosing();
  /// Saves to a file that the user chooses. Later saves use this file.
  std::optional<Next> SaveAs();
  /// Returns true if the file can be written. If it exists, asks the user whether to replace it.
  bool MaySaveTo(const QString& file);
  /// Shows the result of a run, and asks whether to run again.
  Next AskWhatIsNext(const QString& outcome);
  /// Saves to the target and asks what follows. Returns nothing if saving failed; the user has then been told
  /// so.
  std::optional<Next> Save();
  /// Returns true if Save writes a file, and not to standard output.
  bool SavesToFile() const { return !cli::IsStandardOutput(target_); }
  /// Returns the file that Save writes; for standard output, the workbook's own file.
  QString TargetFile() const;
  /// Returns the file that Save writes, in quotes, or "standard output".
  QString Target() const;
  /// Returns the path with the workbook's own extension if it doesn't end with one of a spreadsheet program.
  QString WithExtension(const QString& file) const;
  QString Outcome() const;

  WizardOptions options_;
  std::shared_ptr<QtView> pages_;
  std::shared_ptr<WizardDesktop> desktop_;
  std::ostringstream messages_;  ///< The messages of the session, one per line.
  cli::Session session_;
  cli::Streams streams_;
  std::optional<std::string> target_;  ///< The target of Save; if absent, the workbook's own file.
  std::unique_ptr<WizardWindow> window_;
  std::unique_ptr<LivePreview> preview_;
  int chartsBefore_ = 0;  ///< The number of charts that earlier runs have built.
  bool isSaved_ = false;  ///< Whether an earlier run was saved.
  bool closing_ = false;  ///< Whether the window was closed while a page was open.
};

/// Reports an error in a message box, and on stderr for users who started the program from a terminal.
void ReportError(QWidget* owner, const std::string& sentence, const cli::Streams& streams);

}  // namespace plotsmith::qt

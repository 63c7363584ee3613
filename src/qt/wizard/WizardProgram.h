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

/// What the wizard is started with.
struct WizardOptions {
  std::string book;
  std::optional<std::string> output;  ///< absent: the person is asked when there is something to save
  cli::GlobalOptions global;
};

/// The wizard on one workbook: its window, the pages in front of it, and what becomes of the work. The file
/// is written only when the person says so.
class WizardProgram {
 public:
  /// Throws a CommandError where the workbook can't be opened, or where another program has it open.
  WizardProgram(WizardOptions options, const cli::Streams& streams);

  /// Until the person is done. Answers an exit code.
  int Run();

 private:
  /// How the work on a workbook goes on.
  enum class Next { kRunAgain, kQuit };

  /// Looks at the definitions. Where the run would lose some, the person decides; false if it must not begin.
  bool LookBeforeRun();
  /// Shows what the session has to say, if anything.
  void ShowSaid();
  /// The lines of the session since the last call, without the name of the program.
  QString TakeSaid();
  /// Goes through the pages; true if a chart was built or deleted.
  bool RunPages();
  Next Finish();
  /// Asks Save, Save As or Discard; absent where the person goes back to the window.
  std::optional<Next> AskToSave(const QString& outcome);
  std::optional<Next> AskBeforeClosing();
  /// Saves to a file of the person's choice, where Save saves from then on.
  std::optional<Next> SaveAs();
  /// Whether a file may be written that is there already: the person says so.
  bool MayReplace(const QString& file);
  /// Says what came of a run, and asks whether another one is wanted.
  Next AskWhatIsNext(const QString& outcome);
  /// Saves to the target, and asks what is next. Absent where that failed, which the person was told.
  std::optional<Next> Save();
  /// The file that Save writes.
  QString Target() const;
  QString Outcome() const;

  WizardOptions options_;
  std::shared_ptr<QtView> pages_;
  std::shared_ptr<WizardDesktop> desktop_;
  std::ostringstream said_;  ///< what the session has to say, a line each
  cli::Session session_;
  cli::Streams streams_;
  std::optional<std::string> target_;  ///< where Save saves; absent: the workbook's own file
  std::unique_ptr<WizardWindow> window_;
  std::unique_ptr<LivePreview> preview_;
  int chartsBefore_ = 0;  ///< charts that earlier runs have built
  bool isSaved_ = false;  ///< an earlier run was saved
  bool closing_ = false;  ///< the window was closed while a page was open
};

/// Says why something can't be done, in a window of its own, and on stderr for who started the program there.
void Tell(QWidget* owner, const std::string& sentence, const cli::Streams& streams);

}  // namespace plotsmith::qt

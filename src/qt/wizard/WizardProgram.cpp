#include "qt/wizard/WizardProgram.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <utility>

#include "controller/CPlotsmithController.h"
#include "qt/Texts.h"
#include "qt/book/BookView.h"
#include "qt/help/HelpWindow.h"
#include "qt/wizard/ChartPicture.h"
#include "qt/wizard/EventLoop.h"
#include "qt/wizard/MessageBox.h"
#include "xlsx/package/WorkbookKind.h"

namespace plotsmith::qt {
namespace {

constexpr const char* kLinePrefix = "plotsmith: ";  ///< The beginning of each line of the session.

}  // namespace

void ReportError(QWidget* owner, const std::string& sentence, const cli::Streams& streams) {
  streams.err << "plotsmith-wizard: " << sentence << '\n';
  QString text = TextOf(sentence);
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  ShowMessageBox(owner, QMessageBox::Critical, text);
}

WizardProgram::WizardProgram(WizardOptions options, const cli::Streams& streams)
    : options_(std::move(options)),
      pages_(std::make_shared<QtView>()),
      desktop_(std::make_shared<WizardDesktop>(pages_)),
      session_(options_.book, options_.global, cli::Streams{streams.in, streams.out, messages_}, desktop_,
               pages_),
      streams_(streams),
      target_(options_.output) {
  session_.CheckWritable(target_);
  window_ = std::make_unique<WizardWindow>(session_.Host(), QFileInfo(TextOf(options_.book)).fileName());
  window_->Book().SetChartPainter(MakeChartPainter());
  pages_->SetOwner(window_.get());
  desktop_->SetOwner(window_.get());
  preview_ = std::make_unique<LivePreview>(*pages_, session_.Host(), window_.get());
  pages_->Shown = [this] {
    window_->Book().Update();
    preview_->Update();
  };
  window_->CloseAsked = [this] {
    closing_ = true;
    pages_->CloseAll();
  };
  window_->HelpAsked = [this] { desktop_->Help().ShowFirstPage(); };
}

int WizardProgram::Run() {
  window_->show();
  Next next = Next::kRunAgain;
  while (next == Next::kRunAgain && CheckBeforeRun()) {
    if (RunPages()) {
      next = Finish();
    } else {
      next = isSaved_ && !closing_ ? AskWhatIsNext(QStringLiteral("Nothing was changed.")) : Next::kQuit;
    }
  }
  return cli::exit_code::kDone;
}

QString WizardProgram::TakeMessages() {
  QString text = TextOf(messages_.str());
  messages_.str({});
  return text.remove(QLatin1String(kLinePrefix)).trimmed();
}

void WizardProgram::ShowMessages() {
  const QString text = TakeMessages();
  if (!text.isEmpty()) ShowMessageBox(window_.get(), QMessageBox::Information, text);
}

bool WizardProgram::CheckBeforeRun() {
  try {
    session_.CheckBeforeRun(cli::DefinitionsAre::kEdited);
    return true;
  } catch (const cli::RunRefused& refused) {
    const QString consequence = refused.Lost() > 0
                                    ? QStringLiteral("The wizard would drop these definitions.")
                                    : QStringLiteral("Charts could be confused with each other.");
    return ShowMessageBox(
               window_.get(), QMessageBox::Warning,
               TakeMessages() + QStringLiteral("\n\n") + consequence + QStringLiteral(" Continue?"),
               QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Ok;
  }
}

bool WizardProgram::RunPages() {
  chartsBefore_ = session_.ChartsStarted();
  pages_->CancelCloseAll();
  preview_->Restart();
  desktop_->Forget();
  CPlotsmithController().RunPlotsmith(session_.Host(), cli::kHostName, "");
  window_->Book().Update();
  preview_->Update();
  return session_.ChartsStarted() > chartsBefore_ || desktop_->Confirmed();
}

QString WizardProgram::TargetFile() const {
  return TextOf(SavesToFile() ? target_.value_or(options_.book) : options_.book);
}

QString WizardProgram::Target() const {
  return SavesToFile() ? QStringLiteral("\"%1\"").arg(TargetFile()) : QStringLiteral("standard output");
}

QString WizardProgram::Outcome() const {
  const int built = session_.ChartsStarted() - chartsBefore_;
  if (built == 0) return QStringLiteral("The selected charts were deleted.");
  const QString what =
      built == 1 ? QStringLiteral("The chart is built.") : QStringLiteral("%1 charts are built.").arg(built);
  return desktop_->Confirmed() ? what + QStringLiteral(" The selected charts were deleted.") : what;
}

WizardProgram::Next WizardProgram::Finish() {
  if (options_.output && !closing_) {
    if (const auto next = Save()) return *next;
  }
  for (;;) {
    if (const auto next = closing_ ? AskBeforeClosing() : AskToSave(Outcome())) return *next;
  }
}

std::optional<WizardProgram::Next> WizardProgram::AskToSave(const QString& outcome) {
  const QString text = outcome + QStringLiteral(" %1 isn't saved yet.").arg(Target());
  switch (window_->Ask(
      text, {QStringLiteral("&Save"), QStringLiteral("Save &As..."), QStringLiteral("&Discard")})) {
    case 0:
      return Save();
    case 1:
      return SaveAs();
    case 2:
      return Next::kQuit;
    default:
      return AskBeforeClosing();
  }
}

std::optional<WizardProgram::Next> WizardProgram::AskBeforeClosing() {
  closing_ = true;
  const auto answer = ShowMessageBox(
      window_.get(), QMessageBox::Question, QStringLiteral("Save the changes to %1?").arg(Target()),
      QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
  if (answer == QMessageBox::Save) {
    if (const auto next = Save()) return next;
  } else if (answer == QMessageBox::Discard) {
    return Next::kQuit;
  }
  closing_ = false;
  return std::nullopt;
}

std::optional<WizardProgram::Next> WizardProgram::SaveAs() {
  QFileDialog dialog(window_.get(), QStringLiteral("Save As"), TargetFile(),
                     QString::fromLatin1(kWorkbookFilter));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // Qt would ask in its own event loop.
  QString file;
  do {
    if (RunDialog(dialog) != QDialog::Accepted) return std::nullopt;
    file = WithExtension(dialog.selectedFiles().front());
  } while (!MaySaveTo(file));
  const auto before = std::exchange(target_, TextOf(file));
  const auto next = Save();
  if (!next) target_ = before;
  return next;
}

// Qt's default suffix isn't added to a name with a dot, such as "Report 23.11.2026".
QString WizardProgram::WithExtension(const QString& file) const {
  const std::string name = TextOf(file);
  if (xlsx::KindOfName(name) != nullptr || xlsx::IsForeignName(name)) return file;
  return file + TextOf(xlsx::ExtensionOf(options_.book));
}

bool WizardProgram::MaySaveTo(const QString& file) {
  try {
    session_.CheckWritable(TextOf(file));
  } catch (const cli::CommandError& e) {
    ReportError(window_.get(), e.what(), streams_);
    return false;
  }
  return !QFileInfo::exists(file) ||
         ShowMessageBox(window_.get(), QMessageBox::Question,
                        QStringLiteral("\"%1\" already exists. Replace it?").arg(file),
                        QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

WizardProgram::Next WizardProgram::AskWhatIsNext(const QString& outcome) {
  QStringList answers = {QStringLiteral("&Close"), QStringLiteral("Chart &Wizard...")};
  if (!SavesToFile()) answers.removeLast();  // A second workbook can't follow the first one.
  const int answer = window_->Ask(outcome, answers);
  return answer == 1 ? Next::kRunAgain : Next::kQuit;
}

std::optional<WizardProgram::Next> WizardProgram::Save() {
  try {
    session_.CheckWritable(target_);
    session_.Save(target_);
    ShowMessages();
  } catch (const cli::CommandError& e) {
    ReportError(window_.get(), e.what(), streams_);
    return std::nullopt;
  }
  isSaved_ = true;
  if (closing_) return Next::kQuit;
  window_->SetBookName(QFileInfo(TargetFile()).fileName());
  const QString saved = SavesToFile() ? QStringLiteral(" Saved in %1.") : QStringLiteral(" Written to %1.");
  return AskWhatIsNext(Outcome() + saved.arg(Target()));
}

}  // namespace plotsmith::qt

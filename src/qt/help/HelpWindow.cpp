#include "qt/help/HelpWindow.h"

#include <QtCore/QUrl>
#include <QtGui/QAction>
#include <QtGui/QKeySequence>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <utility>

#include "qt/help/FindBar.h"
#include "qt/help/HelpBrowser.h"

namespace plotsmith::qt {
namespace {

constexpr const char* kTitle = "Plotsmith Help";
constexpr int kWidth = 1080, kHeight = 760, kListWidth = 230;  // In pixels at scale 1.

}  // namespace

HelpWindow::HelpWindow(const QString& folder, QWidget* parent)
    : QMainWindow(parent, Qt::Window),
      topics_(ReadHelpTopics(folder)),
      browser_(new HelpBrowser(folder)),
      list_(new QListWidget),
      findBar_(new FindBar(*browser_)) {
  setWindowModality(Qt::NonModal);
  setAttribute(Qt::WA_QuitOnClose, false);
  setWindowTitle(kTitle);
  browser_->setObjectName("helpText");
  list_->setObjectName("topicList");
  list_->setAccessibleName("Topics");
  list_->setSpacing(2);
  auto* const reading = new QWidget;
  auto* const column = new QVBoxLayout(reading);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(browser_, 1);
  column->addWidget(findBar_);
  auto* const splitter = new QSplitter;
  splitter->addWidget(list_);
  splitter->addWidget(reading);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kListWidth, kWidth - kListWidth});
  setCentralWidget(splitter);
  FillTopics();
  MakeActions();
  connect(browser_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& address) { PageChanged(address); });
  resize(kWidth, kHeight);
}

QAction* HelpWindow::MakeAction(const char* name, const QString& text, const QList<QKeySequence>& keys,
                                std::function<void()> run) {
  auto* const action = new QAction(text, this);
  action->setObjectName(name);
  action->setShortcuts(keys);
  if (!keys.isEmpty()) {
    action->setToolTip(
        QString("%1 (%2)").arg(text, keys.first().toString(QKeySequence::NativeText)).remove('&'));
  }
  if (run) connect(action, &QAction::triggered, this, std::move(run));
  addAction(action);
  return action;
}

void HelpWindow::MakeActions() {
  QAction* const back = MakeAction("back", "&Back", QKeySequence::keyBindings(QKeySequence::Back),
                                   [this] { browser_->backward(); });
  QAction* const forward = MakeAction("forward", "For&ward", QKeySequence::keyBindings(QKeySequence::Forward),
                                      [this] { browser_->forward(); });
  QAction* const home =
      MakeAction("home", "&Home", {QKeySequence("Alt+Home")}, [this] { ShowFile(kFirstPage); });
  QAction* const topics = MakeAction("topics", "&Topics", {QKeySequence("Ctrl+T")});
  QAction* const find =
      MakeAction("find", "&Find", {QKeySequence(QKeySequence::Find)}, [this] { findBar_->Open(); });
  MakeAction("findNext", "Find next", {QKeySequence("F3")}, [this] { findBar_->FindNext(); });
  MakeAction("findPrevious", "Find previous", {QKeySequence("Shift+F3")},
             [this] { findBar_->FindPrevious(); });
  MakeAction("larger", "Larger text", {QKeySequence(QKeySequence::ZoomIn), QKeySequence("Ctrl+=")},
             [this] { browser_->zoomIn(); });
  MakeAction("smaller", "Smaller text", {QKeySequence(QKeySequence::ZoomOut)},
             [this] { browser_->zoomOut(); });
  MakeAction("close", "Close", {QKeySequence("Esc"), QKeySequence("Ctrl+W")},
             [this] { CloseFindBarOrWindow(); });
  back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
  forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
  home->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  topics->setCheckable(true);
  topics->setChecked(true);
  connect(topics, &QAction::toggled, list_, &QWidget::setVisible);
  MakeToolBar({back, forward, home, topics, find});
}

void HelpWindow::MakeToolBar(const QList<QAction*>& actions) {
  QToolBar* const bar = addToolBar("Help");
  bar->setObjectName("helpBar");
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);  // A hidden toolbar couldn't be shown again.
  bar->addActions(actions);
}

void HelpWindow::CloseFindBarOrWindow() {
  if (findBar_->isVisible()) {
    findBar_->Close();
  } else {
    close();
  }
}

void HelpWindow::FillTopics() {
  for (const HelpTopic& topic : topics_) list_->addItem(topic.title);
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) ShowFile(topics_[static_cast<std::size_t>(row)].file);
  });
}

void HelpWindow::ShowTopic(std::int32_t number) {
  const auto topic = std::find_if(topics_.begin(), topics_.end(),
                                  [number](const HelpTopic& each) { return each.number == number; });
  if (topic == topics_.end()) {
    browser_->setSource(HelpBrowser::AddressOfUnknownTopic(number));
  } else {
    ShowFile(topic->file);
  }
  BringToFront();
}

void HelpWindow::ShowFirstPage() {
  ShowFile(kFirstPage);
  BringToFront();
}

void HelpWindow::ShowFile(const QString& file) { browser_->setSource(browser_->AddressOf(file)); }

void HelpWindow::BringToFront() {
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
  browser_->setFocus(Qt::OtherFocusReason);
}

void HelpWindow::PageChanged(const QUrl& address) {
  const QString file = address.fileName();
  const auto topic = std::find_if(topics_.begin(), topics_.end(),
                                  [&file](const HelpTopic& each) { return each.file == file; });
  const QSignalBlocker blocker(list_);
  const bool isKnown = topic != topics_.end();
  list_->setCurrentRow(isKnown ? static_cast<int>(topic - topics_.begin()) : -1);
  setWindowTitle(isKnown && file != kFirstPage ? topic->title + " - " + kTitle : QString(kTitle));
}

}  // namespace plotsmith::qt

#pragma once

#include <QtCore/QString>
#include <QtWidgets/QMainWindow>
#include <cstdint>
#include <functional>
#include <vector>

#include "qt/help/HelpTopics.h"

class QAction;
class QListWidget;
class QUrl;

namespace plotsmith::qt {

class FindBar;
class HelpBrowser;

/// The folder of the help that is built into the program.
inline constexpr const char* kBuiltInHelp = ":/docs/help";

/// The help window: a page, a list of all topics, navigation back and forward, and a search in the page. It
/// isn't modal. Closing it only hides it. It needs a QApplication.
class HelpWindow final : public QMainWindow {
 public:
  /// Makes a window. `folder` contains topics.tsv and the pages that it lists.
  explicit HelpWindow(const QString& folder = kBuiltInHelp, QWidget* parent = nullptr);

  /// Shows the window with a topic that a page of the wizard requests. If the topic doesn't exist, the window
  /// shows a message.
  void ShowTopic(std::int32_t number);
  /// Shows the window with the first page, which lists all others.
  void ShowFirstPage();

 private:
  void MakeActions();
  /// Adds an action to the window. If there is a `run`, the action calls it when it is triggered.
  QAction* MakeAction(const char* name, const QString& text, const QList<QKeySequence>& keys,
                      std::function<void()> run = {});
  void MakeToolBar(const QList<QAction*>& actions);
  void CloseFindBarOrWindow();
  void FillTopics();
  void ShowFile(const QString& file);
  void BringToFront();
  /// Updates the title and the selected topic after a change of the page.
  void PageChanged(const QUrl& address);

  std::vector<HelpTopic> topics_;
  HelpBrowser* browser_;
  QListWidget* list_;
  FindBar* findBar_;
};

}  // namespace plotsmith::qt

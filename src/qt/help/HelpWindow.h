#pragma once

#include <QtCore/QString>
#include <QtWidgets/QMainWindow>
#include <cstdint>
#include <vector>

#include "qt/help/HelpTopics.h"

class QAction;
class QListWidget;
class QUrl;

namespace plotsmith::qt {

class FindBar;
class HelpBrowser;

/// The help that is built into the program.
inline constexpr const char* kBuiltInHelp = ":/docs/help";

/// The window of the help: the page that is read, a list of all topics, the way back and forward, and a
/// search in the page. It is not modal and blocks no other window; closing it only hides it, and the program
/// goes on to run without it. Needs a QApplication.
class HelpWindow final : public QMainWindow {
 public:
  /// `folder` has topics.tsv and the pages that it lists.
  explicit HelpWindow(const QString& folder = kBuiltInHelp, QWidget* parent = nullptr);

  /// Brings the window to the front with the topic that a page of the wizard asks for. If there is none, a
  /// sentence in the window says so.
  void ShowTopic(std::int32_t number);
  /// Brings the window to the front with the first page, which lists all others.
  void ShowFirstPage();

 private:
  void MakeActions();
  QAction* MakeAction(const char* name, const QString& text, const QList<QKeySequence>& keys);
  void FillTopics();
  void ShowFile(const QString& file);
  void BringToFront();
  /// Another page is read: the title and the entry of the list follow.
  void PageChanged(const QUrl& address);

  std::vector<HelpTopic> topics_;
  HelpBrowser* browser_;
  QListWidget* list_;
  FindBar* findBar_;
};

}  // namespace plotsmith::qt

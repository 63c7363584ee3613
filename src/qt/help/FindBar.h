#pragma once

#include <QtGui/QTextDocument>
#include <QtWidgets/QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace plotsmith::qt {

/// A bar that searches the page of a browser for a text, ignoring case. The search continues at the other end
/// of the page. The bar is hidden when it isn't used.
class FindBar final : public QWidget {
 public:
  /// Makes a bar. `browser` must outlive it.
  explicit FindBar(QTextBrowser& browser, QWidget* parent = nullptr);

  /// Shows the bar and selects its text.
  void Open();
  /// Hides the bar and returns the focus to the page.
  void Close();
  /// Selects the next occurrence of the text.
  void FindNext();
  /// Selects the previous occurrence of the text.
  void FindPrevious();

 protected:
  /// Finds the next occurrence if Enter is pressed, and the previous one if Shift is held.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Selects the next occurrence of the text after the cursor. An empty text finds nothing and shows no
  /// message.
  void Find(QTextDocument::FindFlags flags);
  /// Repeats the search from the start of the last one, while the user types.
  void FindTyped();

  QTextBrowser& browser_;
  QLineEdit* text_;
  QLabel* result_;
};

}  // namespace plotsmith::qt

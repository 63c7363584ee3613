#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace plotsmith::qt {

/// Searches the page of a browser for a text, without regard to capitals, and goes on at the other end of the
/// page. It hides when it isn't used.
class FindBar final : public QWidget {
 public:
  /// `browser` outlives the bar.
  explicit FindBar(QTextBrowser& browser, QWidget* parent = nullptr);

  /// Shows the bar with its text selected, ready to be typed over.
  void Open();
  /// Hides the bar and gives the focus back to the page.
  void Close();
  void FindNext();
  void FindPrevious();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Selects the next place of the text from the cursor on. An empty text finds nothing and says nothing.
  void Find(bool backward);
  /// Searches anew from where the last find began, while the text is being typed.
  void FindTyped();

  QTextBrowser& browser_;
  QLineEdit* text_;
  QLabel* result_;
};

}  // namespace plotsmith::qt

#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <string>
#include <vector>

#include "forms/script/ScriptLine.h"
#include "tests/qt/forms/QtHand.h"
#include "tests/support/PagesTest.h"

namespace plotsmith::test {

/// Operates a running program with mouse and keyboard, according to a script. The lines of the script are
/// separated by "; ". Each line waits until its window is open:
///
/// | line | what it does |
/// |---|---|
/// | `page NAME` | waits for the page |
/// | `button BUTTON` | waits for the button in the window in front |
/// | an action, as in the scripts of the command | performs it on the front page |
/// | `box BUTTON` | presses the button of a message box; "&" is left out |
/// | `bar BUTTON` | presses the button of the bar above the workbook |
/// | `file NAME` | types the name into the file dialog and presses Enter |
/// | `quit` | closes the workbook window |
/// | `do wait` | pauses, and waits until a window other than the busy window is in front |
/// | `do NAME` | calls the function with this name at once |
///
/// The program may be busy, so a line that can't be executed is repeated for a while. If it still fails, and
/// at the end of the script, the robot closes all windows and saves nothing.
class Robot {
 public:
  explicit Robot(const std::string& script, Actions actions = {});

  /// Returns the reason why the script stopped before its end, or "".
  std::string Failure() const;
  /// The windows that came to the front, by NameOf, separated by blanks, without the busy window.
  const std::string& Seen() const { return seen_; }
  /// The texts of message boxes and of the bar, in order.
  const std::vector<std::string>& Told() const { return told_; }

 private:
  void Work();
  /// Executes a line. Returns false if its window isn't open yet.
  bool Play(const std::string& line);
  bool PlayOnPage(const std::string& line);
  void LookAround();
  void CloseAll();

  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  Actions actions_;
  QtHand hand_;
  QTimer timer_;
  QElapsedTimer sinceLine_;
  bool works_ = false;
  std::string failure_, seen_, lastSeen_;
  std::string obstacle_;  ///< The reason why the line can't be executed yet.
  std::vector<std::string> told_;
};

/// Presses a button of a window with the mouse. `text` has no "&" and no dots. Returns false if there is no
/// such button.
bool PressButton(QWidget& window, const std::string& text);

}  // namespace plotsmith::test

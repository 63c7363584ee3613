#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/script/ScriptLine.h"
#include "tests/qt/forms/QtHand.h"

namespace plotsmith::test {

/// Works on a program with mouse and keyboard while it runs, by a script. Its lines have "; " between them.
/// Each waits until the window is there that it is for:
///
/// | line | what happens |
/// |---|---|
/// | `page NAME` | waits for the page |
/// | a gesture, as in the scripts of the command | is made on the page in front |
/// | `box BUTTON` | presses the button of a message box, "&" left out |
/// | `bar BUTTON` | presses the button of the bar above the workbook |
/// | `file NAME` | types the name into the choice of files, and Enter |
/// | `quit` | closes the window on the workbook |
/// | `do wait` | waits a moment, until some window is in front |
/// | `do NAME` | does the deed of that name, at once |
///
/// The program may be in the middle of its work, so a line that can't be done is tried again for a while.
/// When it still can't be done, or at the end of the script, it closes what is open and saves nothing.
class Robot {
 public:
  using Deeds = std::map<std::string, std::function<void()>>;
  explicit Robot(const std::string& script, Deeds deeds = {});

  /// Why the script wasn't played to its end; "" if it was.
  std::string Failure() const;
  /// The windows that came to the front, by NameOf, with blanks between them.
  const std::string& Seen() const { return seen_; }
  /// What message boxes and the bar said, in this order.
  const std::vector<std::string>& Told() const { return told_; }

 private:
  void Work();
  /// Whether the line was done; false where its window isn't there yet.
  bool Play(const std::string& line);
  bool PlayOnPage(const std::string& line);
  void LookAround();
  void CloseAll();

  std::vector<std::string> lines_;
  std::size_t next_ = 0;
  Deeds deeds_;
  QtHand hand_;
  QTimer timer_;
  QElapsedTimer sinceLine_;
  bool works_ = false;
  std::string failure_, seen_, lastSeen_;
  std::string obstacle_;  ///< why the line couldn't be done yet
  std::vector<std::string> told_;
};

/// The lines of a script that has "; " between them.
std::vector<std::string> LinesOf(const std::string& script);
/// Presses a button of a window by mouse; `text` without "&" and dots. False if there is none.
bool PressButton(QWidget& window, const std::string& text);

}  // namespace plotsmith::test

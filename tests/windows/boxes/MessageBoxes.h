#pragma once

#include <functional>
#include <string>

namespace plotsmith::test {

/// Answers the message boxes of the thread that makes it, as soon as they come up, and remembers them.
class MessageBoxes {
 public:
  MessageBoxes();
  ~MessageBoxes();
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;

  /// What the next box is answered with, IDOK or IDCANCEL; boxes behind it are answered with OK again.
  void AnswerNext(int button);
  /// From now on `answer` says with which button each box is answered; boxes aren't remembered then. An empty
  /// function takes that back.
  void AnswerBy(std::function<int(const std::string& text, bool isQuestion)> answer);
  /// What the boxes since the last call showed: "title [buttons]: text", with "critical" before the buttons
  /// of such a box, and a line end as "\r\n". Boxes are separated by a line feed.
  std::string Take();
};

}  // namespace plotsmith::test

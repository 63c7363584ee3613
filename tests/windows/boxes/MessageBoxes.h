#pragma once

#include <functional>
#include <string>

namespace plotsmith::test {

/// Answers the message boxes of its thread as soon as they appear, and records them.
class MessageBoxes {
 public:
  MessageBoxes();
  ~MessageBoxes();
  MessageBoxes(const MessageBoxes&) = delete;
  MessageBoxes& operator=(const MessageBoxes&) = delete;

  /// Sets the answer to the next box: IDOK or IDCANCEL. Further boxes are answered with OK again.
  void AnswerNext(int button);
  /// Sets a function that returns the answer to each box. Boxes aren't recorded then. An empty function
  /// restores the default.
  void AnswerBy(std::function<int(const std::string& text, bool isQuestion)> answer);
  /// Returns the boxes since the last call: "title [buttons]: text", with "critical" before the buttons of a
  /// critical box and "\r\n" for line ends. Boxes are separated by a line feed.
  std::string Take();
};

}  // namespace plotsmith::test

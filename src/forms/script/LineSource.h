#pragma once

#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/Form.h"

namespace plotsmith::forms {

/// The state of the pages when the next line of the script is requested.
struct ScriptState {
  const Form* page;  ///< The form that waits for an action, or null if the run is over.
  const std::deque<std::string>& messages;  ///< The texts of message boxes that no line has expected yet.
};

/// The source of the lines of a script. Each line is requested only when it is executed, so its text can
/// depend on the open form.
class LineSource {
 public:
  virtual ~LineSource() = default;
  /// Returns the next line, or nothing at the end of the script. A ScriptError stops the script.
  virtual std::optional<std::string> NextLine(const ScriptState& state) = 0;
};

/// The lines of a file or of standard input.
class StreamLines final : public LineSource {
 public:
  /// Makes a source that reads a stream. The stream must outlive this object.
  explicit StreamLines(std::istream& stream) : stream_(stream) {}
  std::optional<std::string> NextLine(const ScriptState&) override {
    std::string line;
    if (!std::getline(stream_, line)) return std::nullopt;
    if (std::exchange(first_, false) && line.starts_with(kByteOrderMark))
      line.erase(0, kByteOrderMark.size());
    return line;
  }

 private:
  static constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

  std::istream& stream_;
  bool first_ = true;
};

}  // namespace plotsmith::forms

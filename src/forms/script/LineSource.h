#pragma once

#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/Form.h"

namespace plotsmith::forms {

/// What a script sees at the moment when its next line is due.
struct Scene {
  const Form* page;                         ///< the form that waits for a gesture; null when the run is over
  const std::deque<std::string>& messages;  ///< texts of message boxes that no line has expected yet
};

/// Where the lines of a script come from. A line is asked for when it is due, so it may depend on what is
/// open by then.
class LineSource {
 public:
  virtual ~LineSource() = default;
  /// Absent at the end of the script. A ScriptError stops the script.
  virtual std::optional<std::string> NextLine(const Scene& scene) = 0;
};

/// The lines of a file or of the standard input.
class StreamLines final : public LineSource {
 public:
  /// The stream must outlive this.
  explicit StreamLines(std::istream& stream) : stream_(stream) {}
  std::optional<std::string> NextLine(const Scene&) override {
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

#pragma once

#include <ostream>
#include <streambuf>
#include <string_view>

namespace plotsmith::cli {

/// Prevents a workbook's texts from controlling a terminal. While it lives, each control character of ECMA-48
/// (U+0000 to U+001F, U+007F to U+009F) that is written to the stream, except tabs, line feeds and carriage
/// returns, is shown as U+FFFD.
class TerminalText : public std::streambuf {
 public:
  /// Replaces the buffer of the stream until this object is destroyed. `stream` must outlive it.
  explicit TerminalText(std::ostream& stream);
  ~TerminalText() override;
  TerminalText(const TerminalText&) = delete;
  TerminalText& operator=(const TerminalText&) = delete;

 protected:
  /// Write text to the buffer that the stream had before.
  ///@{
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int sync() override;
  ///@}

 private:
  bool Write(std::string_view text);
  bool WriteLead();

  std::ostream& stream_;
  std::streambuf* terminal_;  // not owned
  bool hasLead_ = false;      // C2, the first byte of U+0080 to U+00BF, was written
};

}  // namespace plotsmith::cli

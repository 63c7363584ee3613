#pragma once

#include <ostream>
#include <streambuf>
#include <string_view>

namespace plotsmith::cli {

/// Keeps a workbook's texts from steering a terminal. While it lives, what goes to the stream reaches the
/// terminal with U+FFFD in place of each control character of ECMA-48 (U+0000 to U+001F, U+007F to U+009F)
/// but for tabs, line feeds and carriage returns.
class TerminalText : public std::streambuf {
 public:
  /// Replaces the buffer of the stream until this object is destroyed. `stream` must outlive it.
  explicit TerminalText(std::ostream& stream);
  ~TerminalText() override;
  TerminalText(const TerminalText&) = delete;
  TerminalText& operator=(const TerminalText&) = delete;

 protected:
  int_type overflow(int_type c) override;
  std::streamsize xsputn(const char* text, std::streamsize size) override;
  int sync() override;

 private:
  bool Write(std::string_view text);
  bool WriteLead();

  std::ostream& stream_;
  std::streambuf* terminal_;  // not owned
  bool hasLead_ = false;      // the byte C2, which begins U+0080 to U+00BF, waits for the next one
};

}  // namespace plotsmith::cli

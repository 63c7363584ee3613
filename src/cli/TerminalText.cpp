#include "cli/TerminalText.h"

namespace plotsmith::cli {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr char kLead = '\xC2';

bool IsControl(unsigned char c) { return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F; }

}  // namespace

TerminalText::TerminalText(std::ostream& stream) : stream_(stream), terminal_(stream.rdbuf(this)) {}

TerminalText::~TerminalText() {
  WriteLead();
  stream_.rdbuf(terminal_);
}

bool TerminalText::Write(std::string_view text) {
  return terminal_->sputn(text.data(), static_cast<std::streamsize>(text.size())) ==
         static_cast<std::streamsize>(text.size());
}

bool TerminalText::WriteLead() {
  if (!hasLead_) return true;
  hasLead_ = false;
  return Write({&kLead, 1});
}

TerminalText::int_type TerminalText::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  const char byte = traits_type::to_char_type(c);
  return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
}

std::streamsize TerminalText::xsputn(const char* text, std::streamsize size) {
  const std::string_view bytes(text, static_cast<std::size_t>(size));
  std::size_t written = 0;
  const auto writeUpTo = [&](std::size_t end) {
    return end == written || Write(bytes.substr(written, end - written));
  };
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto c = static_cast<unsigned char>(bytes[i]);
    const bool isControlAfterLead = hasLead_ && c >= 0x80 && c < 0xA0;
    if (!isControlAfterLead && !WriteLead()) return static_cast<std::streamsize>(written);
    hasLead_ = false;
    if (!isControlAfterLead && !IsControl(c) && bytes[i] != kLead) continue;
    if (!writeUpTo(i)) return static_cast<std::streamsize>(written);
    written = i + 1;
    if (bytes[i] == kLead) {
      hasLead_ = true;
    } else if (!Write(kReplacement)) {
      return static_cast<std::streamsize>(i);
    }
  }
  return writeUpTo(bytes.size()) ? size : static_cast<std::streamsize>(written);
}

int TerminalText::sync() { return terminal_->pubsync(); }

}  // namespace plotsmith::cli

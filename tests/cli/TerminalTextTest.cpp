#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "cli/TerminalText.h"

namespace plotsmith::cli {
namespace {

TEST(TerminalTextTest, ControlCharactersOfAWorkbookDoNotReachATerminal) {
  const struct {
    std::string text, shown;
  } cases[] = {
      {"Amount\tin \u20AC\r\n", "Amount\tin \u20AC\r\n"},
      {"\x1b[2Jred\x1b]0;title\x07", "\uFFFD[2Jred\uFFFD]0;title\uFFFD"},
      {std::string("a\0b\x7F", 4), "a\uFFFDb\uFFFD"},
      {"\u0080\u009B31m\u009F", "\uFFFD\uFFFD31m\uFFFD"},
      {"\u00A0\u00BF \u00C0 \u0401", "\u00A0\u00BF \u00C0 \u0401"},
      {"\xC2", "\xC2"},  // these three are incomplete
      {"\xC2\xC2\x9B", "\xC2\uFFFD"},
      {"\xC2\x1b", "\xC2\uFFFD"},
      {"", ""},
  };
  for (const auto& [text, shown] : cases) {
    std::ostringstream whole, bytewise;
    {
      const TerminalText first(whole), second(bytewise);
      whole << text << std::flush;
      for (const char c : text) bytewise << c;
      EXPECT_TRUE(whole && bytewise);
    }
    EXPECT_EQ(whole.str(), shown);
    EXPECT_EQ(bytewise.str(), shown);
    whole << "\x1b";  // the stream works as before
    EXPECT_EQ(whole.str(), shown + "\x1b");
  }
}

}  // namespace
}  // namespace plotsmith::cli

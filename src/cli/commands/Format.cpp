#include "cli/commands/Format.h"

#include <CLI/CLI.hpp>
#include <istream>
#include <optional>

#include "xlsx/numberformat/NumberFormat.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::cli {
namespace {

/// Returns the displayed text, or nothing if Excel refuses the format.
std::optional<std::string> Shown(std::string_view code, std::string_view value, xlsx::DateSystem dates) {
  const auto format = xlsx::NumberFormat::Parse(code);
  if (!format) return std::nullopt;
  std::string text;
  if (const auto number = xlsx::xml::ParseDouble(value)) {
    format->AppendNumber(text, *number, dates);
  } else if (value == "TRUE" || value == "FALSE") {
    format->AppendBoolean(text, value == "TRUE");
  } else {
    format->AppendText(text, value);
  }
  return text;
}

}  // namespace

void FormatCommand::DeclareOptions(CLI::App& verb) {
  verb.footer("plotsmith format FORMAT VALUE\nplotsmith format --tsv < FILE");
  verb.add_flag("--tsv", tsv_, "Read lines of format, tab, value; print a text for each");
  verb.add_flag("--date1904", date1904_, "Count days from 1904");
  verb.add_option("FORMAT VALUE", arguments_, "The format's code, and a number, TRUE, FALSE or a text");
}

int FormatCommand::Run(const GlobalOptions&, const Streams& streams) {
  const auto dates = date1904_ ? xlsx::DateSystem::k1904 : xlsx::DateSystem::k1900;
  if (tsv_) {
    for (std::string line; std::getline(streams.in, line);) {
      if (line.ends_with('\r')) line.pop_back();
      const auto tab = line.find('\t');
      const std::string value = tab == std::string::npos ? std::string() : line.substr(tab + 1);
      streams.out
          << Shown(line.substr(0, tab), value.substr(0, value.find('\t')), dates).value_or("(invalid format)")
          << '\n';
    }
    return exit_code::kDone;
  }
  if (arguments_.size() != 2)
    throw CommandError(exit_code::kUsage, "format needs FORMAT and VALUE, or --tsv.");
  const auto text = Shown(arguments_[0], arguments_[1], dates);
  if (!text) throw CommandError(exit_code::kUsage, "\"" + arguments_[0] + "\" isn't a number format.");
  streams.out << *text << '\n';
  return exit_code::kDone;
}

}  // namespace plotsmith::cli

#include <utility>
#include <vector>

#include "cli/manual/Manual.h"

namespace plotsmith::cli {
namespace {

/// Returns a text on one line with the special characters of man(7) escaped.
std::string Plain(const std::string& text) {
  std::string plain;
  for (const char c : text) {
    switch (c) {
      case '\\':
        plain += "\\e";
        break;
      case '-':
        plain += "\\-";
        break;
      case '\'':
        plain += "\\(aq";
        break;
      case '\n':
        plain += ' ';
        break;
      default:
        plain += c;
    }
  }
  return plain.starts_with('.') ? "\\&" + plain : plain;
}

std::string Bold(const std::string& text) { return "\\fB" + Plain(text) + "\\fR"; }
std::string Italic(const std::string& text) { return "\\fI" + Plain(text) + "\\fR"; }

const std::pair<std::string, std::string> kExamples[] = {
    {"new sales.xlsx --table Data1 --type column --title Sales --series Product --new-sheet Charts",
     "Make a column chart, with a colour for each product, on a new sheet."},
    {"modify sales.xlsx Sales --set stacked 100% --labels values",
     "Stack its columns to 100%, and show the values."},
    {"refresh sales.xlsx --table Data1 -o new.xlsx",
     "Rebuild the charts of the table Data1, and leave the workbook unchanged."},
    {"refresh reports/*.xlsx --jobs 4 --verbose",
     "Rebuild the charts of many workbooks, four at a time, and print a summary."},
    {"refresh sales.xlsx -o - | mail-it", "Pass the refreshed workbook to another program."},
    {"rename-columns sales.xlsx --table Data1 Region=Area",
     "Rename a column in the charts after its heading was changed in the table."},
    {"charts sales.xlsx --json", "Print the state of each chart for a program."},
    {"cells sales.xlsx 'VEX_ChartData!A1:D9'", "Print the data of the charts."}};

constexpr const char* kDefinitions =
    "The definition of a chart is an XML text on the hidden sheet VEX_ChartDefinitions of its workbook. The "
    "command new makes a definition together with the chart, modify changes it, copy copies it, definition "
    "prints it, and check lists its problems. Programs can also write definitions. The page file-formats.md "
    "of the installed documentation, in share/doc/plotsmith/docs, describes them in full.";

/// "-o, --output FILE"
std::string Heading(const OptionView& option) {
  if (option.positional) return Italic(option.names.front());
  std::string text;
  for (const std::string& name : option.names) text += (text.empty() ? "" : ", ") + Bold(name);
  return option.value.empty() ? text : text + " " + Italic(option.value);
}

/// "BOOK [--table ID]"
std::string Usage(const std::vector<OptionView>& options) {
  std::string usage;
  for (const OptionView& option : options) {
    std::string text = option.positional ? Italic(option.names.front()) : Bold(option.names.front());
    if (!option.positional && !option.value.empty()) text += " " + Italic(option.value);
    // The name "FORMAT VALUE" already lists two values.
    if (option.positional && option.repeated && text.find(' ') == std::string::npos) text += "...";
    usage += " " + (option.required ? text : "[" + text + "]");
  }
  return usage;
}

std::string Entries(const std::vector<OptionView>& options) {
  std::string text;
  for (const OptionView& option : options) {
    text += ".TP\n" + Heading(option) + "\n" + Plain(option.description) + ".\n";
  }
  return text;
}

}  // namespace

std::string ManualPage(const CommandLine& line) {
  const std::string name = line.app.get_name();
  std::string page =
      ".\\\" Made from the command's own table of options.\n.TH PLOTSMITH 1 \"\" \"" + name + " " +
      PLOTSMITH_VERSION + "\" \"User Commands\"\n.SH NAME\n" + name +
      " \\- make charts from the tables of Excel workbooks, and keep them up to date\n.SH SYNOPSIS\n";
  for (const CLI::App* verb : line.verbs) {
    page += Bold(name) + " " + Bold(verb->get_name()) + Usage(OptionsOf(*verb)) + "\n.br\n";
  }
  page += ".SH DESCRIPTION\n" + Plain(line.app.get_description()) + "\n.SH COMMANDS\n";
  for (const CLI::App* verb : line.verbs) {
    page += ".SS " + Plain(verb->get_name()) + "\n" + Plain(verb->get_description()) + ".\n" +
            Entries(OptionsOf(*verb));
  }
  page += ".SH DEFINITIONS\n" + Plain(kDefinitions) +
          "\n.SH OPTIONS\nThey can be used with every command.\n" + Entries(OptionsOf(line.app));
  page += ".SH EXAMPLES\n";
  for (const auto& [command, sentence] : kExamples)
    page += ".TP\n" + Bold(name + " " + command) + "\n" + Plain(sentence) + "\n";
  page += ".SH EXIT STATUS\n" + Plain(line.app.get_footer()) + "\n";
  return page;
}

}  // namespace plotsmith::cli

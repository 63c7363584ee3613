#include <algorithm>
#include <map>
#include <vector>

#include "cli/manual/Manual.h"

namespace plotsmith::cli {
namespace {

/// Which arguments name files: the workbook, and what is written.
constexpr const char* kBook = "BOOK";
constexpr const char* kFile = "FILE";

std::string Joined(const std::vector<std::string>& words, const std::string& separator) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : separator) + word;
  return text;
}

std::vector<std::string> OptionNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const OptionView& option : OptionsOf(app)) {
    if (!option.positional) names.insert(names.end(), option.names.begin(), option.names.end());
  }
  return names;
}

bool WantsBook(const CLI::App& verb) {
  const auto options = OptionsOf(verb);
  return std::any_of(options.begin(), options.end(),
                     [](const OptionView& option) { return option.names.front() == kBook; });
}

std::vector<std::string> VerbNames(const CommandLine& line) {
  std::vector<std::string> names;
  for (const CLI::App* verb : line.verbs) names.push_back(verb->get_name());
  return names;
}

/// The options that want a value, by the name of the value.
std::map<std::string, std::vector<std::string>> ValueOptions(const CommandLine& line) {
  std::map<std::string, std::vector<std::string>> options;
  const auto add = [&](const CLI::App& app) {
    for (const OptionView& option : OptionsOf(app)) {
      if (option.positional || option.value.empty()) continue;
      auto& names = options[option.value];
      for (const std::string& name : option.names) {
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
      }
    }
  };
  add(line.app);
  for (const CLI::App* verb : line.verbs) add(*verb);
  return options;
}

/// Inside of single quotes, with what _arguments takes for its own made harmless.
std::string ZshText(const std::string& text) {
  std::string plain;
  for (const char c : text) {
    if (c == '\'') {
      plain += "'\\''";
    } else {
      if (std::string_view("[]:\\").find(c) != std::string_view::npos) plain += '\\';
      plain += c == '\n' ? ' ' : c;
    }
  }
  return plain;
}

std::string ZshArgument(const OptionView& option, int& position) {
  if (option.positional) {
    const std::string place = option.repeated ? "*" : std::to_string(++position);
    const std::string action = option.names.front() == kBook ? "_files -g \"*.xls[xm]\"" : "";
    return "'" + place + ":" + ZshText(option.names.front()) + ":" + action + "'";
  }
  const std::string names = option.names.size() == 1
                                ? "'" + option.names.front()
                                : "'(" + Joined(option.names, " ") + ")'{" + Joined(option.names, ",") + "}'";
  const std::string value =
      option.value.empty() ? "" : ":" + ZshText(option.value) + ":" + (option.value == kFile ? "_files" : "");
  return names + "[" + ZshText(option.description) + "]" + value + "'";
}

std::string ZshArguments(const CLI::App& app) {
  std::string text;
  int position = 0;
  for (const OptionView& option : OptionsOf(app)) text += " \\\n          " + ZshArgument(option, position);
  return text;
}

}  // namespace

std::string BashCompletion(const CommandLine& line) {
  std::string script = R"(# Completion of plotsmith for bash; made from the command's own table of options.
_plotsmith() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb= book= options= i
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      )" + Joined(VerbNames(line), " | ") +
                       R"() verb=${COMP_WORDS[i]}; break ;;
    esac
  done
  COMPREPLY=()
  case $before in
)";
  for (const auto& [value, names] : ValueOptions(line)) {
    script += "    " + Joined(names, " | ") + ") " +
              (value == kFile
                   ? "compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- \"$word\"); "
                   : "") +
              "return ;;\n";
  }
  script += "  esac\n  case $verb in\n";
  for (const CLI::App* verb : line.verbs) {
    script += "    " + verb->get_name() + ") options='" + Joined(OptionNames(*verb), " ") + "'" +
              (WantsBook(*verb) ? " book=yes" : "") + " ;;\n";
  }
  script += "  esac\n  options+=' " + Joined(OptionNames(line.app), " ") + R"('
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
  elif [[ -z $verb ]]; then
    mapfile -t COMPREPLY < <(compgen -W ')" +
            Joined(VerbNames(line), " ") + R"(' -- "$word")
  elif [[ -n $book ]]; then
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -X '!*.xls[xm]' -- "$word"; compgen -d -- "$word")
  fi
}
complete -F _plotsmith plotsmith
)";
  return script;
}

std::string ZshCompletion(const CommandLine& line) {
  std::string script = R"(#compdef plotsmith
# Completion of plotsmith for zsh; made from the command's own table of options.
_plotsmith() {
  local curcontext=$curcontext state line
  local -a verbs common
  verbs=()";
  for (const CLI::App* verb : line.verbs) {
    script += "\n    '" + verb->get_name() + ":" + ZshText(verb->get_description()) + "'";
  }
  script += ")\n  common=(";
  int position = 0;
  for (const OptionView& option : OptionsOf(line.app)) script += "\n    " + ZshArgument(option, position);
  script += R"()
  _arguments -C "$common[@]" '1:command:->verb' '*::argument:->rest'
  case $state in
    verb) _describe command verbs ;;
    rest)
      case $words[1] in
)";
  for (const CLI::App* verb : line.verbs) {
    script += "        " + verb->get_name() + ") _arguments \"$common[@]\"" + ZshArguments(*verb) + " ;;\n";
  }
  script += R"(      esac
      ;;
  esac
}
_plotsmith "$@"
)";
  return script;
}

}  // namespace plotsmith::cli

#include <algorithm>
#include <map>
#include <vector>

#include "cli/Candidates.h"
#include "cli/manual/Manual.h"
#include "cli/wizard/LayoutControls.h"

namespace plotsmith::cli {
namespace {

/// The names of arguments that are completed with files: the workbook, and the output.
constexpr const char* kBook = "BOOK";
constexpr const char* kFile = "FILE";
constexpr const char* kFolder = "FOLDER";
/// The names of workbooks in a pattern of a shell: .xlsx, .xlsm, .xltx and .xltm.
constexpr const char* kBookFiles = "*.xl[st][xm]";
/// The names of the arguments for a chart type and for a picture format.
constexpr const char* kType = "TYPE";
constexpr const char* kFormat = "KIND";
constexpr const char* kFormats = "svg png pdf";

/// An argument that is completed from the workbook, and the word that requests its candidates.
struct BookValue {
  const char* name;
  const char* word;
};
constexpr BookValue kBookValues[] = {{"ID", "tables"}, {"CHART", "charts"}, {"COL", "columns"}};

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

std::vector<std::string> VerbNames(const CommandLine& line) {
  std::vector<std::string> names;
  for (const CLI::App* verb : line.verbs) names.push_back(verb->get_name());
  return names;
}

/// The value of an option: its name, and whether several values may follow.
struct OptionValue {
  std::string name;
  bool many;
  auto operator<=>(const OptionValue&) const = default;
};

/// Returns the options with a value, by that value.
std::map<OptionValue, std::vector<std::string>> ValueOptions(const CommandLine& line) {
  std::map<OptionValue, std::vector<std::string>> options;
  const auto add = [&](const CLI::App& app) {
    for (const OptionView& option : OptionsOf(app)) {
      if (option.positional || option.value.empty()) continue;
      auto& names = options[{option.value, option.repeated}];
      for (const std::string& name : option.names) {
        if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
      }
    }
  };
  add(line.app);
  for (const CLI::App* verb : line.verbs) add(*verb);
  return options;
}

/// Returns each text as one word of a shell.
std::vector<std::string> QuotedWords(std::vector<std::string> texts) {
  for (std::string& text : texts) text = "'" + text + "'";
  return texts;
}

/// Returns the positional arguments of a verb for bash: their names, and whether the last one may be
/// repeated.
std::string BashPlaces(const CLI::App& verb) {
  std::vector<std::string> places;
  bool repeated = false;
  for (const OptionView& option : OptionsOf(verb)) {
    if (!option.positional) continue;
    places.push_back(option.names.front());
    repeated = option.repeated;
  }
  return "places=(" + Joined(QuotedWords(places), " ") + ")" + (repeated ? " again=yes" : "");
}

/// Escapes a text for single quotes and for the special characters of _arguments.
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

/// Returns the zsh action for an argument, or "" if there is no completion.
std::string ZshAction(const std::string& name) {
  if (name == kBook) return std::string("_files -g \"") + kBookFiles + '"';
  if (name == kFile) return "_files";
  if (name == kFolder) return "_files -/";
  if (name == kFormat) return "(" + std::string(kFormats) + ")";
  if (name == kType) return "_plotsmith_types";
  for (const BookValue& value : kBookValues) {
    if (name == value.name) return std::string("_plotsmith_") + value.word;
  }
  return "";
}

std::string ZshArgument(const OptionView& option, int& position) {
  if (option.positional) {
    const std::string place = option.repeated ? "*" : std::to_string(++position);
    return "'" + place + ":" + ZshText(option.names.front()) + ":" + ZshAction(option.names.front()) + "'";
  }
  const std::string names = option.names.size() == 1
                                ? (option.repeated ? "'*" : "'") + option.names.front()
                                : "'(" + Joined(option.names, " ") + ")'{" + Joined(option.names, ",") + "}'";
  const std::string value =
      option.value.empty() ? "" : ":" + ZshText(option.value) + ":" + ZshAction(option.value);
  return names + "[" + ZshText(option.description) + "]" + value + "'";
}

/// Returns the functions that ZshAction uses.
std::string ZshQuestions() {
  std::string text = std::string("_plotsmith_types() { compadd \"$@\" -- ") +
                     Joined(QuotedWords(ChartTypes()), " ") + " }\n";
  for (const BookValue& value : kBookValues) {
    text += std::string("_plotsmith_") + value.word + "() { _plotsmith_ask " + value.word + " \"$@\" }\n";
  }
  return text;
}

std::string ZshArguments(const CLI::App& app) {
  std::string text;
  int position = 0;
  for (const OptionView& option : OptionsOf(app)) text += " \\\n          " + ZshArgument(option, position);
  return text;
}

/// Returns the functions that the completion calls.
std::string BashHelpers() {
  return std::string(R"(# Completion of plotsmith for bash; made from the command's own table of options.

# Puts a word as the shell would pass it on into the variable plain.
_plotsmith_plain() {
  plain=$1
  case $plain in
    \'*) plain=${plain#\'} plain=${plain%\'} ;;
    \"*) plain=${plain#\"} plain=${plain%\"} plain=${plain//\\/} ;;
    *)
      plain=${plain//\\/}
      if [[ $plain == '~/'* ]]; then plain=$HOME/${plain:2}; fi ;;
  esac
}

# Offers those lines of the input that begin as the word does, quoted as it is.
_plotsmith_match() {
  local plain candidate
  _plotsmith_plain "$word"
  while IFS= read -r candidate; do
    [[ $candidate == "$plain"* ]] || continue
    case $word in
      \'*) [[ $candidate != *\'* ]] || continue ;;
      \"*) candidate=${candidate//\\/\\\\} candidate=${candidate//\"/\\\"}
        candidate=${candidate//\$/\\\$} candidate=${candidate//\`/\\\`} ;;
      *) printf -v candidate %q "$candidate" ;;
    esac
    COMPREPLY+=("$candidate")
  done
}

# Offers what the workbook on the line has.
_plotsmith_ask() {
  local plain command file id
  _plotsmith_plain "${COMP_WORDS[0]}"; command=$plain
  _plotsmith_plain "$book"; file=$plain
  _plotsmith_plain "$table"; id=$plain
  [[ -n $file ]] || return
  _plotsmith_match < <("$command" )") +
         kComplete +
         R"( "$1" "$file" ${id:+--table "$id"} 2>/dev/null)
}

)";
}

}  // namespace

std::string BashCompletion(const CommandLine& line) {
  std::string script = BashHelpers() + R"(_plotsmith() {
  local word=${COMP_WORDS[COMP_CWORD]} verb= book= table= option= value= many= again= options= count=0 one i
  local -a places=()
  for ((i = 1; i < COMP_CWORD; ++i)); do
    one=${COMP_WORDS[i]}
    if [[ $one == -* ]]; then
      option=$one value= many=
      case $option in
)";
  for (const auto& [value, names] : ValueOptions(line)) {
    script += "        " + Joined(names, " | ") + ") value='" + value.name + "'" +
              (value.many ? " many=yes" : "") + " ;;\n";
  }
  script += R"(      esac
    elif [[ -n $value && $one == = ]]; then
      continue
    elif [[ -n $value ]]; then
      if [[ $option == --table ]]; then table=$one; fi
      if [[ -z $many ]]; then value=; fi
    elif [[ -z $verb ]]; then
      verb=$one
    else
      if ((++count == 1)); then book=$one; fi
    fi
  done
  if [[ $word == = ]]; then word=; fi
  case $verb in
)";
  for (const CLI::App* verb : line.verbs) {
    script += "    " + verb->get_name() + ") options='" + Joined(OptionNames(*verb), " ") + "' " +
              BashPlaces(*verb) + " ;;\n";
  }
  script += "  esac\n  options+=' " + Joined(OptionNames(line.app), " ") + R"('
  COMPREPLY=()
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    return
  elif [[ -z $value && -z $verb ]]; then
    mapfile -t COMPREPLY < <(compgen -W ')" +
            Joined(VerbNames(line), " ") + R"(' -- "$word")
    return
  elif [[ -z $value ]]; then
    if [[ -n $again ]] && ((count >= ${#places[@]})); then count=$((${#places[@]} - 1)); fi
    value=${places[count]-}
  fi
  case $value in
    )" + kFile +
            R"()
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    )" + kFolder +
            R"()
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    )" + kFormat +
            R"() mapfile -t COMPREPLY < <(compgen -W ')" + kFormats +
            R"(' -- "$word") ;;
    )" + kBook +
            R"()
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -X '!)" +
            kBookFiles + R"(' -- "$word"; compgen -d -- "$word") ;;
    )" + kType +
            ") _plotsmith_match < <(printf '%s\\n' " + Joined(QuotedWords(ChartTypes()), " ") + ") ;;\n";
  for (const BookValue& value : kBookValues) {
    script += std::string("    ") + value.name + ") _plotsmith_ask " + value.word + " ;;\n";
  }
  script += R"(  esac
}
complete -F _plotsmith plotsmith
)";
  return script;
}

std::string ZshCompletion(const CommandLine& line) {
  std::string script = R"(#compdef plotsmith
# Completion of plotsmith for zsh; made from the command's own table of options.

# Offers what the workbook on the line has.
_plotsmith_ask() {
  local kind=$1 book=${(Q)words[(r))" +
                       std::string(kBookFiles) + R"(*]} id=
  local -i at=${words[(i)--table]}
  local -a found
  shift
  if ((at < CURRENT - 1)); then id=${(Q)words[at + 1]}; fi
  found=("${(@f)$("$plotsmith" )" +
                       std::string(kComplete) +
                       R"( $kind "${book/#\~\//$HOME/}" ${id:+--table} ${id:+"$id"} 2>/dev/null)}")
  if [[ -n $found ]]; then compadd "$@" -a found; fi
}
)" + ZshQuestions() + R"(
_plotsmith() {
  local curcontext=$curcontext state line plotsmith=${(Q)words[1]}
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

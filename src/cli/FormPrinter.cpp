#include "cli/FormPrinter.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

using forms::ControlState;
using forms::FormState;
using Json = nlohmann::ordered_json;

constexpr std::size_t kIndent = 2;

/// Returns the caption without "&", which only underlines a letter on the screen.
std::string Plain(const std::string& caption) {
  return std::string(runtime::Trim(runtime::Replace(caption, "&", "")));
}

std::string EscapedLine(std::string_view text) { return runtime::Replace(text, "\n", "\\n"); }

std::string InQuotes(const std::string& text) { return "\"" + EscapedLine(text) + "\""; }

bool IsSelected(const ControlState& control, std::size_t place) {
  const auto index = static_cast<std::int32_t>(place);
  if (!control.selected) return control.listIndex == index;
  return std::find(control.selected->begin(), control.selected->end(), index) != control.selected->end();
}

/// Returns all entries on one line, such as "East | >West".
std::string Entries(const ControlState& control) {
  std::string text;
  for (std::size_t i = 0; i < control.list->size(); ++i) {
    text += (i > 0 ? " | " : "") + std::string(IsSelected(control, i) ? ">" : "") +
            EscapedLine((*control.list)[i]);
  }
  return text.empty() ? "(no entries)" : text;
}

/// Returns the contents of a control on one line.
std::string Contents(const ControlState& control) {
  if (control.kind == "CommandButton") {
    return "[ " + Plain(*control.caption) + " ]" + (control.isDefault ? " Enter" : "") +
           (control.isCancel ? " Escape" : "");
  }
  if (control.value) {
    const char* const mark =
        control.kind == "CheckBox" ? (*control.value ? "[x]" : "[ ]") : (*control.value ? "(o)" : "( )");
    return mark + (control.caption->empty() ? std::string() : " " + Plain(*control.caption));
  }
  if (control.list && *control.listIndex < 0 && !control.text->empty()) {
    return InQuotes(*control.text) + " of " + Entries(control);  // The text was typed.
  }
  if (control.list) return Entries(control);
  if (control.text) return InQuotes(*control.text);
  return control.caption ? Plain(*control.caption) : std::string();
}

std::string Marks(const ControlState& control) {
  std::string marks;
  const auto add = [&](bool holds, const char* mark) {
    if (holds) marks += (marks.empty() ? "  (" : ", ") + std::string(mark);
  };
  add(!control.visible, "hidden");
  add(!control.enabled, "off");
  add(control.focus, "focus");
  return marks.empty() ? marks : marks + ")";
}

/// Returns the number of characters.
std::size_t WidthOf(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string Padded(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, WidthOf(text)), ' ');
}

/// Prints the lines of a form.
class Printer {
 public:
  Printer(std::ostream& out, const FormState& form) : out_(out), form_(form) {
    for (const ControlState& control : form.controls) {
      if (!IsFrame(control) && IsWorthALine(control)) {
        nameWidth_ = std::max(nameWidth_, control.name.size() + (control.container.empty() ? 0 : kIndent));
      }
    }
  }

  void Print() const {
    out_ << form_.name << "  " << form_.caption << '\n';
    PrintIn("", 0);
  }

 private:
  static bool IsFrame(const ControlState& control) { return control.kind == "Frame"; }
  static bool IsWorthALine(const ControlState& control) {
    return control.kind != "Timer" && (control.kind != "Image" || control.visible);
  }

  /// Prints the controls of a frame or of the form, including nested frames.
  void PrintIn(const std::string& container, std::size_t indent) const {
    for (const ControlState& control : form_.controls) {
      if (control.container != container || !IsWorthALine(control)) continue;
      PrintControl(control, indent);
      if (control.rows) PrintRows(control, indent + kIndent);
      if (IsFrame(control)) PrintIn(control.name, indent + kIndent);
    }
  }

  void PrintControl(const ControlState& control, std::size_t indent) const {
    const std::string contents = Contents(control);
    const std::size_t width = IsFrame(control) ? 0 : nameWidth_ - std::min(indent, nameWidth_);
    const bool alone = contents.empty() && Marks(control).empty();
    out_ << std::string(indent, ' ') << (alone ? control.name : Padded(control.name, width))
         << (contents.empty() ? "" : "  ") << contents << Marks(control) << '\n';
  }

  /// Prints the rows of a grid with aligned columns.
  void PrintRows(const ControlState& grid, std::size_t indent) const {
    std::vector<std::size_t> widths;
    for (const auto& row : *grid.rows) {
      widths.resize(std::max(widths.size(), row.size()));
      for (std::size_t i = 0; i < row.size(); ++i)
        widths[i] = std::max(widths[i], WidthOf(EscapedLine(row[i])));
    }
    for (std::size_t place = 0; place < grid.rows->size(); ++place) {
      const auto& row = (*grid.rows)[place];
      std::string line = std::string(indent, ' ') + (IsSelected(grid, place) ? ">" : " ");
      for (std::size_t i = 0; i < row.size(); ++i) line += Padded(EscapedLine(row[i]), widths[i]) + "  ";
      out_ << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
    }
  }

  std::ostream& out_;
  const FormState& form_;
  std::size_t nameWidth_ = 0;
};

Json JsonOf(const ControlState& control) {
  Json json = {{"name", control.name},           {"kind", control.kind},
               {"container", control.container}, {"accessibleName", control.accessibleName},
               {"enabled", control.enabled},     {"visible", control.visible},
               {"focus", control.focus},         {"backColor", control.backColor}};
  const auto add = [&](const char* key, const auto& member) {
    if (member) json[key] = *member;
  };
  add("caption", control.caption);
  add("text", control.text);
  add("value", control.value);
  add("list", control.list);
  add("listIndex", control.listIndex);
  add("rows", control.rows);
  if (control.rows) json["fixedRows"] = control.fixedRows;
  add("selected", control.selected);
  if (control.kind == "CommandButton") {
    json["default"] = control.isDefault;
    json["cancel"] = control.isCancel;
  }
  return json;
}

}  // namespace

void PrintForm(std::ostream& out, const FormState& form) { Printer(out, form).Print(); }

void PrintFormAsJson(std::ostream& out, const FormState& form) {
  Json controls = Json::array();
  for (const ControlState& control : form.controls) controls.push_back(JsonOf(control));
  const Json json = {{"name", form.name}, {"caption", form.caption}, {"controls", controls}};
  out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace plotsmith::cli

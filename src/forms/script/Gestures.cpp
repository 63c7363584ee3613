#include "forms/script/Gestures.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "forms/script/ScriptError.h"
#include "forms/script/Wording.h"
#include "runtime/Ascii.h"
#include "runtime/Variant.h"

namespace plotsmith::forms {
namespace {

/// A line that is being executed.
struct Gesture {
  const Words& words;  ///< The words, beginning with the verb.
  Form& form;
  Hand& hand;
  EventQueue& queue;

  /// Returns the control that the line names. Throws ScriptError if the user can't use it now.
  Control& Target() const {
    Control& control = ControlOf(form, words[1].text);
    const std::string obstacle = control.Obstacle();
    if (!obstacle.empty()) throw ScriptError(control.FullName() + " " + obstacle);
    return control;
  }
};

/// Returns the error for a control of the wrong kind. `wanted` is the right kind.
ScriptError WrongKind(const Gesture& gesture, const Control& control, const char* wanted) {
  const std::string kind = control.TypeName();
  const bool hasVowel = std::string_view("AEIOU").find(kind.front()) != std::string_view::npos;
  return ScriptError(control.FullName() + (hasVowel ? " is an " : " is a ") + kind + ", and '" +
                     gesture.words.front().text + "' is for " + wanted);
}

template <class Kind>
Kind& TargetOf(const Gesture& gesture, const char* wanted) {
  Control& control = gesture.Target();
  if (auto* target = dynamic_cast<Kind*>(&control)) return *target;
  throw WrongKind(gesture, control, wanted);
}

/// The selectable items of a control, in order.
struct Items {
  const Control& control;
  const char* kind;  ///< "row" or "entry"
  const char* kinds;
  std::vector<std::string> texts;
};

Items RowsOf(const VSFlexGrid& grid) {
  Items items{grid, "row", "rows", {}};
  for (std::int32_t row = grid.FixedRows(); row < grid.Rows(); ++row) {
    items.texts.push_back(grid.Cols() > 0 ? grid.TextMatrix(row, 0) : "");
  }
  return items;
}

Items EntriesOf(const EntryList& list) {
  Items items{list, "entry", "entries", {}};
  for (std::int32_t i = 0; i < list.ListCount(); ++i) items.texts.push_back(list.List(i));
  return items;
}

/// Returns the end of a sentence that lists the existing items.
std::string Instead(const Items& items) {
  if (items.texts.empty()) return std::string("it has no ") + items.kinds;
  std::vector<std::string> names;
  for (const std::string& text : items.texts) names.push_back(Named(text));
  return "it has " + SomeOf(names);
}

/// Returns the index of the first item with the text, or nothing.
std::optional<std::int32_t> FindText(const Items& items, const std::string& text) {
  const std::string wanted = WithLineEnds(text, "\n");
  const auto found = std::find_if(items.texts.begin(), items.texts.end(), [&](const std::string& item) {
    return WithLineEnds(item, "\n") == wanted;
  });
  if (found == items.texts.end()) return std::nullopt;
  return static_cast<std::int32_t>(found - items.texts.begin());
}

/// Returns the index of the first item with the text.
std::int32_t PlaceOfText(const Items& items, const std::string& text) {
  if (const auto place = FindText(items, text)) return *place;
  throw ScriptError(items.control.FullName() + " has no " + items.kind + " " + Named(text) + "; " +
                    Instead(items));
}

/// Returns the number in "#3", which counts from 1, or nothing for other words.
std::optional<double> NumberOf(const Word& word) {
  if (word.quoted || word.text.size() < 2 || word.text.front() != '#' ||
      !std::all_of(word.text.begin() + 1, word.text.end(), ascii::IsDigit)) {
    return std::nullopt;
  }
  return runtime::ParseNumber(std::string_view(word.text).substr(1));
}

/// Returns the index of an item that a word names by text or number.
std::int32_t PlaceOf(const Items& items, const Word& word) {
  const auto number = NumberOf(word);
  if (!number) return PlaceOfText(items, word.text);
  const auto count = static_cast<double>(items.texts.size());
  if (*number >= 1 && *number <= count) return static_cast<std::int32_t>(*number) - 1;
  throw ScriptError(items.control.FullName() + " has no " + items.kind + " " + word.text + "; it has " +
                    (items.texts.empty() ? "no" : std::to_string(items.texts.size())) + " " +
                    (items.texts.size() == 1 ? items.kind : items.kinds));
}

std::vector<std::int32_t> PlacesOf(const Gesture& gesture, const Items& items, MultiSelect multiSelect) {
  std::vector<std::int32_t> places;
  for (std::size_t i = 2; i < gesture.words.size(); ++i) places.push_back(PlaceOf(items, gesture.words[i]));
  if (multiSelect == MultiSelect::kNone && places.size() > 1) {
    throw ScriptError("only one " + std::string(items.kind) + " of " + items.control.FullName() +
                      " can be selected at a time");
  }
  return places;
}

void Select(const Gesture& gesture) {
  Control& control = gesture.Target();
  if (auto* list = dynamic_cast<ListBox*>(&control)) {
    gesture.hand.SelectEntries(gesture.queue, *list,
                               PlacesOf(gesture, EntriesOf(*list), list->MultiSelect()));
  } else if (auto* grid = dynamic_cast<VSFlexGrid*>(&control)) {
    auto rows = PlacesOf(gesture, RowsOf(*grid), grid->MultiSelect());
    for (std::int32_t& row : rows) row += grid->FixedRows();
    gesture.hand.SelectRows(gesture.queue, *grid, std::move(rows));
  } else {
    throw WrongKind(gesture, control, "a list or a grid");
  }
}

void Double(const Gesture& gesture) {
  auto& grid = TargetOf<VSFlexGrid>(gesture, "a grid");
  gesture.hand.DoubleClickRow(gesture.queue, grid,
                              grid.FixedRows() + PlaceOf(RowsOf(grid), gesture.words[2]));
}

void Choose(const Gesture& gesture) {
  Control& control = gesture.Target();
  const bool withItem = gesture.words.size() > 2;
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    if (withItem)
      throw ScriptError(control.FullName() + " is an option, which has no entries to choose from");
    gesture.hand.ChooseOption(gesture.queue, *option);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    const Items entries = EntriesOf(*combo);
    if (!withItem) throw ScriptError("which entry of " + control.FullName() + "? " + Instead(entries));
    // An entry such as "#2" was always chosen by its text, with or without quotes.
    const auto place = FindText(entries, gesture.words[2].text);
    gesture.hand.ChooseEntry(gesture.queue, *combo, place ? *place : PlaceOf(entries, gesture.words[2]));
  } else {
    throw WrongKind(gesture, control, "a combo box or an option");
  }
}

void Check(const Gesture& gesture) {
  gesture.hand.Toggle(gesture.queue, TargetOf<CheckBox>(gesture, "a check box"), true);
}

void Uncheck(const Gesture& gesture) {
  gesture.hand.Toggle(gesture.queue, TargetOf<CheckBox>(gesture, "a check box"), false);
}

void Type(const Gesture& gesture) {
  Control& control = gesture.Target();
  const std::string& text = gesture.words[2].text;
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    const std::string obstacle = box->ObstacleTo(text);
    if (!obstacle.empty()) throw ScriptError(control.FullName() + " " + obstacle);
    gesture.hand.TypeText(gesture.queue, *box, text);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    if (combo->Style() == ComboStyle::kDropDownList) {
      throw ScriptError("nothing can be typed into " + control.FullName() +
                        "; 'choose' takes one of its entries");
    }
    const std::string obstacle = combo->ObstacleTo(text);
    if (!obstacle.empty()) throw ScriptError(control.FullName() + " " + obstacle);
    gesture.hand.TypeText(gesture.queue, *combo, text);
  } else {
    throw WrongKind(gesture, control, "a text box or a combo box");
  }
}

void Press(const Gesture& gesture) {
  gesture.hand.Press(gesture.queue, TargetOf<CommandButton>(gesture, "a button"));
}

void Focus(const Gesture& gesture) { gesture.hand.Focus(gesture.queue, gesture.Target()); }
void Enter(const Gesture& gesture) { gesture.hand.Enter(gesture.queue, gesture.form); }
void Escape(const Gesture& gesture) { gesture.hand.Escape(gesture.queue, gesture.form); }
void Close(const Gesture& gesture) { gesture.hand.Close(gesture.queue, gesture.form); }

struct GestureVerb {
  std::string_view name;
  void (*make)(const Gesture& gesture);
};

constexpr std::array kGestures = {
    GestureVerb{"select", Select}, GestureVerb{"double", Double},   GestureVerb{"choose", Choose},
    GestureVerb{"check", Check},   GestureVerb{"uncheck", Uncheck}, GestureVerb{"type", Type},
    GestureVerb{"press", Press},   GestureVerb{"focus", Focus},     GestureVerb{"enter", Enter},
    GestureVerb{"escape", Escape}, GestureVerb{"close", Close},
};

const GestureVerb* FindGesture(const Words& words) {
  const auto* found = std::find_if(kGestures.begin(), kGestures.end(), [&](const GestureVerb& gesture) {
    return gesture.name == words.front().text;
  });
  return found == kGestures.end() ? nullptr : found;
}

}  // namespace

bool IsGesture(const Words& words) { return FindGesture(words) != nullptr; }

void MakeGesture(const Words& words, Form& form, Hand& hand, EventQueue& queue) {
  FindGesture(words)->make({words, form, hand, queue});
}

Control& ControlOf(const Form& form, const std::string& name) {
  if (Control* control = form.FindControl(name)) return *control;
  std::vector<std::string> names;
  for (const Control* control : form.Controls()) names.push_back(control->FullName());
  throw ScriptError(form.Name() + " has no control " + Named(name) +
                    (names.empty() ? "" : "; it has " + Listed(names)));
}

}  // namespace plotsmith::forms

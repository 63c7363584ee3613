#include "tests/support/PagesTest.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <sstream>

#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/Buttons.h"
#include "forms/Color.h"
#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"
#include "forms/script/ScriptError.h"
#include "forms/script/ScriptPlayer.h"
#include "tests/support/FamilyBooks.h"

namespace plotsmith::test {
namespace {

using forms::Control;
using S = std::string;

/// A desktop whose message boxes go to the script, and whose help topics go to a list.
class PagesDesktop final : public cli::ConsoleDesktop {
 public:
  PagesDesktop(std::shared_ptr<forms::ScriptPlayer> player, std::vector<std::int32_t>& helpTopics)
      : player_(std::move(player)), helpTopics_(helpTopics) {}

  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon,
                      std::string_view) override {
    if (buttons == desktop::Buttons::kOkCancel)
      return player_->Answer(text) ? desktop::kOk : desktop::kCancel;
    player_->AddMessage(text);
    return desktop::kOk;
  }
  void ShowHelp(std::intptr_t, const S&, std::int32_t topic) override { helpTopics_.push_back(topic); }

 private:
  std::shared_ptr<forms::ScriptPlayer> player_;
  std::vector<std::int32_t>& helpTopics_;
};

/// Returns the names of the controls for which `mark` returns a text, each followed by that text.
S NamesOf(const forms::Form& form, const std::function<std::optional<S>(Control&)>& mark) {
  S names;
  for (Control* control : form.Controls()) {
    if (const auto behind = mark(*control))
      names += (names.empty() ? "" : " ") + control->FullName() + *behind;
  }
  return names;
}

std::optional<S> OffMark(Control& control) {
  const bool isBox = dynamic_cast<const forms::EntryList*>(&control) != nullptr ||
                     dynamic_cast<const forms::TextBox*>(&control) != nullptr;
  const bool colorFits =
      !isBox || control.BackColor() == (control.Enabled() ? forms::kWhite : forms::kButtonFace);
  if (!colorFits) return "!";
  return control.Enabled() ? std::nullopt : std::optional<S>("");
}

std::optional<S> MarkedMark(Control& control) {
  const bool colored = control.BackColor() == forms::kToolTipBackground;
  if (const auto* frame = dynamic_cast<const forms::Frame*>(&control)) {
    const bool flat = frame->Appearance() == forms::Frame::kFlat;
    if (frame->FontBold() != colored || flat != colored) return "!";
  }
  return colored ? std::optional<S>("") : std::nullopt;
}

std::optional<S> PictureMark(Control& control) {
  const bool shows = dynamic_cast<const forms::Image*>(&control) != nullptr && control.Visible();
  return shows ? std::optional<S>("") : std::nullopt;
}

std::optional<S> DefaultMark(Control& control) {
  const auto* button = dynamic_cast<const forms::CommandButton*>(&control);
  return button != nullptr && button->Default() ? std::optional<S>("") : std::nullopt;
}

S CellsOf(const forms::VSFlexGrid& grid) {
  S text;
  for (std::int32_t row = 0; row < grid.Rows(); ++row) {
    for (std::int32_t column = 0; column < grid.Cols(); ++column) {
      text += (column > 0 ? "," : row > 0 ? "|" : "") + grid.TextMatrix(row, column);
    }
  }
  return text;
}

S Seen(const forms::Form& form, const S& what) {
  if (const auto* grid = dynamic_cast<const forms::VSFlexGrid*>(form.FindControl(what)))
    return CellsOf(*grid);
  if (what == "focus") return form.ActiveControl() == nullptr ? "" : form.ActiveControl()->FullName();
  if (what == "default") return NamesOf(form, DefaultMark);
  if (what == "off") return NamesOf(form, OffMark);
  if (what == "pictures") return NamesOf(form, PictureMark);
  if (what == "marked") return NamesOf(form, MarkedMark);
  throw forms::ScriptError("nothing is known of " + what);
}

Hands HandsOnModel() {
  return {std::make_unique<forms::ModelHand>(), [](const auto& player) { return player; }};
}

}  // namespace

std::function<Hands()> MakeHands = HandsOnModel;

std::vector<S> LinesOf(const S& script) {
  std::vector<S> lines;
  for (std::size_t from = 0; from < script.size();) {
    const std::size_t to = std::min(script.find("; ", from), script.size());
    if (to > from) lines.push_back(script.substr(from, to - from));
    from = to + 2;
  }
  return lines;
}

std::optional<S> PageLines::NextLine(const forms::ScriptState& state) {
  if (next_ == lines_.size()) return std::nullopt;
  const S& line = lines_[next_++];
  if (state.page != nullptr) {
    for (const Control* control : state.page->Controls()) {
      if (dynamic_cast<const forms::Image*>(control) != nullptr) images.insert(control->Name());
    }
  }
  return PlayOwn(line, state.page) ? "" : line;
}

bool PageLines::PlayOwn(const S& line, const forms::Form* form) {
  std::istringstream words(line);
  S verb, what, rest;
  words >> verb >> what;
  std::getline(words >> std::ws, rest);
  if (verb != "look" && verb != "clear" && verb != "force" && verb != "definition" && verb != "do")
    return false;
  if (verb == "do") {
    actions_.at(what)();
    return true;
  }
  if (form == nullptr) throw forms::ScriptError("no page is open");
  if (verb == "look" && Seen(*form, what) != rest) {
    throw forms::ScriptError("there is: " + Seen(*form, what));
  }
  if (verb == "clear") dynamic_cast<forms::EntryList&>(*form->FindControl(what)).SetListIndex(-1);
  if (verb == "force") sChartType = line.substr(verb.size() + 1);
  if (verb == "definition") definitions.push_back(oChartDoc.xml());
  return true;
}

S PagesTest::Play(const S& script, Actions actions) {
  helpTopics_.clear();
  PageLines lines(script, std::move(actions));
  Hands hands = MakeHands();
  const auto player = std::make_shared<forms::ScriptPlayer>(
      lines, [](const forms::FormState&) {}, std::move(hands.hand));
  StartSystem(std::make_shared<PagesDesktop>(player, helpTopics_), hands.viewOf(player));
  CPlotsmithController().RunPlotsmith(host_, "Test", "");
  player->PlayRest();
  definitions_ = lines.definitions;
  images_.insert(lines.images.begin(), lines.images.end());
  const auto& failure = player->Failed();
  return failure ? lines.LastLine() + " -> " + failure->sentence : "";
}

S PagesTest::Shapes(const S& sheet) {
  S text;
  const auto shapes = Book().Worksheets()->Item(sheet)->Shapes();
  for (std::int32_t i = 1; i <= shapes->Count(); ++i) {
    const auto shape = shapes->Item(i);
    text += std::to_string(shape->Type()) + " " + shape->AlternativeText() + "\n";
  }
  return text;
}

S NewChart(int type, const S& table) {
  return "page frmPSSelectTable; select grdTables " + table + "; choose optType(" + std::to_string(type) +
         "); press cmdNext; ";
}

S ModifyChart(int row) {
  return "page frmPSSelectAction; select grdCharts #" + std::to_string(row) + "; press cmdModify; ";
}

PlainBook BookOfCharts(const std::vector<PlacedChart>& charts) {
  PlainBook book;
  book.sheets.push_back(SalesSheet());
  std::vector<S> definitions;
  for (const PlacedChart& chart : charts) {
    const S id = "VEX_Chart" + std::to_string(definitions.size() + 1);
    const auto isOfSheet = [&](const PlainSheet& sheet) { return sheet.name == chart.sheet; };
    if (std::ranges::none_of(book.sheets, isOfSheet)) {
      book.sheets.push_back({chart.sheet});
      if (chart.sheet == "Hidden") book.sheets.back().state = "hidden";
      if (chart.sheet == "Very") book.sheets.back().state = "veryHidden";
    }
    auto& frames = book.Sheet(chart.sheet).frames;
    frames.push_back({id, "", 0, static_cast<int>(frames.size()) * 20});
    Definition definition{id, "column", "table-id=\"" + chart.table + "\" " + chart.attributes};
    S xml = definition.Xml();
    const S name = "Name of " + id;
    definitions.push_back(xml.replace(xml.find(name), name.size(), chart.name));
  }
  book.AddDefinitions(definitions);
  return book;
}

PlainBook BookOfColumns(const std::vector<S>& labels, const std::vector<S>& numbers) {
  PlainBook book = SalesBook({});
  auto& rows = book.Sheet("Data1").rows;
  rows = {{}, {}, {}};
  for (const S& label : labels) {
    rows[0].emplace_back(label);
    rows[1].emplace_back(S("one"));
    rows[2].emplace_back(S("two"));
  }
  for (const S& number : numbers) {
    rows[0].emplace_back(number);
    rows[1].emplace_back(1.0);
    rows[2].emplace_back(2.0);
  }
  return book;
}

PlainBook NewBubbleBook() {
  PlainBook book = BubbleBook({{"a", "x", 1, 2, 3}, {"b", "y", 4, 5, 6}}, BubbleDefinition());
  book.Sheet("VEX_ChartDefinitions").rows.resize(1);
  book.Sheet("Charts").frames.clear();
  return book;
}

PlainBook NewBucketBook() {
  PlainBook book = BucketBook(BucketDefinition());
  book.Sheet("VEX_ChartDefinitions").rows.resize(1);
  book.Sheet("Charts").frames.clear();
  PlainSheet others{"Others"};
  others.rows = {{S("Others")}, {}, {S("Theme"), S("Rank")}, {S("New"), 1234.5}, {S("old"), -2.0}};
  book.sheets.push_back(others);
  book.names.emplace_back("VEX_SB2", "Others!$A$1:$B$5");
  return book;
}

}  // namespace plotsmith::test

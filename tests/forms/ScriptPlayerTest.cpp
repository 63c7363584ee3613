#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

#include "forms/script/ScriptError.h"
#include "forms/script/ScriptLine.h"
#include "forms/script/ScriptPlayer.h"
#include "tests/support/SmallForm.h"

namespace plotsmith::forms {
namespace {

using S = std::string;
using Log = std::vector<S>;

/// Tests scripts on a small wizard. OK on the first form opens a second form, which asks a question and shows
/// a message.
class ScriptPlayerTest : public ::testing::Test {
 protected:
  /// Runs a script. Returns "", or "LINE: sentence" for the line that failed.
  S Play(const S& script) {
    log_.clear();
    shown_.clear();
    std::istringstream stream(script);
    StreamLines lines(stream);
    const auto player = std::make_shared<ScriptPlayer>(
        lines, [this](const FormState& state) { shown_.push_back(state.name + " " + state.caption); });
    ModalLoop loop(player);
    auto first = std::make_shared<test::SmallForm>(log_);
    first->OnOK = [&] {
      first->Unload();
      auto second = std::make_shared<test::SmallForm>(log_, "frmSecond");
      second->OnOK = [&, form = second.get()] {
        if (!player->Answer("Sure?\r\n\r\nOK deletes.")) return;
        form->Unload();
        player->AddMessage("One\r\nis done.");
        player->AddMessage("Two");
      };
      loop.ShowModal(second);
    };
    loop.ShowModal(first);
    player->PlayRest();
    last_ = player->LastState() ? player->LastState()->name : "none";
    const auto& failure = player->Failed();
    return failure ? std::to_string(failure->line) + ": " + failure->sentence : "";
  }

  /// Runs a line that fails on the first form. Returns the sentence.
  static S PlayLine(const S& line, const std::shared_ptr<test::SmallForm>& form) {
    std::istringstream stream(line);
    StreamLines lines(stream);
    const auto player = std::make_shared<ScriptPlayer>(lines, [](const FormState&) {});
    ModalLoop(player).ShowModal(form);
    return player->Failed().value().sentence;
  }

  Log log_, shown_;
  S last_;
};

TEST_F(ScriptPlayerTest, PlaysToTheEnd) {
  for (const S script : {
           "",
           "\n  # nothing but this\n\r\n",
           "\xEF\xBB\xBFpage frmSmall",
           "page frmSmall\nshow\nclose\npage none",
           "escape\npage none\n",
           "press cmdCancel\npage none",
           "type txtTitle a\\b\nexpect txtTitle.Text \"a\\\\b\"",
           "type txtNote \"a \\\"b\\\"\\n c\"\nexpect txtNote.Text \"a \\\"b\\\"\\n c\"",
           "focus txtNote\nenter\nexpect txtNote.Text \"\\n\"",
           "choose optType(0)\nexpect optType(0).Value yes\nexpect optType(1).Value no",
           "check chk3D\nexpect chk3D.Value 1\nuncheck chk3D\nexpect chk3D.Value 0",
           "choose cboValues Amount\nexpect cboValues.ListIndex 0\nexpect cboValues.Text Amount",
           "expect cboValues.ListIndex -1\nexpect cboValues.ListCount 3\nexpect cboValues.List "
           "Amount|Cost|Amount",
           "type cboFormat \"0 %\"\nexpect cboFormat.Text \"0 %\"\nchoose cboFormat 0.0\nexpect "
           "cboFormat.Text 0.0",
           "select lstOne West\nexpect lstOne.Text West\nselect lstOne\nexpect lstOne.Selected \"\"",
           "select lstMany #3 \"#2\"\nexpect lstMany.Selected \"#2|c\\nd\"\nexpect lstMany.SelCount 2",
           "select lstMany \"c\\nd\"\nselect lstMany \"a b\"\nexpect lstMany.Selected \"a b\"",
           "select grdRows Sales\nexpect grdRows.Selected Sales\nexpect grdRows.Rows 4",
           "select grdRows #2 #3\nexpect grdRows.Selected \"Sales|\\\"Cost\\\"\"",
           "expect chk3D.Caption 3-&D\nexpect cmdOff.Enabled no\nexpect imgBar.Visible no",
           "expect fraType.BackColor 0x8000000f\nexpect txtTitle.BackColor 0xFFFFFF\nexpect fraType.Caption "
           "Type",
           "answer ok\nenter\npage frmSecond\nenter\nexpect question \"Sure?\\n\\nOK deletes.\"\n"
           "expect message \"One\\nis done.\"\nexpect message Two\npage none",
           "press cmdOK\nanswer cancel\nanswer ok\npress cmdOK\npage frmSecond\npress cmdOK\n"
           "expect message \"One\\nis done.\"\nexpect message Two",
       }) {
    EXPECT_EQ(Play(script), "") << script;
  }
}

TEST_F(ScriptPlayerTest, ImpossibleLinesReportTheAlternatives) {
  const S controls =
      "Frame1, txtTitle, txtNote, fraType, optType(0), optType(1), optOther(0), cboValues, cboFormat, "
      "lstOne, lstMany, chk3D, grdRows, imgBar, imgPie, cmdOff, cmdCancel and cmdOK";
  const S escapes = "; it can have \\\" for a quotation mark, \\\\ for a backslash and \\n for a new line";
  const std::pair<S, S> cases[] = {
      // the line itself
      {"\n#\nclick cmdOK",
       "3: there is no verb 'click'; there are page, select, choose, check, uncheck, type, press, double, "
       "focus, enter, escape, close, answer, expect and show"},
      {"\"show\"",
       "1: there is no verb 'show'; there are page, select, choose, check, uncheck, type, press, "
       "double, focus, enter, escape, close, answer, expect and show"},
      {"type txtTitle \"a", "1: the text 'a' has no closing quotation mark"},
      {"type txtTitle \"a\\", "1: a text can't have \\" + escapes},
      {"type txtTitle \"\\é\"", "1: a text can't have \\é" + escapes},
      {"type txtTitle \"a\"b",
       "1: a blank must follow the text 'a'; a quotation mark inside of a text is written \\\""},
      {"type txtTitle 5\"",
       "1: a text with a quotation mark in it is put in double quotes, and the mark is written \\\""},
      {"show all", "1: the line should be: show"},
      {"answer yes", "1: a question can't be answered with 'yes'; there are ok and cancel"},
      // pages
      {"page frmSecond", "1: the page that is open is frmSmall"},
      {"page none", "1: the page that is open is frmSmall"},
      {"close\npage frmSmall", "2: the run is over, and no page is open"},
      {"close\nshow", "2: the run is over, and no page is open"},
      {"close\npress cmdOK", "2: the run is over, and no page is open"},
      {"close\nexpect chk3D.Value 0", "2: the run is over, and no page is open"},
      // controls
      {"press cmdNext", "1: frmSmall has no control 'cmdNext'; it has " + controls},
      {"press cmdOff", "1: cmdOff is off"},
      {"press Frame1", "1: Frame1 takes no input"},
      {"press chk3D", "1: chk3D is a CheckBox, and 'press' is for a button"},
      {"choose txtTitle", "1: txtTitle is a TextBox, and 'choose' is for a combo box or an option"},
      {"select cboValues Cost", "1: cboValues is a ComboBox, and 'select' is for a list or a grid"},
      {"type lstOne x", "1: lstOne is a ListBox, and 'type' is for a text box or a combo box"},
      {"double lstOne East", "1: lstOne is a ListBox, and 'double' is for a grid"},
      // texts, entries and rows
      {"type txtTitle 123456", "1: txtTitle takes at most 5 characters"},
      {"type txtTitle \"a\\nb\"", "1: txtTitle accepts only one line"},
      {"type cboFormat \"a\\nb\"", "1: cboFormat accepts only one line"},
      {"type cboValues Cost", "1: nothing can be typed into cboValues; 'choose' takes one of its entries"},
      {"choose cboValues", "1: which entry of cboValues? it has 'Amount', 'Cost' and 'Amount'"},
      {"choose cboValues cost", "1: cboValues has no entry 'cost'; it has 'Amount', 'Cost' and 'Amount'"},
      {"choose cboValues #4", "1: cboValues has no entry #4; it has 3 entries"},
      {"choose cboValues \"#1\"", "1: cboValues has no entry '#1'; it has 'Amount', 'Cost' and 'Amount'"},
      {"choose cboValues #3\nexpect cboValues.ListIndex 2\nexpect cboValues.ListIndex 0",
       "3: cboValues.ListIndex is '2', not '0'"},
      {"choose optType(0) Bar", "1: optType(0) is an option, which has no entries to choose from"},
      {"select lstOne #3", "1: lstOne has no entry #3; it has 2 entries"},
      {"select lstOne #0", "1: lstOne has no entry #0; it has 2 entries"},
      {"select lstOne East West", "1: only one entry of lstOne can be selected at a time"},
      {"select lstMany \"#3\"", "1: lstMany has no entry '#3'; it has 'a b', '#2' and 'c\\nd'"},
      {"double grdRows Name", "1: grdRows has no row 'Name'; it has 'Sales', 'Sales' and '\"Cost\"'"},
      {"select grdRows #4", "1: grdRows has no row #4; it has 3 rows"},
      // expectations
      {"expect chk3D.Value 1", "1: chk3D.Value is '0', not '1'"},
      {"expect chk3D.Tick 1",
       "1: chk3D has no property 'Tick'; it has Enabled, Visible, BackColor, Caption and Value"},
      {"expect chk3D 1", "1: what is expected is a message, a question or CONTROL.PROPERTY, not 'chk3D'"},
      {"expect chk4D.Value 1", "1: frmSmall has no control 'chk4D'; it has " + controls},
      {"expect chk3D.BackColor grey", "1: a colour is written as 0x8000000F, and 'grey' isn't one"},
      {"expect chk3D.BackColor 0x123456789",
       "1: a colour is written as 0x8000000F, and '0x123456789' isn't one"},
      {"expect chk3D.BackColor 0xF", "1: chk3D.BackColor is '0x8000000F', not '0xF'"},
      {"expect message Hello", "1: there was no message 'Hello'"},
      {"expect question Sure?", "1: there was no question 'Sure?'"},
      // messages and questions
      {"enter\nenter\nshow",
       "2: the question 'Sure?\\n\\nOK deletes.' has no answer; a line 'answer ok' or "
       "'answer cancel' gives it in advance"},
      {"answer ok\nenter\nenter\nexpect question Sure?",
       "4: the question is 'Sure?\\n\\nOK deletes.', not 'Sure?'"},
      {"answer ok\nenter\nenter\nexpect message Two", "4: the message is 'One\\nis done.', not 'Two'"},
      {"answer ok\nenter\nenter\npage none\nexpect message \"One\\nis done.\"\nexpect message Two",
       "4: there was a message that no line expects: 'One\\nis done.'"},
      {"answer ok\nenter\nenter\nexpect message \"One\\nis done.\"\n",
       "4: there was a message that no line expects: 'Two'"},
  };
  for (const auto& [script, outcome] : cases) EXPECT_EQ(Play(script), outcome) << script;
}

TEST_F(ScriptPlayerTest, FormsAreClosedLikeByAUser) {
  EXPECT_EQ(Play("press cmdOK\nshow"), "");
  EXPECT_EQ(last_, "frmSecond");
  EXPECT_EQ(shown_, Log{"frmSecond A small form"});
  EXPECT_EQ(log_.back(), "unload") << "the end of the script closes open forms";
  EXPECT_EQ(Play("press cmdOK\nclose"), "");
  EXPECT_EQ(last_, "none");
  EXPECT_NE(Play("press cmdOff\ncheck chk3D"), "");
  EXPECT_EQ(log_.back(), "unload") << "an impossible line also closes it";
  EXPECT_EQ(std::count(log_.begin(), log_.end(), "chk3D click"), 0) << "no further lines are played";
  EXPECT_EQ(last_, "none");
}

TEST_F(ScriptPlayerTest, AControlMayGoOffWhileTheFocusMovesToIt) {
  const auto form = std::make_shared<test::SmallForm>(log_);
  form->txtTitle.Validate = [&] { form->cmdOK.SetEnabled(false); };
  EXPECT_EQ(PlayLine("press cmdOK", form), "cmdOK is off");
}

TEST_F(ScriptPlayerTest, LongListsAreShortened) {
  const auto form = std::make_shared<test::SmallForm>(log_);
  form->cboValues.Clear();
  for (int i = 1; i <= 100; ++i) form->cboValues.AddItem(std::to_string(i));
  EXPECT_EQ(PlayLine("choose cboValues x", form),
            "cboValues has no entry 'x'; it has '1', '2', '3', '4', '5', '6', ... (100 in all)");
}

TEST(ScriptLineTest, EachVerbHasItsNumberOfWords) {
  struct {
    S usage;
    std::size_t least, most;
  } const cases[] = {
      {"page NAME", 1, 1},
      {"select CONTROL ITEM...", 1, 1000},
      {"choose CONTROL [ITEM]", 1, 2},
      {"check CONTROL", 1, 1},
      {"uncheck CONTROL", 1, 1},
      {"type CONTROL TEXT", 2, 2},
      {"press CONTROL", 1, 1},
      {"double CONTROL ITEM", 2, 2},
      {"focus CONTROL", 1, 1},
      {"enter", 0, 0},
      {"escape", 0, 0},
      {"close", 0, 0},
      {"answer ok, or answer cancel", 1, 1},
      {"expect message TEXT, expect question TEXT, or expect CONTROL.PROPERTY VALUE", 2, 2},
      {"show", 0, 0},
  };
  for (const auto& [usage, least, most] : cases) {
    S line = usage.substr(0, usage.find(' '));
    for (std::size_t words = 0; words <= 100; ++words, line += " x") {
      S sentence;
      if (words < least || words > most) sentence = "the line should be: " + usage;
      if (words > most && most > 0) sentence += " (a text with blanks is put in double quotes)";
      S thrown;
      try {
        EXPECT_EQ(ParseLine(line).size(), words + 1);
      } catch (const ScriptError& e) {
        thrown = e.what();
      }
      EXPECT_EQ(thrown, sentence) << line;
    }
  }
}

TEST(ScriptLineTest, AWordForATextIsReadAsThatText) {
  const std::pair<S, S> cases[] = {{"Amount", "Amount"},   {"a b", "\"a b\""},      {"", "\"\""},
                                   {"#3", "\"#3\""},       {"a#3", "a#3"},          {"5\"", "\"5\\\"\""},
                                   {"a\\b", "\"a\\\\b\""}, {"a\r\nb", "\"a\\nb\""}, {"\t", "\"\t\""}};
  for (const auto& [text, word] : cases) {
    EXPECT_EQ(WordFor(text), word);
    const Words words = ParseLine("type x " + word);
    ASSERT_EQ(words.size(), 3u) << word;
    EXPECT_EQ(words[2].text, WithLineEnds(text, "\n"));
  }
}

}  // namespace
}  // namespace plotsmith::forms

#include <QtGui/QClipboard>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

#include "qt/Texts.h"
#include "runtime/Strings.h"
#include "tests/qt/forms/WidgetState.h"
#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"

namespace plotsmith {
namespace {

using S = std::string;
using test::BytesOf;
using test::FrontPage;
using test::FrontWindow;
using test::kNewChart;

class RudeHandsTest : public test::ProgramTest {
 protected:
  RudeHandsTest() { AddChart(); }
  /// Runs a script on the program, which must not save anything.
  test::ProgramResult RunUnsaved(const S& script, test::Actions actions) {
    SCOPED_TRACE(script);
    const auto run = Run(script, std::move(actions));
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(BytesOf(book_) == fresh_);
    return run;
  }
};

QPushButton* ButtonOf(const QWidget& page, const S& name) {
  return page.findChild<QPushButton*>(qt::TextOf(name));
}

void SendMouse(QWidget& widget, QEvent::Type type, QPointF onScreen, quint64 time) {
  const QPointF place = widget.rect().center();
  const bool isDown = type != QEvent::MouseButtonRelease;
  QMouseEvent event(type, place, place, onScreen, Qt::LeftButton, isDown ? Qt::LeftButton : Qt::NoButton,
                    Qt::NoModifier);
  event.setTimestamp(time);
  QApplication::sendEvent(&widget, &event);
}

void SendKey(Qt::Key key, bool isRepeated) {
  QWidget* const front = FrontWindow();
  if (front == nullptr) return;  // Between two windows no window gets the key.
  QWidget* const target = front->focusWidget() == nullptr ? front : front->focusWidget();
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Return ? "\r" : "", isRepeated);
  QApplication::sendEvent(target, &event);
}

void Repeat(Qt::Key key) {
  for (int i = 0; i < 20; ++i) SendKey(key, true);
}

TEST_F(RudeHandsTest, ADoublePressIsOnePress) {
  for (const test::Way& way : test::kWays) {
    std::vector<S> buttons;
    RunUnsaved(way.lines + "do list",
               {{"list", [&] {
                   for (const auto* button : FrontPage()->findChildren<QPushButton*>()) {
                     if (button->isEnabled() && button->objectName() != "cmdHelp")
                       buttons.push_back(qt::TextOf(button->objectName()));
                   }
                 }}});
    ASSERT_GE(buttons.size(), 3u) << way.page;
    for (const S& button : buttons) {
      const auto press = [&] { QTest::mouseClick(ButtonOf(*FrontPage(), button), Qt::LeftButton); };
      const auto twice = [&] {
        QPushButton& target = *ButtonOf(*FrontPage(), button);
        const QPointF place = target.mapToGlobal(target.rect().center());
        static quint64 time = 1;
        time += 10000;
        for (const quint64 later : {0, 100}) {
          SendMouse(target, QEvent::MouseButtonPress, place, time + later);
          if (later > 0) SendMouse(target, QEvent::MouseButtonDblClick, place, time + later);
          SendMouse(target, QEvent::MouseButtonRelease, place, time + later + 20);
        }
      };
      const auto once = RunUnsaved(way.lines + "do press", {{"press", press}});
      const auto rude = RunUnsaved(way.lines + "do press", {{"press", twice}});
      EXPECT_EQ(rude.seen, once.seen) << button;
      EXPECT_EQ(rude.told, once.told) << button;
    }
  }
}

TEST_F(RudeHandsTest, TheSecondPressDoesNotGoThroughTheNextPage) {
  QPointF place;
  quint64 time = 1000000;
  const auto press = [&] {
    QPushButton& button = *ButtonOf(*FrontPage(), "cmdNext");
    if (place.isNull()) place = button.mapToGlobal(button.rect().center());
    SendMouse(button, QEvent::MouseButtonPress, place, time);
    SendMouse(button, QEvent::MouseButtonRelease, place, time + 20);
  };
  const auto run = RunUnsaved(
      test::kWays[1].lines +
          "do press; page frmPSLayoutABC; type txtTitle A; do soon; do wait; page frmPSLayoutABC; do later; "
          "page frmPSChartLocation",
      {{"press", press}, {"soon", [&] { time += 100, press(); }}, {"later", [&] { time += 1000, press(); }}});
  EXPECT_EQ(run.seen, "frmPSSelectAction frmPSSelectTable frmPSLayoutABC frmPSChartLocation");
}

TEST_F(RudeHandsTest, AKeyThatIsHeldDownCountsOnce) {
  const auto enter = [] { SendKey(Qt::Key_Return, false), Repeat(Qt::Key_Return); };
  const auto repeat = [] { Repeat(Qt::Key_Return); };
  const auto escape = [] { Repeat(Qt::Key_Escape); };
  const struct {
    S script, seen;
  } cases[] = {
      {test::kToTable +
           "choose optType(1); do enter; do repeat; page frmPSLayoutABC; do repeat; page frmPSLayoutABC",
       "frmPSSelectAction frmPSSelectTable frmPSLayoutABC"},
      {"page frmPSSelectAction; press cmdNew; page frmPSSelectTable; do enter; do repeat; do repeat; box OK",
       "frmPSSelectAction frmPSSelectTable box frmPSSelectTable"},
      {test::kWays[0].lines + "press cmdDelete; do repeat; do escape; do repeat; box Cancel",
       "frmPSSelectAction box frmPSSelectAction"},
      {test::kWays[6].lines + "press cmdFinish; button Discard; do repeat; do repeat; bar Discard",
       "frmPSSelectAction frmPSSelectTable frmPSLayoutABC frmPSChartLocation bar"},
      {test::kWays[1].lines + "do escape; page frmPSSelectTable", "frmPSSelectAction frmPSSelectTable"},
  };
  for (const auto& [script, seen] : cases) {
    const auto run = RunUnsaved(script, {{"enter", enter}, {"repeat", repeat}, {"escape", escape}});
    EXPECT_EQ(run.seen, seen) << script;
  }
}

TEST_F(RudeHandsTest, EachPageIsClosedOnce) {
  for (const test::Way& way : test::kWays) {
    const auto close = [] {
      for (int i = 0; i < 3; ++i) FrontPage()->close();
      ButtonOf(*FrontPage(), "cmdCancel")->click();
    };
    const auto run = RunUnsaved(way.lines + "do close", {{"close", close}});
    EXPECT_TRUE(run.seen.ends_with(way.page)) << run.seen;
  }
}

TEST_F(RudeHandsTest, APageBehindAMessageTakesNoInput) {
  const auto poke = [] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* page = dynamic_cast<qt::FormWindow*>(window);
      if (page == nullptr || !page->isVisible()) continue;
      for (const QPushButton* button : page->findChildren<QPushButton*>()) {
        QTest::mouseClick(page->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->mapTo(page, button->rect().center()));
      }
    }
  };
  const auto run = RunUnsaved(
      "page frmPSSelectAction; press cmdNew; page frmPSSelectTable; press cmdNext; button OK; "
      "do poke; box OK; page frmPSSelectTable",
      {{"poke", poke}});
  EXPECT_EQ(run.seen, "frmPSSelectAction frmPSSelectTable box frmPSSelectTable");
}

/// An input for a box, and the text that the box accepts if there is enough space.
struct Input {
  S typed, oneLine, lines;
  bool byInputMethod = false;
};

S Times(int count, const S& text) {
  S result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

void Feed(QWidget& widget, const Input& input) {
  widget.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  if (input.byInputMethod) {
    QInputMethodEvent event("preedit", {});
    QApplication::sendEvent(&widget, &event);
    event.setCommitString(qt::TextOf(input.typed));
    QApplication::sendEvent(&widget, &event);
    return;
  }
  QApplication::clipboard()->setText(qt::TextOf(input.typed));
  QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

/// Returns the boxes of a page into which the user can type.
std::vector<forms::Control*> BoxesOf(const qt::FormWindow& page) {
  std::vector<forms::Control*> boxes;
  for (forms::Control* control : page.Model().Controls()) {
    const auto* combo = dynamic_cast<forms::ComboBox*>(control);
    const bool canBeTyped = combo != nullptr && combo->Style() == forms::ComboStyle::kDropDownCombo;
    const bool isText = dynamic_cast<forms::TextBox*>(control) != nullptr;
    if ((isText || canBeTyped) && control->Obstacle().empty()) boxes.push_back(control);
  }
  return boxes;
}

/// Returns the expected text of a box: as much of the input as fits.
S Expected(const forms::Control& control, const Input& input) {
  const auto* box = dynamic_cast<const forms::TextBox*>(&control);
  const bool hasLines = box != nullptr && box->MultiLine();
  const std::size_t most = box == nullptr ? 0 : box->MaxLength();
  const QString whole = qt::TextOf(hasLines ? input.lines : input.oneLine);
  if (most == 0 || whole.size() <= static_cast<qsizetype>(most)) return qt::TextOf(whole);
  QString part = whole.left(static_cast<qsizetype>(most));
  // A character that doesn't fit completely is left out of a multi-line text; a single-line text has a blank
  // instead.
  if (hasLines && (part.back().isHighSurrogate() || part.back() == '\r')) part.chop(1);
  if (part.back().isHighSurrogate()) part.back() = ' ';
  return qt::TextOf(part);
}

S TextOf(const forms::Control& control) { return *forms::StateOf(control).text; }

TEST_F(RudeHandsTest, BoxesAcceptAndShowTheInputThatFits) {
  const S longText = Times(10000, "x"), manyLines = Times(10000, "a\n");
  const Input inputs[] = {
      {longText, longText, longText},
      {manyLines, Times(10000, "a "), Times(10000, "a\r\n")},
      {"a\r\nb\nc\td\x01"
       "e\x7F",
       "a b c d e\x7F", "a\r\nb\r\nc\td e\x7F"},
      {"a\xC2\xA0z", "a\xC2\xA0z", "a\xC2\xA0z"},
      {"\xE6\x97\xA5\xE6\x9C\xAC", "\xE6\x97\xA5\xE6\x9C\xAC", "\xE6\x97\xA5\xE6\x9C\xAC", true},
      {S("x") + Times(8000, "\xF0\x9F\x98\x80"), S("x") + Times(8000, "\xF0\x9F\x98\x80"),
       S("x") + Times(8000, "\xF0\x9F\x98\x80")},
  };
  for (const test::Way& way : test::kWays) {
    test::Actions actions;
    S script = way.lines;
    int checked = 0;
    for (const Input& input : inputs) {
      const S number = std::to_string(&input - inputs);
      script += "do feed" + number + "; do look" + number + "; ";
      actions["feed" + number] = [&] {
        for (const forms::Control* box : BoxesOf(*FrontPage())) Feed(*FrontPage()->WidgetOf(*box), input);
      };
      actions["look" + number] = [&] {
        for (const forms::Control* box : BoxesOf(*FrontPage())) {
          const S expected = Expected(*box, input), text = TextOf(*box);
          EXPECT_TRUE(text == runtime::Replace(expected, "\r\n", "\n"))
              << box->Name() << " has " << text.size() << " bytes, not " << expected.size() << ": "
              << text.substr(0, 20) << " ... "
              << text.substr(text.size() - std::min<std::size_t>(text.size(), 12));
          ++checked;
        }
        EXPECT_EQ(test::DifferencesFromModel(*FrontPage()), "");
      };
    }
    RunUnsaved(script, actions);
    EXPECT_EQ(checked > 0, way.page.find("Select") == S::npos) << way.page;
  }
}

TEST_F(RudeHandsTest, ATextLongerThanItsBoxAllowsIsShownAndCanBeEdited) {
  const auto textBoxes = [] {
    std::vector<forms::TextBox*> boxes;
    for (forms::Control* const control : BoxesOf(*FrontPage())) {
      if (auto* box = dynamic_cast<forms::TextBox*>(control)) boxes.push_back(box);
    }
    return boxes;
  };
  const auto textOf = [](const forms::TextBox& box) {
    return Times(static_cast<int>(box.MaxLength()) / 4 + 9, box.MultiLine() ? "ab\r\n" : "abcd") + "z";
  };
  const test::Actions actions = {
      {"set",
       [&] {
         for (forms::TextBox* const box : textBoxes()) box->SetText(textOf(*box));
         FrontPage()->Update();
       }},
      {"shorten",
       [&] {
         EXPECT_EQ(test::DifferencesFromModel(*FrontPage()), "");
         for (const forms::TextBox* const box : textBoxes()) {
           QWidget& widget = *FrontPage()->WidgetOf(*box);
           widget.setFocus(Qt::TabFocusReason);
           QTest::keyClick(&widget, Qt::Key_End, box->MultiLine() ? Qt::ControlModifier : Qt::NoModifier);
           QTest::keyClick(&widget, Qt::Key_Backspace);
         }
       }},
      {"look", [&] {
         for (const forms::TextBox* const box : textBoxes()) {
           EXPECT_EQ(box->Text() + "z", textOf(*box)) << box->Name();
         }
         EXPECT_EQ(test::DifferencesFromModel(*FrontPage()), "");
       }}};
  for (const test::Way& way : test::kWays) RunUnsaved(way.lines + "do set; do shorten; do look; ", actions);
}

}  // namespace
}  // namespace plotsmith

#include <QtGui/QClipboard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <random>

#include "qt/Texts.h"
#include "qt/help/HelpWindow.h"
#include "tests/qt/forms/WidgetState.h"
#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"

namespace plotsmith {
namespace {

using S = std::string;

constexpr int kEvents = 120;  ///< The number of events of a run, unless it ends early.
constexpr int kEventsBetweenLooks = 10;
constexpr unsigned kSeeds = 8;

/// Sends random events to random widgets of the front window. The same seed gives the same events.
class Monkey {
 public:
  explicit Monkey(unsigned seed) : random_(seed) {}

  void MakeEvent() {
    CloseHelp();
    QWidget* front = QApplication::activePopupWidget();
    if (front == nullptr) front = test::FrontWindow();
    if (front == nullptr) front = test::BookWindow();
    if (front == nullptr) return;
    // Without a window manager, a window doesn't become active again when a popup or the help closes.
    if (QApplication::activePopupWidget() == nullptr) front->activateWindow();
    if (test::NameOf(front) == "file") {  // The monkey must not write to files.
      front->close();
      return;
    }
    const std::pair<int, void (Monkey::*)(QWidget&)> actions[] = {
        {30, &Monkey::Click}, {10, &Monkey::DoubleClick}, {8, &Monkey::Drag},   {30, &Monkey::Press},
        {8, &Monkey::Wheel},  {6, &Monkey::Paste},        {2, &Monkey::Commit}, {3, &Monkey::Resize},
        {2, &Monkey::Theme},  {1, &Monkey::Close}};
    int all = 0;
    for (const auto& [weight, action] : actions) all += weight;
    int place = Below(all);
    for (const auto& [weight, action] : actions) {
      if ((place -= weight) >= 0) continue;
      (this->*action)(*front);
      break;
    }
  }

 private:
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  template <class Items>
  const auto& OneOf(const Items& items) {
    return items[static_cast<std::size_t>(Below(static_cast<int>(std::size(items))))];
  }
  QWidget& AnyWidget(QWidget& front) {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : front.findChildren<QWidget*>()) {
      if (widget->isVisible() && widget->isEnabled() && widget->window() == &front) widgets.push_back(widget);
    }
    return widgets.empty() ? front : *OneOf(widgets);
  }
  QPoint AnyPlace(const QWidget& widget) {
    return {Below(std::max(widget.width(), 1)), Below(std::max(widget.height(), 1))};
  }
  Qt::KeyboardModifiers AnyModifiers() {
    const Qt::KeyboardModifiers all[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                         Qt::ControlModifier};
    return OneOf(all);
  }

  void CloseHelp() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (dynamic_cast<qt::HelpWindow*>(window) != nullptr && window->isVisible()) window->close();
    }
  }
  void Click(QWidget& front) {
    QWidget& widget = AnyWidget(front);
    const Qt::MouseButton button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    QTest::mouseClick(&widget, button, AnyModifiers(), AnyPlace(widget));
  }
  void DoubleClick(QWidget& front) {
    QWidget& widget = AnyWidget(front);
    const QPoint place = AnyPlace(widget);
    const QPointer<QWidget> still = &widget;
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
    if (still) QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
  }
  void Drag(QWidget& front) {
    QWidget& widget = AnyWidget(front);
    const QPointer<QWidget> still = &widget;
    QTest::mousePress(&widget, Qt::LeftButton, AnyModifiers(), AnyPlace(widget));
    if (still) QTest::mouseMove(&widget, AnyPlace(widget));
    if (still) QTest::mouseRelease(&widget, Qt::LeftButton, {}, AnyPlace(widget));
  }
  void Press(QWidget& front) {
    static constexpr Qt::Key kKeys[] = {
        Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space,     Qt::Key_Space,
        Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,
        Qt::Key_End,    Qt::Key_PageUp, Qt::Key_F1,      Qt::Key_F4,     Qt::Key_Backspace, Qt::Key_Delete,
        Qt::Key_Escape, Qt::Key_A,      Qt::Key_R,       Qt::Key_5,      Qt::Key_Enter,     Qt::Key_F10};
    QWidget* const focus = front.focusWidget();
    Qt::KeyboardModifiers modifiers = AnyModifiers();
    if (Below(10) == 0) modifiers = Qt::AltModifier;
    Qt::Key key = OneOf(kKeys);
    if (modifiers == Qt::AltModifier) key = static_cast<Qt::Key>(Qt::Key_A + Below(26));
    if (modifiers == Qt::ControlModifier && Below(2) == 0) {
      static constexpr Qt::Key kEdits[] = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y};
      key = OneOf(kEdits);
    }
    QTest::keyClick(focus == nullptr ? &front : focus, key, modifiers);
  }
  void Wheel(QWidget& front) {
    QWidget& widget = AnyWidget(front);
    const QPointF place = AnyPlace(widget);
    QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, Below(2) == 0 ? 120 : -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }
  QString AnyText() {
    static const S kTexts[] = {"",
                               "x",
                               "a\r\nb\nc",
                               "\x01\t\x7F",
                               "=1+1",
                               "&&File",
                               "\xF0\x9F\x98\x80\xC2\xA0",
                               "0.00;[Red](0)",
                               "Sheet'1",
                               S(400, 'w'),
                               "]]><&\"'"};
    return qt::TextOf(OneOf(kTexts));
  }
  void Paste(QWidget& front) {
    QWidget* const focus = front.focusWidget();
    if (focus == nullptr) return;
    QApplication::clipboard()->setText(AnyText());
    QTest::keyClick(focus, Qt::Key_V, Qt::ControlModifier);
  }
  void Commit(QWidget& front) {
    QWidget* const focus = front.focusWidget();
    if (focus == nullptr) return;
    QInputMethodEvent event(Below(2) == 0 ? AnyText() : QString(), {});
    if (Below(2) == 0) event.setCommitString(AnyText());
    QApplication::sendEvent(focus, &event);
  }
  void Resize(QWidget& front) { front.resize(Below(1600), Below(1000)); }
  void Theme(QWidget&) {
    QApplication::setPalette(Below(2) == 0 ? QPalette(QColor(50, 50, 50), QColor(30, 30, 30)) : QPalette());
    QApplication::setLayoutDirection(Below(2) == 0 ? Qt::RightToLeft : Qt::LeftToRight);
  }
  void Close(QWidget& front) { front.close(); }

  std::mt19937 random_;
};

class MonkeyTest : public test::ProgramTest, public testing::WithParamInterface<std::size_t> {
 protected:
  MonkeyTest() { AddChart(); }
  ~MonkeyTest() override {
    QApplication::setPalette(QPalette());
    QApplication::setLayoutDirection(Qt::LeftToRight);
  }
  /// Checks that a page shows the state of its form after all events were processed.
  static void LookAtPage() {
    const auto* const page = test::FrontPage();
    if (page == nullptr || QApplication::activePopupWidget() != nullptr) return;
    EXPECT_EQ(test::DifferencesFromModel(*page), "") << page->Model().Name();
  }
  /// Runs the monkey on a page. The run may end early if it closes the program.
  void Play(const test::Way& way, unsigned seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::ofstream(book_, std::ios::binary) << fresh_;  // An earlier run may have saved the workbook.
    Monkey monkey(seed);
    S script = way.lines;
    for (int i = 1; i <= kEvents; ++i) {
      script += "do monkey; ";
      if (i % kEventsBetweenLooks == 0) script += "do wait; do look; ";
    }
    const auto run = RunFreely(script, {{"monkey", [&] { monkey.MakeEvent(); }}, {"look", LookAtPage}});
    EXPECT_TRUE(run.failure.empty() || run.failure.starts_with("the program ended before: do "))
        << run.failure;
    EXPECT_EQ(run.code, 0) << run.err;
  }
};

std::chrono::seconds TimePerPage() {
  const char* const seconds = std::getenv("MONKEY_SECONDS");
  return std::chrono::seconds(seconds == nullptr ? 0 : std::atoi(seconds));
}

TEST_P(MonkeyTest, APageSurvivesRandomInput) {
  const auto end = std::chrono::steady_clock::now() + TimePerPage();
  unsigned seed = 0;
  do {
    Play(test::kWays[GetParam()], ++seed);
  } while (seed < kSeeds || std::chrono::steady_clock::now() < end);
  if (seed > kSeeds) std::cout << seed << " runs\n";
}

INSTANTIATE_TEST_SUITE_P(Pages, MonkeyTest, testing::Range(std::size_t{0}, test::kWays.size()),
                         [](const auto& page) { return test::kWays[page.param].page; });

}  // namespace
}  // namespace plotsmith

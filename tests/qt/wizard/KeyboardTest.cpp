#include <QtCore/QMetaEnum>
#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "forms/script/FormState.h"
#include "qt/Texts.h"
#include "tests/qt/support/Windows.h"
#include "tests/qt/wizard/ProgramTest.h"
#include "tests/support/Files.h"
#include "tests/support/Paths.h"

namespace plotsmith {
namespace {

using S = std::string;

class KeyboardTest : public test::ProgramTest {
 protected:
  KeyboardTest() { AddChart(); }
  /// Calls a function on each page.
  void OnEachPage(const std::function<void(qt::FormWindow& page)>& look) {
    for (const test::Way& way : test::kWays) {
      SCOPED_TRACE(way.page);
      Run(way.lines + "do wait; do look", {{"look", [&] {
                                              test::FrontPage()->activateWindow();
                                              look(*test::FrontPage());
                                            }}});
    }
  }
};

bool IsChosenOrNoneIs(const forms::OptionButton& option) {
  for (const forms::Control* control : option.Parent().Controls()) {
    const auto* other = dynamic_cast<const forms::OptionButton*>(control);
    if (other != nullptr && other->Container() == option.Container() && other->Value())
      return other == &option;
  }
  return true;
}

/// Returns the controls that Tab reaches, in order.
std::vector<S> TabStops(const forms::Form& form) {
  std::vector<S> names;
  for (const forms::Control* control : form.Controls()) {
    const auto* option = dynamic_cast<const forms::OptionButton*>(control);
    if (control->Obstacle().empty() && (option == nullptr || IsChosenOrNoneIs(*option))) {
      names.push_back(control->FullName());
    }
  }
  return names;
}

/// Returns the widgets that get the focus one after the other, from `first` until it returns there.
std::vector<S> Walk(qt::FormWindow& page, const S& first, Qt::Key key) {
  page.findChild<QWidget*>(qt::TextOf(first))->setFocus(Qt::TabFocusReason);
  std::vector<S> names;
  for (std::size_t i = 0; i < page.Model().Controls().size(); ++i) {
    names.push_back(qt::TextOf(page.focusWidget()->objectName()));
    QTest::keyClick(page.focusWidget(), key);
    if (page.focusWidget()->objectName() == qt::TextOf(first)) break;
  }
  return names;
}

TEST_F(KeyboardTest, TabMovesInTheOrderOfTheForm) {
  OnEachPage([](qt::FormWindow& page) {
    std::vector<S> stops = TabStops(page.Model());
    ASSERT_GT(stops.size(), 3u);
    EXPECT_EQ(Walk(page, stops.front(), Qt::Key_Tab), stops);
    std::reverse(stops.begin() + 1, stops.end());
    EXPECT_EQ(Walk(page, stops.front(), Qt::Key_Backtab), stops);
  });
}

TEST_F(KeyboardTest, NoTwoCaptionsHaveTheSameLetter) {
  OnEachPage([](qt::FormWindow& page) {
    std::set<char> letters;
    for (const forms::ControlState& control : forms::StateOf(page.Model()).controls) {
      const auto mark = control.caption ? control.caption->find('&') : S::npos;
      if (mark == S::npos || !control.visible) continue;
      const auto letter = static_cast<char>(std::tolower((*control.caption)[mark + 1]));
      EXPECT_TRUE(letters.insert(letter).second) << control.name;
    }
    EXPECT_GE(letters.size(), 4u);
  });
}

TEST_F(KeyboardTest, EachKindOfControlReactsToKeys) {
  OnEachPage([](qt::FormWindow& page) {
    for (forms::Control* control : page.Model().Controls()) {
      if (!control->Obstacle().empty()) continue;
      QWidget& widget = *page.WidgetOf(*control);
      widget.setFocus(Qt::TabFocusReason);
      if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        for (const Qt::KeyboardModifiers modifiers :
             {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::AltModifier)}) {
          QTest::keyClick(&widget, modifiers ? Qt::Key_Down : Qt::Key_F4, modifiers);
          EXPECT_TRUE(combo->view()->isVisible()) << control->Name();
          combo->hidePopup();
        }
      } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget);
                 view != nullptr && view->model()->rowCount() > 0) {
        QTest::keyClick(&widget, Qt::Key_Home);
        QTest::keyClick(&widget, Qt::Key_Space);
        EXPECT_FALSE(view->selectionModel()->selectedRows().isEmpty()) << control->Name();
      } else if (auto* button = qobject_cast<QAbstractButton*>(&widget);
                 button != nullptr && button->isCheckable()) {
        const bool before = button->isChecked();
        QTest::keyClick(&widget, Qt::Key_Space);
        const bool isOption = dynamic_cast<forms::OptionButton*>(control) != nullptr;
        EXPECT_EQ(button->isChecked(), isOption || !before) << control->Name();
      }
    }
  });
}

/// Returns the texts for screen readers of a widget and its descendants.
S Spoken(QAccessibleInterface& item, int depth) {
  const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(item.role());
  const QAccessible::State state = item.state();
  const auto text = [&](QAccessible::Text kind) { return qt::TextOf(item.text(kind)); };
  S line = S(static_cast<std::size_t>(depth) * 2, ' ') + (role == nullptr ? "?" : role) + " \"" +
           text(QAccessible::Name) + "\"";
  if (!text(QAccessible::Description).empty()) line += " (" + text(QAccessible::Description) + ")";
  const std::pair<const char*, bool> marks[] = {
      {"off", state.disabled},      {"hidden", state.invisible},        {"focusable", state.focusable},
      {"checked", state.checked},   {"default", state.defaultButton},   {"read only", state.readOnly},
      {"editable", state.editable}, {"several lines", state.multiLine}, {"several", state.extSelectable}};
  for (const auto& [name, holds] : marks) line += holds ? S(", ") + name : "";
  line += "\n";
  const bool hasItems = item.role() == QAccessible::Table || item.role() == QAccessible::List ||
                        item.role() == QAccessible::ComboBox;
  for (int i = 0; i < item.childCount() && !hasItems; ++i) line += Spoken(*item.child(i), depth + 1);
  return line;
}

TEST_F(KeyboardTest, ScreenReadersGetTheTexts) {
  const S folder = S(test::kSourceFolder) + "/tests/qt/wizard/golden/";
  OnEachPage([&](qt::FormWindow& page) {
    for (const forms::Control* control : page.Model().Controls()) {
      EXPECT_NE(control->AccessibleName(), "");
      EXPECT_NE(control->AccessibleName(), control->Name()) << "names from the code mean nothing to users";
    }
    const S spoken = Spoken(*QAccessible::queryAccessibleInterface(&page), 0);
    const S file = folder + page.Model().Name() + ".txt";
    if (std::getenv("UPDATE_GOLDEN") != nullptr) {
      std::filesystem::create_directories(folder);
      std::ofstream(file) << spoken;
    }
    EXPECT_EQ(spoken, test::BytesOf(file)) << "UPDATE_GOLDEN=1 writes " << file << " anew";
  });
}

}  // namespace
}  // namespace plotsmith

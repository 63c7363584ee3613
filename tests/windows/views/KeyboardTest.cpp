#include <algorithm>
#include <gtest/gtest.h>

#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/VSFlexGrid.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"
#include "windows/views/ControlNames.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Returns the controls that Tab reaches, in order.
std::vector<S> TabStops(const forms::Form& form) {
  std::vector<S> names;
  for (const forms::Control* control : form.Controls()) {
    const auto* option = dynamic_cast<const forms::OptionButton*>(control);
    if (control->Obstacle().empty() && (option == nullptr || option->IsTabStop()))
      names.push_back(control->FullName());
  }
  return names;
}

/// Returns the name of the control with the focus.
S Focus() {
  const HWND focus = GetFocus();
  const S name = windows::WindowName(focus);
  return name.empty() ? windows::WindowName(GetParent(focus)) : name;
}

/// Presses a key with Shift, as the thread sees it.
void PressWithShift(WPARAM key, bool isWithShift) {
  BYTE keys[256] = {};
  keys[VK_SHIFT] = isWithShift ? 0x80 : 0;
  SetKeyboardState(keys);
  PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
  test::HandleMessages();
  keys[VK_SHIFT] = 0;
  SetKeyboardState(keys);
}

/// Returns the controls that get the focus one after the other, from the first one until it returns there.
std::vector<S> Walk(const S& first, bool isBack) {
  SetFocus(test::ControlWindow(test::FrontWindow(), first));
  std::vector<S> names;
  do {
    names.push_back(Focus());
    PressWithShift(VK_TAB, isBack);
  } while (Focus() != first && names.size() < test::FrontForm().Controls().size());
  return names;
}

class KeysTest : public test::DialogTest {
 protected:
  /// Calls a function on each page.
  void OnEachPage(const std::function<void()>& look) {
    for (const test::Way& way : test::kWays) {
      SCOPED_TRACE(way.page);
      const auto action = [&] { look(), test::EndAction(); };
      EXPECT_EQ(PlayOnOrders(way.lines + "do look; press cmdCancel; page none", {{"look", action}}), "");
    }
  }
};

TEST_F(KeysTest, TabMovesInTheOrderOfTheForm) {
  OnEachPage([] {
    std::vector<S> stops = TabStops(test::FrontForm());
    ASSERT_GT(stops.size(), 3u);
    EXPECT_EQ(Walk(stops.front(), false), stops);
    std::reverse(stops.begin() + 1, stops.end());
    EXPECT_EQ(Walk(stops.front(), true), stops);
  });
}

TEST_F(KeysTest, ArrowKeysStayInTheirGroup) {
  OnEachPage([] {
    for (const forms::Control* control : test::FrontForm().Controls()) {
      const bool isButton = dynamic_cast<const forms::CommandButton*>(control) != nullptr;
      const bool isBox = dynamic_cast<const forms::CheckBox*>(control) != nullptr;
      if (!control->Obstacle().empty() || (!isButton && !isBox)) continue;
      for (const WPARAM key : {VK_DOWN, VK_RIGHT, VK_UP, VK_LEFT}) {
        SetFocus(test::ControlWindow(test::FrontWindow(), control->FullName()));
        PressWithShift(key, false);
        const forms::Control& focus = *test::FrontForm().FindControl(Focus());
        const bool isThere = isBox ? &focus == control : S(focus.TypeName()) == "CommandButton";
        EXPECT_TRUE(isThere) << "from " << control->FullName() << " to " << focus.FullName();
      }
    }
  });
}

TEST_F(KeysTest, LettersEnterEscapeAndHelpPressButtons) {
  const auto key = [](WPARAM virtualKey) {
    return [virtualKey] { test::PostKey(GetFocus(), virtualKey), test::EndAction(); };
  };
  const auto letter = [](wchar_t unit) {
    return [unit] { PostMessageW(GetFocus(), WM_SYSCHAR, unit, 0x20000001), test::EndAction(); };
  };
  const struct {
    S script;
    std::vector<std::int32_t> topics;
  } cases[] = {
      {test::kWays[1].lines + "do n; page frmPSLayoutABC; do b; page frmPSSelectTable; do escape; page none",
       {}},
      {test::kWays[1].lines +
           "do enter; page frmPSLayoutABC; focus txtComment; do enter; page frmPSLayoutABC; expect "
           "txtComment.Text \"\\n\"",
       {}},
      {test::kWays[2].lines + "do help; do h; page frmPSLayoutABC", {3 + 1, 3 + 1}},
      {test::kWays[1].lines + "focus optType(1); do down; expect optType(2).Value yes; do up; do up; expect "
                              "optType(0).Value yes; look focus optType(0)",
       {}},
      {test::kWays[2].lines +
           "focus cboCategories; do open; do down; do enter; expect cboCategories.Text Product; page "
           "frmPSLayoutABC; do open; do down; do escape; expect cboCategories.Text Product; page "
           "frmPSLayoutABC; do down; expect cboCategories.Text Quarter",
       {}},
      {test::kWays[2].lines + "focus chk3D; do space; expect chk3D.Value 1; do space; expect chk3D.Value 0",
       {}},
      {test::kWays[2].lines +
           "choose optCategories(2); focus lstCategories; do down; expect lstCategories.Selected "
           "Amount; do down; expect lstCategories.Selected Cost",
       {}},
  };
  for (const auto& [script, topics] : cases) {
    EXPECT_EQ(PlayOnOrders(script, {{"n", letter(L'n')},
                                    {"b", letter(L'b')},
                                    {"h", letter(L'h')},
                                    {"enter", key(VK_RETURN)},
                                    {"escape", key(VK_ESCAPE)},
                                    {"help", key(VK_F1)},
                                    {"open", key(VK_F4)},
                                    {"down", key(VK_DOWN)},
                                    {"up", key(VK_UP)},
                                    {"space", key(VK_SPACE)}}),
              "");
    EXPECT_EQ(helpTopics_, topics) << script;
  }
}

}  // namespace
}  // namespace plotsmith

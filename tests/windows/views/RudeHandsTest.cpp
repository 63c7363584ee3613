#include <gtest/gtest.h>

#include "forms/Lists.h"
#include "forms/TextBox.h"
#include "tests/windows/views/Clipboard.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"
#include "windows/com/Texts.h"

// This header must follow the types of Windows that it uses.
#include <commctrl.h>

namespace plotsmith {
namespace {

using S = std::string;

HWND ButtonOf(const S& name) { return test::ControlWindow(test::FrontWindow(), name); }

/// Sets the longest double-click time that Windows allows while it exists.
struct SlowDoubleClicks {
  SlowDoubleClicks() { SetDoubleClickTime(5000); }
  ~SlowDoubleClicks() { SetDoubleClickTime(1); }
};

class RudeHandsTest : public test::DialogTest {};

TEST_F(RudeHandsTest, TheSecondPressDoesNotGoThroughTheNextPage) {
  const SlowDoubleClicks slow;
  POINT place = {};
  // Press the button at the position of the first one, on the current window.
  const auto press = [&] {
    const HWND button = ButtonOf("cmdNext");
    if (place.x == 0) {
      place = {20, 10};
      ClientToScreen(button, &place);
    }
    POINT onButton = place;
    ScreenToClient(button, &onButton);
    PostMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(onButton.x, onButton.y));
    PostMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
    test::EndAction();
  };
  const auto wait = [] { SetDoubleClickTime(1); };
  const S script = test::kWays[1].lines + "do press; page frmPSLayoutABC; do press; page frmPSLayoutABC; ";
  EXPECT_EQ(
      PlayOnOrders(script + "type txtTitle A; do wait; do press; page frmPSChartLocation; press cmdCancel",
                   {{"press", press}, {"wait", wait}}),
      "");
}

TEST_F(RudeHandsTest, ADoubleClickOnAButtonIsOnePress) {
  const auto twice = [] {
    const HWND button = ButtonOf("cmdNext");
    test::PostClick(button);
    PostMessageW(button, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    PostMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    test::EndAction();
  };
  EXPECT_EQ(PlayOnOrders(test::kWays[2].lines + "do twice; page frmPSChartLocation", {{"twice", twice}}), "");
}

// A screen reader presses a button with a message that Windows would convert to a mouse click in the corner.
TEST_F(RudeHandsTest, EachPressWithoutAMouseCounts) {
  const SlowDoubleClicks slow;
  const auto press = [] { SendMessageW(ButtonOf("cmdHelp"), BM_CLICK, 0, 0), test::EndAction(); };
  EXPECT_EQ(
      PlayOnOrders(test::kWays[2].lines + "do press; do press; page frmPSLayoutABC", {{"press", press}}), "");
  EXPECT_EQ(helpTopics_, (std::vector<std::int32_t>{4, 4}));
}

TEST_F(RudeHandsTest, ColumnsKeepTheWidthThatTheUserSets) {
  const auto width = [] { return ListView_GetColumnWidth(ButtonOf("grdCharts"), 0); };
  int wanted = 0;
  const auto widen = [&] {
    const HWND head = ListView_GetHeader(ButtonOf("grdCharts"));
    wanted = width() + 30;
    PostMessageW(head, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(wanted - 31, 5));
    PostMessageW(head, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(wanted - 1, 5));
    PostMessageW(head, WM_LBUTTONUP, 0, MAKELPARAM(wanted - 1, 5));
    test::EndAction();
  };
  const auto look = [&] {
    EXPECT_EQ(width(), wanted);
    const HWND form = test::FrontWindow();
    SetWindowPos(form, nullptr, 0, 0, 900, 700, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(width(), wanted);
    RECT area = {};
    GetWindowRect(form, &area);
    SendMessageW(form, WM_DPICHANGED, MAKELONG(192, 192), reinterpret_cast<LPARAM>(&area));
    EXPECT_EQ(width(), 2 * wanted);
    test::EndAction();
  };
  EXPECT_EQ(PlayOnOrders("page frmPSSelectAction; do widen; select grdCharts #1; select grdCharts; do look",
                         {{"widen", widen}, {"look", look}}),
            "");
}

TEST_F(RudeHandsTest, AKeyThatIsHeldDownCountsOnce) {
  const auto repeat = [](WPARAM key) {
    return [key] {
      for (int i = 0; i < 20; ++i) test::PostKey(GetFocus(), key, true);
      test::EndAction();
    };
  };
  const auto enter = [] { test::PostKey(GetFocus(), VK_RETURN), test::EndAction(); };
  EXPECT_EQ(PlayOnOrders(test::kWays[1].lines +
                             "do enter; do repeat; page frmPSLayoutABC; do escape; page "
                             "frmPSLayoutABC; focus txtComment; do repeat; expect txtComment.Text \"" +
                             [] {
                               S lines;
                               for (int i = 0; i < 20; ++i) lines += "\\n";
                               return lines;
                             }() +
                             "\"",
                         {{"enter", enter}, {"repeat", repeat(VK_RETURN)}, {"escape", repeat(VK_ESCAPE)}}),
            "");
}

TEST_F(RudeHandsTest, AKeyThatIsHeldDownLeavesAMessageBoxOpen) {
  const windows::HeldKeys heldKeys;
  int ticks = 0;
  static int* count = nullptr;
  count = &ticks;
  const UINT_PTR timer = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) {
    ++*count;
    test::PostKey(GetFocus(), VK_RETURN, *count < 10);  // The last one is a new key press.
  });
  EXPECT_EQ(MessageBoxW(nullptr, L"Text", L"Title", MB_OK), IDOK);
  KillTimer(nullptr, timer);
  EXPECT_GE(ticks, 10);
}

TEST_F(RudeHandsTest, EachPageIsClosedOnce) {
  const auto close = [] {
    for (int i = 0; i < 3; ++i) PostMessageW(test::FrontWindow(), WM_CLOSE, 0, 0);
    test::PostClick(ButtonOf("cmdCancel"));
    test::EndAction();
  };
  for (const test::Way& way : test::kWays) {
    EXPECT_EQ(PlayOnOrders(way.lines + "do close; page none", {{"close", close}}), "");
  }
}

S Times(int count, const S& text) {
  S result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

/// A pasted text, and the part that a box accepts if there is enough space.
struct Input {
  S pasted, oneLine, lines;
};

/// Returns the expected text of a box: as much of the input as fits. A character that doesn't fit completely
/// is left out.
std::wstring Expected(const forms::Control& control, const Input& input) {
  const auto* box = dynamic_cast<const forms::TextBox*>(&control);
  const bool hasLines = box != nullptr && box->MultiLine();
  const std::size_t most = box == nullptr ? 0 : box->MaxLength();
  std::wstring text = com::Wide(hasLines ? input.lines : input.oneLine);
  if (most == 0 || text.size() <= most) return text;
  text.resize(most);
  if (IS_HIGH_SURROGATE(text.back()) || text.back() == L'\r') text.pop_back();
  return text;
}

TEST_F(RudeHandsTest, BoxesAcceptAndShowTheInputThatFits) {
  const Input inputs[] = {
      {Times(10000, "x"), Times(10000, "x"), Times(10000, "x")},
      {Times(10000, "a\n"), Times(10000, "a "), Times(10000, "a\r\n")},
      {"a\r\nb\nc\td\x01"
       "e\x7F",
       "a b c d e\x7F", "a\r\nb\r\nc\td e\x7F"},
      {"a\xC2\xA0z", "a\xC2\xA0z", "a\xC2\xA0z"},
      {S("x") + Times(8000, "\xF0\x9F\x98\x80"), S("x") + Times(8000, "\xF0\x9F\x98\x80"),
       S("x") + Times(8000, "\xF0\x9F\x98\x80")},
  };
  const Input* input = nullptr;
  int checked = 0;
  const auto onBoxes = [](const std::function<void(const forms::Control& control, HWND edit)>& action) {
    for (const forms::Control* control : test::FrontForm().Controls()) {
      const HWND window = ButtonOf(control->FullName());
      const auto* combo = dynamic_cast<const forms::ComboBox*>(control);
      const bool isCombo = combo != nullptr && combo->Style() == forms::ComboStyle::kDropDownCombo;
      const bool isText = dynamic_cast<const forms::TextBox*>(control) != nullptr;
      if (!control->Obstacle().empty() || (!isText && !isCombo)) continue;
      action(*control, isText ? window : GetWindow(window, GW_CHILD));
    }
  };
  const auto feed = [&] {
    test::SetClipboardText(com::Wide(input->pasted));
    onBoxes([](const forms::Control&, HWND edit) {
      SetFocus(edit);
      PostMessageW(edit, WM_CHAR, 1, 0);  // Control and A, Control and V
      PostMessageW(edit, WM_CHAR, 22, 0);
      test::HandleMessages();
    });
    test::EndAction();
  };
  const auto look = [&] {
    onBoxes([&](const forms::Control& control, HWND) {
      const std::wstring text = com::Wide(forms::WithLineEnds(*forms::StateOf(control).text, "\r\n"));
      EXPECT_TRUE(text == Expected(control, *input))
          << control.FullName() << " has " << text.size() << " units";
      ++checked;
    });
  };
  for (const Input& each : inputs) {
    input = &each;
    for (const std::size_t way : {2, 6}) {
      EXPECT_EQ(PlayOnOrders(test::kWays[way].lines + "do feed; do look", {{"feed", feed}, {"look", look}}),
                "");
    }
  }
  EXPECT_EQ(checked, 30) << "the boxes of both pages, with each input";
}

}  // namespace
}  // namespace plotsmith

#include <gtest/gtest.h>

#include "forms/ModalLoop.h"
#include "tests/support/SmallForm.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/WindowState.h"
#include "tests/windows/views/WindowsHand.h"
#include "windows/com/Texts.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Types into the boxes of a small form, in the loop that a page has in Excel. This loop performs a gesture
/// as soon as it is reported, while in a script all messages are handled first.
class TypingTest : public test::DialogTest {
 protected:
  /// Posts these units to the end of the control's text, then Tab and a request to close. Returns the text in
  /// the window.
  S Type(test::SmallForm& form, forms::Control& control, const std::wstring& units) {
    const auto view = std::make_shared<windows::FormsView>([this] { return hostWindow_.Handle(); });
    forms::ModalLoop loop(view);
    form.OnActivate = [&] {
      const HWND window = test::ControlWindow(view->Front()->Handle(), control.FullName());
      const HWND inside = GetWindow(window, GW_CHILD);
      const HWND edit = inside == nullptr ? window : inside;
      control.SetFocus();
      PostMessageW(edit, WM_KEYDOWN, VK_END, 1);
      for (const wchar_t unit : units) PostMessageW(edit, WM_CHAR, unit, 0);
      PostMessageW(edit, WM_KEYDOWN, VK_TAB, 1);
    };
    S shown;
    const auto look = [&] {
      for (int i = 0; i < 2; ++i) loop.DoEvents();  // the box reports its text after it has lost the focus
      for (const auto& state : test::StateOfWindow(view->Front()->Handle()).controls) {
        if (state.name == control.FullName()) shown = *state.text;
      }
      form.UserClose();
    };
    for (forms::Control* other : form.Controls()) {
      if (other != &control) other->GotFocus = look;
    }
    loop.ShowModal(std::shared_ptr<forms::Form>(&form, [](forms::Form*) {}));
    return shown;
  }
};

TEST_F(TypingTest, ACharacterOfTwoUnitsIsKept) {
  const struct {
    std::wstring units;
    S text;
  } cases[] = {
      {L"a\xD83D\xDE00z", "a\xF0\x9F\x98\x80z"},
      {L"\xD83D\xDE00\xD83D\xDE00", "\xF0\x9F\x98\x80\xF0\x9F\x98\x80"},
      {L"a\xD83D", "a "},             // half of a surrogate pair is no character
      {L"\xDE00z", "z"},              // this half doesn't come alone, either
      {L"abcd\xD83D\xDE00", "abcd"},  // there is space for five units
      {L"abc\xD83D\xDE00", "abc\xF0\x9F\x98\x80"},
  };
  for (const auto& [units, text] : cases) {
    SCOPED_TRACE(text);
    std::vector<S> log;
    test::SmallForm one(log), several(log), combo(log);
    several.txtNote.SetMaxLength(5);
    EXPECT_EQ(Type(one, one.txtTitle, units), text);
    EXPECT_EQ(one.txtTitle.Text(), text);
    EXPECT_EQ(Type(several, several.txtNote, units), text);
    EXPECT_EQ(several.txtNote.Text(), text);
    if (text == "abcd") continue;  // a combo box has enough space
    EXPECT_EQ(Type(combo, combo.cboFormat, units), text);
    EXPECT_EQ(combo.cboFormat.Text(), text);
  }
}

TEST_F(TypingTest, ATextLongerThanItsBoxAllowsCanBeEdited) {
  std::vector<S> log;
  test::SmallForm form(log);
  form.txtTitle.SetText("12345678");
  EXPECT_EQ(Type(form, form.txtTitle, L"\b9x"), "12345679") << "there is no space for x";
  EXPECT_EQ(form.txtTitle.Text(), "12345679");
}

}  // namespace
}  // namespace plotsmith

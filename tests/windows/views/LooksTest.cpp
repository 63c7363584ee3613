#include <cmath>
#include <gtest/gtest.h>

#include "common/App.h"
#include "common/Intl.h"
#include "tests/support/SmallForm.h"
#include "tests/windows/views/DialogTest.h"
#include "tests/windows/views/ForeignDesktop.h"
#include "tests/windows/views/WindowState.h"
#include "windows/com/Texts.h"
#include "windows/views/ControlView.h"
#include "windows/views/ThreadDpi.h"

namespace plotsmith {
namespace {

using S = std::string;

LOGFONTW FontOf(HWND window) {
  LOGFONTW font = {};
  const auto handle = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  GetObjectW(handle, sizeof font, &font);
  return font;
}

/// The system uses another typeface for messages as long as this object lives.
class MessageTypeface {
 public:
  explicit MessageTypeface(const wchar_t* name) {
    before_.cbSize = sizeof before_;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof before_, &before_, 0);
    NONCLIENTMETRICSW metrics = before_;
    wcscpy(metrics.lfMessageFont.lfFaceName, name);
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  }
  ~MessageTypeface() { SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof before_, &before_, 0); }
  MessageTypeface(const MessageTypeface&) = delete;
  MessageTypeface& operator=(const MessageTypeface&) = delete;

 private:
  NONCLIENTMETRICSW before_ = {};
};

class LooksTest : public test::DialogTest {
 protected:
  /// Shows the form and calls a function with its window.
  static void OnScreen(forms::Form& form, const std::function<void(HWND window)>& look) {
    const windows::ThreadDpi dpi;
    windows::FormsView view([] { return test::theHostWindow; });
    view.Open(form);
    look(view.Front()->Handle());
    view.Close(form);
  }
};

TEST_F(LooksTest, FontsAreThoseOfTheLocale) {
  const S own = "Courier New";
  const MessageTypeface typeface(L"Courier New");
  const struct {
    std::int32_t lcid;
    BYTE charset;
    S name;
    double size;  ///< of a font of 6 points
  } cases[] = {{1033, 1, "Tahoma", 6},
               {1025, 178, own, 8},
               {1049, 204, own, 8},
               {1028, 136, "新細明體", 9},
               {1041, 128, "ＭＳ Ｐゴシック", 9}};
  for (const auto& [lcid, charset, name, size] : cases) {
    SCOPED_TRACE(lcid);
    App.Desktop = runtime::MakeRef<test::ForeignDesktop>(lcid);
    std::vector<S> log;
    test::SmallForm form(log);
    for (forms::Control* control : form.Controls()) {
      if (dynamic_cast<forms::FontControl*>(control) != nullptr) control->Font().Size = 6;
    }
    ApplyLocaleFontsToForm(form);
    OnScreen(form, [&](HWND window) {
      for (const HWND control : test::ControlWindows(window)) {
        const auto& model = windows::ControlView::Of(control)->Model();
        if (dynamic_cast<const forms::FontControl*>(&model) == nullptr) continue;
        const bool isGrid = S(model.TypeName()) == "VSFlexGrid";
        const LOGFONTW font = FontOf(control);
        EXPECT_EQ(font.lfCharSet, isGrid ? 0 : charset) << model.FullName();
        EXPECT_EQ(com::Utf8(font.lfFaceName, wcslen(font.lfFaceName)), isGrid ? "Tahoma" : name)
            << model.FullName();
        const double dpi = GetDpiForWindow(window);
        EXPECT_EQ(font.lfHeight, -std::lround((isGrid ? 6 : size) * dpi / 72)) << model.FullName();
      }
    });
  }
}

RECT AreaOf(HWND window) {
  RECT area = {};
  GetWindowRect(window, &area);
  return area;
}

TEST_F(LooksTest, APageThatIsTooLargeIsScrolledToTheFocus) {
  const auto shrink = [] {
    SetWindowPos(test::FrontWindow(), nullptr, 0, 0, 320, 240, SWP_NOMOVE | SWP_NOZORDER);
    test::EndAction();
  };
  const auto look = [] {
    RECT room = {};
    GetClientRect(test::FrontWindow(), &room);
    for (forms::Control* control : test::FrontForm().Controls()) {
      if (!control->UserFocus()) continue;
      test::theDialogs->ShowChanges();
      const HWND window = test::ControlWindow(test::FrontWindow(), control->FullName());
      RECT area = AreaOf(window), seen = {};
      MapWindowPoints(nullptr, test::FrontWindow(), reinterpret_cast<POINT*>(&area), 2);
      EXPECT_TRUE(IntersectRect(&seen, &area, &room)) << control->FullName();
    }
    test::EndAction();
  };
  EXPECT_EQ(PlayOnOrders(test::kWays[2].lines + "do shrink; do look; press cmdCancel; page none",
                         {{"shrink", shrink}, {"look", look}}),
            "");
}

}  // namespace
}  // namespace plotsmith

#include <gtest/gtest.h>
#include <memory>

#include "tests/support/PagesTest.h"
#include "tests/windows/views/WindowsHand.h"
#include "tests/windows/views/WindowsStage.h"

namespace {

using plotsmith::windows::FormsView;

/// Plays the scripts of the pages' tests on dialogs, by messages.
plotsmith::test::Hands HandsOnDialogs() {
  auto view = std::make_shared<FormsView>([] { return HWND{}; });
  const auto handle = [view = view.get()](plotsmith::forms::EventQueue& queue) {
    while (view->HandleMessage()) {
    }
    view->PostTo(queue);
  };
  return {
      std::make_unique<plotsmith::test::WindowsHand>([view = view.get()] { return view->Front()->Handle(); },
                                                     handle),
      [view](const auto& player) { return std::make_shared<plotsmith::test::WindowsStage>(view, player); }};
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  SetDoubleClickTime(1);  // milliseconds; scripts press buttons faster than people do
  plotsmith::test::MakeHands = HandsOnDialogs;
  const int code = RUN_ALL_TESTS();
  CoUninitialize();
  return code;
}

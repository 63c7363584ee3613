#include <gtest/gtest.h>

#include "tests/windows/views/Dialogs.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  SetDoubleClickTime(1);  // milliseconds; scripts press buttons faster than people do
  plotsmith::test::MakeHands = plotsmith::test::HandsOnDialogs;
  const int code = RUN_ALL_TESTS();
  plotsmith::test::theDialogs.reset();
  CoUninitialize();
  return code;
}

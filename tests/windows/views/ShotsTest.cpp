#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>

#include "tests/windows/views/DialogTest.h"

namespace plotsmith {
namespace {

using S = std::string;

/// Writes the screen area of the window to a bitmap file.
void WriteShot(HWND window, const S& file) {
  RECT area = {};
  GetWindowRect(window, &area);
  BITMAPINFOHEADER head = {};
  head.biSize = sizeof head;
  head.biWidth = area.right - area.left;
  head.biHeight = area.bottom - area.top;
  head.biPlanes = 1;
  head.biBitCount = 32;
  const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
  void* pixels = nullptr;
  const HBITMAP bitmap =
      CreateDIBSection(memory, reinterpret_cast<BITMAPINFO*>(&head), DIB_RGB_COLORS, &pixels, nullptr, 0);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, head.biWidth, head.biHeight, screen, area.left, area.top, SRCCOPY);
  GdiFlush();
  const auto bytes = static_cast<DWORD>(head.biWidth * head.biHeight * 4);
  BITMAPFILEHEADER start = {};
  start.bfType = 0x4D42;
  start.bfOffBits = sizeof start + sizeof head;
  start.bfSize = start.bfOffBits + bytes;
  std::ofstream out(file, std::ios::binary);
  out.write(reinterpret_cast<const char*>(&start), sizeof start);
  out.write(reinterpret_cast<const char*>(&head), sizeof head);
  out.write(static_cast<const char*>(pixels), static_cast<std::streamsize>(bytes));
  SelectObject(memory, before);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
}

class ShotsTest : public test::DialogTest {};

/// Takes a picture of each page. PLOTSMITH_SHOTS names the folder.
TEST_F(ShotsTest, PicturesOfEachPage) {
  const char* const folder = std::getenv("PLOTSMITH_SHOTS");
  if (folder == nullptr) GTEST_SKIP() << "PLOTSMITH_SHOTS names no folder";
  const S toFilledLayout =
      test::kToTable +
      "choose optType(1); press cmdNext; page frmPSLayoutABC; choose optSeries(1); choose "
      "cboSeries Product; check chkStacked; type txtTitle \"Amount by region\"; ";
  const std::vector<test::Way> ways = {
      {"select-action", "page frmPSSelectAction; select grdCharts #1; "},
      {"select-table", test::kToTable + "choose optType(1); "},
      {"layout", toFilledLayout},
      {"layout-pie", test::kWays[3].lines},
      {"layout-bubble", test::kWays[4].lines},
      {"layout-strategic-bucket", test::kWays[5].lines},
      {"location",
       toFilledLayout +
           "press cmdNext; page frmPSChartLocation; choose optTargetSheet(0); type txtSheet Charts; "}};
  for (const auto& [name, lines] : ways) {
    const auto shoot = [&, file = S(folder) + "/" + name + ".bmp"] {
      const DWORD end = GetTickCount() + 300;
      while (GetTickCount() < end) test::HandleMessages();
      WriteShot(test::FrontWindow(), file);
    };
    EXPECT_EQ(PlayOnOrders(lines + "do shoot", {{"shoot", shoot}}), "");
  }
}

}  // namespace
}  // namespace plotsmith

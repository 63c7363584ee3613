#include "tests/windows/views/Captions.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "tests/windows/views/WindowState.h"

namespace plotsmith::test {
namespace {

constexpr int kMoreWidth = 100;  // even, because a button has half of it on each side

/// The pixels that a window paints.
struct Painting {
  int width = 0, height = 0;
  std::vector<std::uint32_t> pixels;

  std::uint32_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

/// A bitmap in memory that a window can paint on.
class Canvas {
 public:
  Canvas(int width, int height) : context_(CreateCompatibleDC(nullptr)) {
    BITMAPINFOHEADER head = {};
    head.biSize = sizeof head;
    head.biWidth = width;
    head.biHeight = -height;  // the first row is at the top
    head.biPlanes = 1;
    head.biBitCount = 32;
    bitmap_ = CreateDIBSection(context_, reinterpret_cast<BITMAPINFO*>(&head), DIB_RGB_COLORS, &pixels_,
                               nullptr, 0);
    before_ = SelectObject(context_, bitmap_);
  }
  ~Canvas() {
    SelectObject(context_, before_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  HDC Context() const { return context_; }
  const std::uint32_t* Pixels() const { return static_cast<const std::uint32_t*>(pixels_); }

 private:
  HDC context_;
  HBITMAP bitmap_ = nullptr;
  void* pixels_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

RECT ClientArea(HWND window) {
  RECT area = {};
  GetClientRect(window, &area);
  return area;
}

Painting Paint(HWND window) {
  const RECT area = ClientArea(window);
  const Canvas canvas(area.right, area.bottom);
  FillRect(canvas.Context(), &area, GetSysColorBrush(COLOR_BTNFACE));
  SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Context()),
               PRF_CLIENT | PRF_ERASEBKGND);
  GdiFlush();
  Painting painting{static_cast<int>(area.right), static_cast<int>(area.bottom), {}};
  painting.pixels.assign(canvas.Pixels(), canvas.Pixels() + painting.width * painting.height);
  return painting;
}

Painting PaintWider(HWND window) {
  const RECT area = ClientArea(window);
  const UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
  SetWindowPos(window, nullptr, 0, 0, area.right + kMoreWidth, area.bottom, flags);
  Painting painting = Paint(window);
  SetWindowPos(window, nullptr, 0, 0, area.right, area.bottom, flags);
  return painting;
}

/// Returns true if columns of a painting are the same as those of another one that are further to the right
/// by this number of pixels.
bool AreSame(const Painting& left, int from, int to, const Painting& right, int further) {
  for (int y = 0; y < left.height; ++y) {
    for (int x = from; x < to; ++x) {
      if (left.At(x, y) != right.At(x + further, y)) return false;
    }
  }
  return true;
}

/// Returns true if some columns are empty: they are all the same as the first one.
bool IsEmpty(const Painting& painting, int from, int to) {
  for (int y = 0; y < painting.height; ++y) {
    for (int x = from; x < to; ++x) {
      if (painting.At(x, y) != painting.At(from, y)) return false;
    }
  }
  return true;
}

bool IsWhole(HWND window, const std::string& kind) {
  const Painting own = Paint(window), wide = PaintWider(window);
  const int edge = MulDiv(8, static_cast<int>(GetDpiForWindow(window)), USER_DEFAULT_SCREEN_DPI);
  if (kind == "Frame") return AreSame(own, 0, own.width - edge, wide, 0);
  if (kind == "CommandButton") {
    return AreSame(own, edge, own.width - edge, wide, kMoreWidth / 2) &&
           IsEmpty(wide, edge, edge + kMoreWidth / 2);
  }
  return AreSame(own, 0, own.width, wide, 0) && IsEmpty(wide, own.width, wide.width);
}

}  // namespace

std::string CutCaptions(HWND form) {
  std::string names;
  for (const auto& control : StateOfWindow(form).controls) {
    if (!control.caption || control.caption->empty() || !control.visible) continue;
    if (!IsWhole(ControlWindow(form, control.name), control.kind)) names += control.name + " ";
  }
  return names;
}

}  // namespace plotsmith::test

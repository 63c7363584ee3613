#include "windows/views/Fonts.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

#include "windows/com/Texts.h"

namespace plotsmith::windows {
namespace {

constexpr double kPointsPerInch = 72;

/// A device context in memory with a font selected into it.
class FontContext {
 public:
  explicit FontContext(HFONT font) : context_(CreateCompatibleDC(nullptr)) {
    before_ = SelectObject(context_, font);
  }
  ~FontContext() {
    SelectObject(context_, before_);
    DeleteDC(context_);
  }
  FontContext(const FontContext&) = delete;
  FontContext& operator=(const FontContext&) = delete;
  operator HDC() const { return context_; }

 private:
  HDC context_;
  HGDIOBJ before_;
};

std::wstring SystemTypeface(UINT dpi) {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  if (!SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi)) return L"";
  return metrics.lfMessageFont.lfFaceName;
}

}  // namespace

HFONT Fonts::Find(const forms::Font& font) {
  auto& found = fonts_[{font.Name, font.Size, font.Charset, font.Bold}];
  if (found) return found.get();
  LOGFONTW wanted = {};
  wanted.lfHeight = -static_cast<LONG>(std::lround(font.Size * dpi_ / kPointsPerInch));
  wanted.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
  wanted.lfCharSet = static_cast<BYTE>(font.Charset);
  const std::wstring name = font.Name.empty() ? SystemTypeface(dpi_) : com::Wide(font.Name);
  name.copy(wanted.lfFaceName, LF_FACESIZE - 1);
  found.reset(CreateFontIndirectW(&wanted));
  return found.get();
}

SIZE TextSize(HFONT font, const std::wstring& text) {
  RECT area = {};
  DrawTextW(FontContext(font), text.c_str(), static_cast<int>(text.size()), &area,
            DT_CALCRECT | DT_SINGLELINE);
  return {area.right, area.bottom};
}

SIZE CharacterSize(HFONT font) {
  TEXTMETRICW metrics = {};
  GetTextMetricsW(FontContext(font), &metrics);
  return {metrics.tmAveCharWidth, metrics.tmHeight};
}

}  // namespace plotsmith::windows

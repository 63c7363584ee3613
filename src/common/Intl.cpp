#include "common/Intl.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include "common/App.h"
#include "common/ErrorBlocks.h"
#include "runtime/RuntimeError.h"

namespace plotsmith {
namespace {

constexpr std::int32_t kDefaultCharset = 1;
constexpr double kLeastSize = 8;           // points
constexpr double kLeastEastAsianSize = 9;  // points: smaller ideographs and syllables are not legible

/// The font settings of a locale.
struct LocaleFont {
  std::int32_t lLCID;
  std::int32_t lCharset;
  const char* sTypeface;  ///< null if the system chooses the typeface
};

constexpr LocaleFont kLocaleFonts[] = {
    {1025, 178, nullptr},            // Arabic
    {1028, 136, "新細明體"},         // Chinese, Taiwan
    {1029, 238, nullptr},            // Czech
    {1032, 161, nullptr},            // Greek
    {1037, 177, nullptr},            // Hebrew
    {1038, 238, nullptr},            // Hungarian
    {1041, 128, "ＭＳ Ｐゴシック"},  // Japanese
    {1042, 129, "굴림"},             // Korean
    {1045, 238, nullptr},            // Polish
    {1048, 238, nullptr},            // Romanian
    {1049, 204, nullptr},            // Russian
    {1050, 238, nullptr},            // Croatian
    {1051, 238, nullptr},            // Slovak
    {1054, 222, nullptr},            // Thai
    {1055, 162, nullptr},            // Turkish
    {1060, 238, nullptr},            // Slovenian
    {1066, 163, nullptr},            // Vietnamese
    {2052, 134, "宋体"},             // Chinese, China
};

}  // namespace

void ApplyLocaleFont(forms::Font& oFont) {
  const auto it = std::ranges::find(kLocaleFonts, App.Desktop->UserDefaultLCID(), &LocaleFont::lLCID);
  if (it == std::end(kLocaleFonts)) {
    oFont.Charset = kDefaultCharset;
    return;
  }
  oFont.Charset = it->lCharset;
  if (it->sTypeface == nullptr) {
    SetDefaultLocaleFont(oFont);
    return;
  }
  oFont.Name = it->sTypeface;
  oFont.Size = std::max(oFont.Size, kLeastEastAsianSize);
}

void SetDefaultLocaleFont(forms::Font& oFont) {
  oFont.Name.clear();
  oFont.Size = std::max(oFont.Size, kLeastSize);
}

void ApplyLocaleFontsToForm(forms::Form& oForm) {
  ApplyLocaleFont(oForm.Font());
  for (forms::Control* oControl : oForm.Controls()) {
    if (std::string_view(oControl->TypeName()) == "VSFlexGrid") continue;
    HandleErrors([&] { ApplyLocaleFont(oControl->Font()); },
                 [](const runtime::RuntimeError& oErr) {
                   // A control without a font, such as a picture, is skipped.
                   if (oErr.Number() != runtime::error::kNoSuchMember) throw oErr;
                 });
  }
}

}  // namespace plotsmith

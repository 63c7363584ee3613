#include "render/fonts/InstalledFonts.h"

#include <algorithm>
#include <fontconfig/fontconfig.h>
#include <functional>

#include "render/FontSubstitutes.h"

namespace plotsmith::render {
namespace {

/// Returns true if an installed font fulfils a condition. FcFontList would copy the names of all fonts first.
bool HasFont(const std::function<bool(FcPattern*)>& isWanted) {
  FcConfig* const fonts = FcConfigReference(nullptr);
  bool found = false;
  for (const FcSetName name : {FcSetSystem, FcSetApplication}) {
    const FcFontSet* const set = FcConfigGetFonts(fonts, name);
    found = found || (set != nullptr && std::any_of(set->fonts, set->fonts + set->nfont, isWanted));
  }
  FcConfigDestroy(fonts);
  return found;
}

/// Returns true if one of the names of a font's family is `family`, ignoring case.
bool IsOfFamily(FcPattern* font, const std::string& family) {
  const auto* const wanted = reinterpret_cast<const FcChar8*>(family.c_str());
  FcChar8* name = nullptr;
  for (int i = 0; FcPatternGetString(font, FC_FAMILY, i, &name) == FcResultMatch; ++i) {
    if (FcStrCmpIgnoreCase(name, wanted) == 0) return true;
  }
  return false;
}

}  // namespace

bool HasInstalledFonts() {
  return HasFont([](FcPattern*) { return true; });
}

std::string DrawnFamily(const Font& font) {
  const bool installed =
      !font.family.empty() && HasFont([&font](FcPattern* other) { return IsOfFamily(other, font.family); });
  return installed ? font.family : std::string(SubstituteFor(font.family));
}

}  // namespace plotsmith::render

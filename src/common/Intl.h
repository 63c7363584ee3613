#pragma once

#include "forms/Form.h"

/// Module Intl: adapts the fonts of the pages to the script of the user's locale. The texts stay in English.
namespace plotsmith {

/// Sets the character set of the user's locale (see Desktop::UserDefaultLCID) and, for East Asian languages,
/// a typeface of at least 9 points. If every font supports the locale's script, the character set is
/// DEFAULT_CHARSET, and the font keeps its typeface and size.
void ApplyLocaleFont(forms::Font& oFont);
/// Lets the system choose its user interface font, of at least 8 points.
void SetDefaultLocaleFont(forms::Font& oFont);
/// Applies the locale to the fonts of a form and of its controls. Grids keep their fonts.
void ApplyLocaleFontsToForm(forms::Form& oForm);

}  // namespace plotsmith

#include "cli/UserLocale.h"

#include <cstdlib>

#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

constexpr std::int32_t kEnglishUnitedStates = 1033;

struct LocaleName {
  std::string_view name;  ///< In the form language_TERRITORY.
  std::int32_t lcid;
};

/// The first line of a language is its default territory.
constexpr LocaleName kLocaleNames[] = {
    {"ar_SA", 1025},  {"ar_IQ", 2049},  {"ar_EG", 3073},  {"ar_LY", 4097},  {"ar_DZ", 5121},
    {"ar_MA", 6145},  {"ar_TN", 7169},  {"ar_OM", 8193},  {"ar_YE", 9217},  {"ar_SY", 10241},
    {"ar_JO", 11265}, {"ar_LB", 12289}, {"ar_KW", 13313}, {"ar_AE", 14337}, {"ar_BH", 15361},
    {"ar_QA", 16385}, {"bg_BG", 1026},  {"ca_ES", 1027},  {"cs_CZ", 1029},  {"cy_GB", 1106},
    {"da_DK", 1030},  {"de_DE", 1031},  {"de_CH", 2055},  {"de_AT", 3079},  {"de_LU", 4103},
    {"de_LI", 5127},  {"el_GR", 1032},  {"en_US", 1033},  {"en_GB", 2057},  {"en_AU", 3081},
    {"en_CA", 4105},  {"en_NZ", 5129},  {"en_IE", 6153},  {"en_ZA", 7177},  {"en_IN", 16393},
    {"es_ES", 3082},  {"es_MX", 2058},  {"es_CO", 9226},  {"es_PE", 10250}, {"es_AR", 11274},
    {"es_CL", 13322}, {"es_US", 21514}, {"et_EE", 1061},  {"eu_ES", 1069},  {"fi_FI", 1035},
    {"fr_FR", 1036},  {"fr_BE", 2060},  {"fr_CA", 3084},  {"fr_CH", 4108},  {"fr_LU", 5132},
    {"ga_IE", 2108},  {"gl_ES", 1110},  {"he_IL", 1037},  {"iw_IL", 1037},  {"hr_HR", 1050},
    {"hr_BA", 4122},  {"hu_HU", 1038},  {"is_IS", 1039},  {"it_IT", 1040},  {"it_CH", 2064},
    {"ja_JP", 1041},  {"ko_KR", 1042},  {"lt_LT", 1063},  {"lv_LV", 1062},  {"nb_NO", 1044},
    {"nn_NO", 2068},  {"no_NO", 1044},  {"nl_NL", 1043},  {"nl_BE", 2067},  {"pl_PL", 1045},
    {"pt_BR", 1046},  {"pt_PT", 2070},  {"ro_RO", 1048},  {"ro_MD", 2072},  {"ru_RU", 1049},
    {"ru_MD", 2073},  {"sk_SK", 1051},  {"sl_SI", 1060},  {"sq_AL", 1052},  {"sv_SE", 1053},
    {"sv_FI", 2077},  {"th_TH", 1054},  {"tr_TR", 1055},  {"uk_UA", 1058},  {"vi_VN", 1066},
    {"zh_CN", 2052},  {"zh_TW", 1028},  {"zh_HK", 3076},  {"zh_SG", 4100},  {"zh_MO", 5124},
};

std::string_view UpTo(std::string_view text, const char* characters) {
  return text.substr(0, text.find_first_of(characters));
}

}  // namespace

std::int32_t LCIDOfLocale(std::string_view locale) {
  const std::string_view name = UpTo(locale, ".@");
  const std::string_view language = UpTo(name, "_");
  const LocaleName* byDefault = nullptr;
  for (const LocaleName& known : kLocaleNames) {
    if (runtime::EqualsIgnoreCase(known.name, name)) return known.lcid;
    if (byDefault == nullptr && runtime::EqualsIgnoreCase(UpTo(known.name, "_"), language)) {
      byDefault = &known;
    }
  }
  return byDefault == nullptr ? kEnglishUnitedStates : byDefault->lcid;
}

std::string_view UserLocale() {
  for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return "C";
}

}  // namespace plotsmith::cli

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>

#include "cli/ConsoleDesktop.h"
#include "cli/UserLocale.h"

namespace plotsmith::cli {
namespace {

using S = std::string;

TEST(UserLocaleTest, PosixNamesHaveWindowsIdentifiers) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"ar_SA", 1025},
      {"ar_EG.UTF-8", 3073},
      {"zh_TW.Big5", 1028},
      {"zh_CN", 2052},
      {"zh_HK", 3076},
      {"cs_CZ", 1029},
      {"hu_HU", 1038},
      {"pl_PL", 1045},
      {"ro_RO", 1048},
      {"hr_HR", 1050},
      {"sk_SK", 1051},
      {"sl_SI", 1060},
      {"el_GR", 1032},
      {"he_IL", 1037},
      {"iw_IL", 1037},
      {"ja_JP.eucJP", 1041},
      {"ko_KR.UTF-8", 1042},
      {"ru_RU.KOI8-R", 1049},
      {"th_TH", 1054},
      {"tr_TR", 1055},
      {"vi_VN", 1066},
      {"en_GB", 2057},
      {"de_AT@euro", 3079},
      {"fr_CA.UTF-8@x", 3084},
      {"PT_pt.utf8", 2070},
      // a language only, or with a territory that has no identifier
      {"ja", 1041},
      {"zh", 2052},
      {"pt", 1046},
      {"en", 1033},
      {"es.UTF-8", 3082},
      {"ru_UA", 1049},
      {"de_BE.UTF-8", 1031}};
  for (const auto& [name, lcid] : cases) EXPECT_EQ(LCIDOfLocale(name), lcid) << name;
  for (const char* name : {"C", "C.UTF-8", "POSIX", "", "tlh_QO", "_JP", "j", "jap"}) {
    EXPECT_EQ(LCIDOfLocale(name), 1033) << "without a language: " << name;
  }
}

/// Restores the environment variables for the locale after the test.
class LocaleVariables {
 public:
  LocaleVariables() {
    for (const S name : {"LC_ALL", "LC_CTYPE", "LC_MESSAGES", "LANG"}) {
      const char* value = std::getenv(name.c_str());
      kept_[name] = value == nullptr ? std::optional<S>() : value;
    }
  }
  ~LocaleVariables() { Set(kept_); }

  using Values = std::map<S, std::optional<S>>;
  void Set(const Values& values) {
    for (const auto& [name, value] : kept_) unsetenv(name.c_str());
    for (const auto& [name, value] : values) {
      if (value) setenv(name.c_str(), value->c_str(), 1);
    }
  }

 private:
  Values kept_;
};

TEST(UserLocaleTest, TheDesktopUsesTheEnvironment) {
  LocaleVariables environment;
  const std::pair<LocaleVariables::Values, std::int32_t> cases[] = {
      {{}, 1033},
      {{{"LANG", "ja_JP.UTF-8"}}, 1041},
      {{{"LANG", "ja_JP.UTF-8"}, {"LC_MESSAGES", "en_US.UTF-8"}}, 1041},
      {{{"LANG", "ja_JP.UTF-8"}, {"LC_CTYPE", "ko_KR"}}, 1042},
      {{{"LANG", "ja_JP.UTF-8"}, {"LC_CTYPE", "ko_KR"}, {"LC_ALL", "C"}}, 1033},
      {{{"LANG", "ru_RU"}, {"LC_CTYPE", ""}, {"LC_ALL", ""}}, 1049},
  };
  for (const auto& [values, lcid] : cases) {
    environment.Set(values);
    EXPECT_EQ(ConsoleDesktop().UserDefaultLCID(), lcid);
  }
}

}  // namespace
}  // namespace plotsmith::cli

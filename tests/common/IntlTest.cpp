#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "cli/ConsoleDesktop.h"
#include "common/App.h"
#include "common/Intl.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"

namespace plotsmith {
namespace {

using S = std::string;

/// A desktop with a locale that the test chooses.
class LocaleDesktop : public cli::ConsoleDesktop {
 public:
  std::int32_t UserDefaultLCID() override { return lcid; }
  std::int32_t lcid = 0;
};

class IntlTest : public ::testing::Test {
 protected:
  void SetUp() override { App.Desktop = desktop_; }
  void TearDown() override { App.Desktop = nullptr; }
  std::shared_ptr<LocaleDesktop> desktop_ = std::make_shared<LocaleDesktop>();
};

void ExpectFont(const forms::Font& font, const S& name, double size, std::int32_t charset) {
  EXPECT_EQ(font.Name, name);
  EXPECT_EQ(font.Size, size);
  EXPECT_EQ(font.Charset, charset);
  EXPECT_TRUE(font.Bold) << "the weight is the page's own";
}

TEST_F(IntlTest, FontsFitTheLocale) {
  const S asDesigned = "Tahoma", systems = "";
  const struct {
    std::int32_t lcid, charset;
    S typeface;
    double least;  ///< In points; 0 if the size doesn't change.
  } cases[] = {
      {1025, 178, systems, 8},
      {1028, 136, "新細明體", 9},
      {1029, 238, systems, 8},
      {1032, 161, systems, 8},
      {1037, 177, systems, 8},
      {1038, 238, systems, 8},
      // full-width letters, an ASCII blank, full-width again
      {1041, 128, "\uFF2D\uFF33 \uFF30\u30B4\u30B7\u30C3\u30AF", 9},
      {1042, 129, "굴림", 9},
      {1045, 238, systems, 8},
      {1048, 238, systems, 8},
      {1049, 204, systems, 8},
      {1050, 238, systems, 8},
      {1051, 238, systems, 8},
      {1054, 222, systems, 8},
      {1055, 162, systems, 8},
      {1060, 238, systems, 8},
      {1066, 163, systems, 8},
      {2052, 134, "宋体", 9},
      {1033, 1, asDesigned, 0},
      {3076, 1, asDesigned, 0},
      {0, 1, asDesigned, 0},
  };
  for (const auto& expected : cases) {
    desktop_->lcid = expected.lcid;
    for (const double size : {6.0, 8.0, 8.5, 9.0, 10.0}) {
      SCOPED_TRACE(std::to_string(expected.lcid) + " at " + std::to_string(size));
      forms::Font font{asDesigned, size, 0, true};
      ApplyLocaleFont(font);
      ExpectFont(font, expected.typeface, std::max(size, expected.least), expected.charset);
    }
  }
}

TEST_F(IntlTest, TheDefaultFontKeepsItsCharacterSet) {
  forms::Font font{"Tahoma", 7.5, 204, true};
  SetDefaultLocaleFont(font);
  ExpectFont(font, "", 8, 204);
}

TEST_F(IntlTest, AFormAndItsControlsExceptGridsFollowTheLocale) {
  struct SomeForm : forms::Form {
    SomeForm() : Form("frmSome") {}
    forms::Image imgOne{*this, "imgOne", nullptr};  // An image has no font and doesn't stop the loop.
    forms::VSFlexGrid grdOne{*this, "grdOne", nullptr, forms::MultiSelect::kNone, 1, 0};
    forms::TextBox txtOne{*this, "txtOne", nullptr};
  } form;
  form.txtOne.Font().Size = 10;
  desktop_->lcid = 1041;
  ApplyLocaleFontsToForm(form);
  EXPECT_EQ(form.Font().Charset, 128);
  EXPECT_EQ(form.Font().Size, 9);
  EXPECT_EQ(form.txtOne.Font().Charset, 128);
  EXPECT_EQ(form.txtOne.Font().Size, 10);
  EXPECT_EQ(form.grdOne.Font().Charset, forms::Font().Charset);
}

}  // namespace
}  // namespace plotsmith

#include <QtWidgets/QApplication>
#include <gtest/gtest.h>

#include "qt/forms/ControlView.h"

namespace plotsmith {
namespace {

/// Checks the font for a font of the model: its first family, and its size relative to the program's font.
TEST(FontTest, FontsFollowTheModelInProportionToTheProgramsOwn) {
  const QFont own = QApplication::font();
  const struct {
    forms::Font font;
    QString family;
    double share;
  } cases[] = {
      {{"Tahoma", 8, 1}, own.families().front(), 1},
      {{"", 8, 204}, own.families().front(), 1},
      {{"\xEF\xBC\xAD\xEF\xBC\xB3 \xEF\xBC\xB0\xE3\x82\xB4\xE3\x82\xB7\xE3\x83\x83\xE3\x82\xAF", 9, 128},
       QStringLiteral("ＭＳ Ｐゴシック"),
       9.0 / 8},
      {{"新細明體", 9, 136}, QStringLiteral("新細明體"), 9.0 / 8},
      {{"굴림", 9, 129}, QStringLiteral("굴림"), 9.0 / 8},
      {{"宋体", 14, 134}, QStringLiteral("宋体"), 14.0 / 8}};
  for (const auto& [font, family, share] : cases) {
    const QFont shown = qt::FontOf(font);
    EXPECT_EQ(shown.families().front(), family);
    EXPECT_EQ(shown.families().back(), own.families().back()) << "for characters that the family lacks";
    EXPECT_NEAR(shown.pointSizeF(), own.pointSizeF() * share, 0.01) << font.Name;
    EXPECT_FALSE(shown.bold());
  }
  EXPECT_TRUE(qt::FontOf({"Tahoma", 8, 0, true}).bold());
}

}  // namespace
}  // namespace plotsmith

#include <gtest/gtest.h>

#include "forms/Arrangement.h"
#include "forms/Keys.h"
#include "forms/SecondPress.h"
#include "tests/support/SmallForm.h"

namespace plotsmith {
namespace {

using forms::Column;
using forms::Framed;
using forms::Grid;
using forms::Layout;
using forms::Row;
using forms::Space;
using forms::Stack;
using S = std::string;

/// Every control is 10 wide and 4 high; a character is 1 wide, a line 3 high.
class PlainMeasures final : public forms::Measures {
 public:
  forms::Size LeastSize(const forms::Control&) const override { return {10, 4}; }
  int WidthOf(const forms::Control&, int characters) const override { return characters; }
  int HeightOf(const forms::Control&, int lines) const override { return 3 * lines; }
  forms::Edges EdgesOf(const forms::Control&) const override { return {1, 2, 1, 1}; }
  int Gap() const override { return 1; }
};

S ArrangedText(const std::vector<forms::PlacedControl>& placed) {
  S text;
  for (const auto& [control, area] : placed) {
    text += control->FullName() + " " + std::to_string(area.left) + "," + std::to_string(area.top) + " " +
            std::to_string(area.width) + "x" + std::to_string(area.height) + "; ";
  }
  return text;
}

TEST(ArrangementTest, PartsShareTheRoom) {
  std::vector<S> log;
  const test::SmallForm form(log);
  const auto box = [&] { return forms::Item(form.cboValues); };
  const auto other = [&] { return forms::Item(form.txtTitle); };
  const auto option = [&] { return forms::Item(form.optType0); };
  const auto list = [&] { return forms::Item(form.lstOne).AtLeast(20, 4); };
  const struct {
    Layout layout;
    S least, placed;
  } cases[] = {
      {Row({box(), other()}), "21x4", "cboValues 0,13 10x4; txtTitle 11,13 10x4; "},
      {Row({box().Stretch(1), other().Stretch(2)}), "21x4", "cboValues 0,13 16x4; txtTitle 17,13 23x4; "},
      {Row({box(), Space(), other()}), "22x4", "cboValues 0,13 10x4; txtTitle 30,13 10x4; "},
      {Column({box(), other()}), "10x9", "cboValues 0,0 40x4; txtTitle 0,5 40x4; "},
      {Column({box(), list()}), "20x17", "cboValues 0,0 40x4; lstOne 0,5 40x25; "},
      {Column({box().Stretch(1), list()}), "20x17", "cboValues 0,0 40x17; lstOne 0,18 40x12; "},
      {Row({option(), list().Stretch(1)}), "31x12", "optType(0) 0,0 10x4; lstOne 11,0 29x30; "},
      {Grid(2, {box(), other().Stretch(1), option(), list()}), "31x17",
       "cboValues 0,0 10x4; txtTitle 11,0 29x4; optType(0) 0,15 10x4; lstOne 11,5 29x25; "},
      {Stack({forms::Item(form.imgBar), forms::Item(form.imgPie)}), "10x4",
       "imgBar 0,0 40x30; imgPie 0,0 40x30; "},
      {Framed(form.Frame1, other()), "12x7", "Frame1 0,0 40x30; txtTitle 1,2 38x27; "},
  };
  const PlainMeasures measures;
  for (const auto& [layout, least, placed] : cases) {
    const forms::Size size = forms::LeastSize(layout, measures);
    EXPECT_EQ(std::to_string(size.width) + "x" + std::to_string(size.height), least) << placed;
    EXPECT_EQ(ArrangedText(forms::Arrange(layout, measures, {0, 0, 40, 30})), placed);
  }
}

TEST(KeysTest, AHeldKeyPressesAButtonOnce) {
  using forms::Key;
  const struct {
    forms::KeyPress press;
    bool isInLines, isHeld;
  } cases[] = {{{Key::kEnter, false, false}, false, false}, {{Key::kEnter, false, true}, false, true},
               {{Key::kEnter, false, true}, true, false},   {{Key::kEscape, false, true}, true, true},
               {{Key::kOther, false, true}, false, false},  {{Key::kOther, true, true}, false, true}};
  for (const auto& [press, isInLines, isHeld] : cases) EXPECT_EQ(forms::IsHeldKey(press, isInLines), isHeld);
}

TEST(KeysTest, ArrowKeysMoveAroundTheEnabledOptions) {
  std::vector<S> log;
  test::SmallForm form(log);
  EXPECT_EQ(&form.optType0.Neighbor(true), &form.optType1);
  EXPECT_EQ(&form.optType1.Neighbor(true), &form.optType0);
  EXPECT_EQ(&form.optType0.Neighbor(false), &form.optType1);
  EXPECT_EQ(&form.optOther0.Neighbor(true), &form.optOther0) << "it has no other";
  form.optType1.SetEnabled(false);
  EXPECT_EQ(&form.optType0.Neighbor(true), &form.optType0);
  EXPECT_FALSE(form.optType0.IsTabStop());
  EXPECT_TRUE(form.optType1.IsTabStop()) << "it is selected";
  form.optType1.SetValue(false);
  EXPECT_TRUE(form.optType0.IsTabStop()) << "none is selected";
}

TEST(SecondPressTest, ASecondPressBelongsToTheFirst) {
  const forms::SecondPress::Reach reach = {500, 4};
  forms::SecondPress presses;
  EXPECT_FALSE(presses.Note({1000, 10, 10}, reach));
  EXPECT_TRUE(presses.Note({1499, 12, 8}, reach));
  EXPECT_FALSE(presses.Note({1999, 12, 8}, reach)) << "it comes too late";
  EXPECT_FALSE(presses.Note({2000, 17, 8}, reach)) << "it is too far away";
}

TEST(TypeableTest, CharactersThatCantBeTypedBecomeBlanks) {
  const struct {
    std::u16string text, allowed, typed;
  } cases[] = {{u"a\tb\x01", u"", u"a b "},
               {u"a\tb\r\n", u"\t\r\n", u"a\tb\r\n"},
               {u"\xD83D\xDE00", u"", u"\xD83D\xDE00"},
               {u"\xD83Dx\xDE00", u"", u" x "},
               {u"x\xD83D", u"", u"x "}};
  for (const auto& [text, allowed, typed] : cases) {
    std::u16string changed = text;
    forms::ReplaceUntypeable(changed, allowed);
    EXPECT_TRUE(changed == typed);
  }
}

}  // namespace
}  // namespace plotsmith

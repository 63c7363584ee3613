#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/FormPrinter.h"
#include "tests/support/SmallForm.h"

namespace plotsmith::cli {
namespace {

class FormPrinterTest : public ::testing::Test {
 protected:
  FormPrinterTest() {
    form_.txtTitle.UserType("Süd");
    form_.cboFormat.UserType("0 %");
    form_.txtNote.UserType("a\nb");
    form_.cboValues.UserChoose(1);
    form_.lstMany.UserSelect({0, 2});
    form_.chk3D.UserToggle(true);
    form_.grdRows.UserSelect({2});
    form_.lstOne.Clear();
  }
  std::vector<std::string> log_;
  test::SmallForm form_{log_};
};

TEST_F(FormPrinterTest, AFormIsPrintedAsItIsVisible) {
  std::ostringstream out;
  PrintForm(out, forms::StateOf(form_));
  EXPECT_EQ(out.str(), R"(frmSmall  A small form
Frame1  1. Title
  txtTitle    "Süd"
  txtNote     "a\nb"
fraType  Type
  optType(0)  ( ) Bar
  optType(1)  (o) Pie
optOther(0)   ( ) Alone
cboValues     Amount | >Cost | Amount
cboFormat     "0 %" of 0 | 0.0
lstOne        (no entries)
lstMany       >a b | #2 | >c\nd
chk3D         [x] 3-D
grdRows       (focus)
   Name    Type
   Sales   bar
  >Sales   pie
   "Cost"  bar
imgPie
cmdOff        [ Off ]  (off)
cmdCancel     [ Cancel ] Escape
cmdOK         [ OK ] Enter
)");
}

TEST_F(FormPrinterTest, ProgramsGetTheSameAsJson) {
  std::ostringstream out;
  PrintFormAsJson(out, forms::StateOf(form_));
  const auto json = nlohmann::json::parse(out.str());
  EXPECT_EQ(json["name"], "frmSmall");
  EXPECT_EQ(json["caption"], "A small form");
  ASSERT_EQ(json["controls"].size(), form_.Controls().size());
  const std::pair<int, const char*> cases[] = {
      {1,
       R"({"name": "txtTitle", "kind": "TextBox", "container": "Frame1", "accessibleName": "1. Title, text",
              "enabled": true, "visible": true, "focus": false, "backColor": 16777215, "text": "Süd"})"},
      {10, R"({"name": "lstMany", "kind": "ListBox", "container": "", "accessibleName": "lstMany",
               "enabled": true, "visible": true, "focus": false, "backColor": 16777215,
               "text": "c\nd", "list": ["a b", "#2", "c\nd"], "listIndex": 2, "selected": [0, 2]})"},
      {12, R"({"name": "grdRows", "kind": "VSFlexGrid", "container": "", "accessibleName": "grdRows",
               "enabled": true, "visible": true, "focus": true, "backColor": 16777215, "fixedRows": 1,
               "rows": [["Name", "Type"], ["Sales", "bar"], ["Sales", "pie"], ["\"Cost\"", "bar"]],
               "selected": [2]})"},
      {17, R"({"name": "cmdOK", "kind": "CommandButton", "container": "", "accessibleName": "OK",
               "enabled": true, "visible": true, "focus": false, "backColor": 2147483663, "caption": "&OK",
               "default": true, "cancel": false})"}};
  for (const auto& [place, control] : cases)
    EXPECT_EQ(json["controls"][place], nlohmann::json::parse(control));
}

}  // namespace
}  // namespace plotsmith::cli

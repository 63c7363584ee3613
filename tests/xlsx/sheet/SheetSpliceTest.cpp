#include <gtest/gtest.h>

#include "xlsx/package/PackageError.h"
#include "xlsx/sheet/SheetSplice.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

TEST(SheetSpliceTest, TheDrawingGoesWhereTheSchemaWantsIt) {
  const S drawing = "<drawing xmlns:r=\"R\" r:id=\"rId1\"/>";
  // "@" is where it goes
  for (const S& tail : {
           S("@</worksheet>"),
           S("<pageMargins left='0.7'/>@<legacyDrawing r:id='x'/><extLst/></worksheet>"),
           S("<pageSetup/>@<tableParts count='1'><tablePart/></tableParts></worksheet>"),
           S("<pageSetup/>@<AlternateContent><Choice><controls/></Choice></AlternateContent></worksheet>"),
           // what bears such a name further down is somebody else's
           S("<conditionalFormatting><cfRule><dataBar/><extLst><ext/></extLst></cfRule></"
             "conditionalFormatting>"
             "<pageMargins/>@</worksheet>"),
           S("<dataValidations><dataValidation><mc:AlternateContent><mc:Choice/></mc:AlternateContent>"
             "</dataValidation></dataValidations><pageMargins/>@<extLst/></worksheet>"),
           S("<customSheetViews><customSheetView><pageMargins/><drawing/><extLst/></customSheetView>"
             "</customSheetViews>@</worksheet>"),
           // and what isn't markup bears none
           S("<x a='>' b=\"<extLst>\"><![CDATA[<extLst>]]></x><!-- <extLst/> --><?p <extLst> "
             "?>@</worksheet>"),
           S("@</worksheet><!-- </worksheet> -->"),
       }) {
    const S head = "<worksheet><!-- <sheetData/> --><sheetData><row><c><v>1</v></c></row></sheetData>";
    const auto at = tail.find('@');
    S part = head + tail.substr(0, at) + tail.substr(at + 1);
    InsertDrawingLink(part, "R", "rId1");
    EXPECT_EQ(part, head + tail.substr(0, at) + drawing + tail.substr(at + 1));
  }
  S prefixed = "<x:worksheet><x:sheetData/><x:extLst/></x:worksheet>";
  InsertDrawingLink(prefixed, "R", "a&b");
  EXPECT_EQ(prefixed,
            "<x:worksheet><x:sheetData/><x:drawing xmlns:r=\"R\" r:id=\"a&amp;b\"/><x:extLst/>"
            "</x:worksheet>");
  for (S damaged : {"<worksheet/>", "<worksheet><sheetData>", "<worksheet><sheetData/><a>", ""}) {
    EXPECT_THROW(InsertDrawingLink(damaged, "R", "rId1"), PackageError);
  }
}

TEST(SheetSpliceTest, CellsAreReplacedWithWhatTheSheetSaysOfThem) {
  const std::pair<const char*, const char*> cases[] = {
      {"<w><!-- <dimension ref='A1'/> --><dimension q='>' ref = 'A1:B2' "
       "z='1'/><sheetData><row/></sheetData></w>",
       "<w><!-- <dimension ref='A1'/> --><dimension q='>' ref=\"B2:C3\" z='1'/>[]</w>"},
      {"<w><sheetData/><x><dimension ref='A1'/></x></w>", "<w>[]<x><dimension ref='A1'/></x></w>"}};
  for (const auto& [before, after] : cases) {
    S part = before;
    ReplaceSheetData(part, [](const S& prefix) { return "[" + prefix + "]"; }, {2, 2, 3, 3});
    EXPECT_EQ(part, after);
  }
}

TEST(SheetSpliceTest, ATabIsSelectedOrNot) {
  const S view = "<sheetViews><sheetView showGridLines=\"0\" workbookViewId=\"0\"/></sheetViews>";
  const S selected = "<sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>";
  struct Case {
    S before;
    bool select;
    S after;  ///< empty: stays as it is
  };
  const Case cases[] = {
      {"<w>" + view + "<sheetData/></w>", false, ""},
      {"<w>" + view + "<sheetData/></w>", true,
       "<w><sheetViews><sheetView tabSelected=\"1\" showGridLines=\"0\" workbookViewId=\"0\"/></sheetViews>"
       "<sheetData/></w>"},
      {"<w>" + selected + "<sheetData/></w>", true, ""},
      {"<w><sheetViews><sheetView a='>'\n tabSelected = 'true' "
       "workbookViewId='0'><pane/></sheetView></sheetViews>"
       "<sheetData/></w>",
       false,
       "<w><sheetViews><sheetView a='>' workbookViewId='0'><pane/></sheetView></sheetViews><sheetData/></w>"},
      {"<w><sheetViews><sheetView \"='\"/></sheetViews><sheetData/></w>", true,
       "<w><sheetViews><sheetView tabSelected=\"1\" \"='\"/></sheetViews><sheetData/></w>"},
      {"<w><sheetViews><sheetView tabSelected='0'/></sheetViews><sheetData/></w>", true,
       "<w><sheetViews><sheetView tabSelected=\"1\"/></sheetViews><sheetData/></w>"},
      {"<?xml version='1.0'?><w><sheetPr><tabColor/></sheetPr><dimension/><sheetFormatPr/><sheetData/></w>",
       true,
       "<?xml version='1.0'?><w><sheetPr><tabColor/></sheetPr><dimension/>" + selected +
           "<sheetFormatPr/><sheetData/></w>"},
      {"<x:w><x:sheetData/></x:w>", true,
       "<x:w><x:sheetViews><x:sheetView tabSelected=\"1\" workbookViewId=\"0\"/></x:sheetViews><x:sheetData/>"
       "</x:w>"},
      {"<w><sheetData/></w>", false, ""},
      {"<chartsheet><sheetViews><sheetView tabSelected=\"1\"/></sheetViews><drawing/></chartsheet>", false,
       "<chartsheet><sheetViews><sheetView/></sheetViews><drawing/></chartsheet>"}};
  for (const Case& c : cases) {
    S part = c.before;
    EXPECT_EQ(SelectTab(part, c.select), !c.after.empty()) << c.before;
    EXPECT_EQ(part, c.after.empty() ? c.before : c.after);
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

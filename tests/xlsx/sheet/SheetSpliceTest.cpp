#include <gtest/gtest.h>

#include "xlsx/package/PackageError.h"
#include "xlsx/sheet/SheetSplice.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

TEST(SheetSpliceTest, TheDrawingIsInsertedInTheOrderOfTheSchema) {
  const S drawing = "<drawing xmlns:r=\"R\" r:id=\"rId1\"/>";
  // "@" marks the position.
  for (const S& tail : {
           S("@</worksheet>"),
           S("<pageMargins left='0.7'/>@<legacyDrawing r:id='x'/><extLst/></worksheet>"),
           S("<pageSetup/>@<tableParts count='1'><tablePart/></tableParts></worksheet>"),
           S("<pageSetup/>@<AlternateContent><Choice><controls/></Choice></AlternateContent></worksheet>"),
           // Descendants with such a name belong to other elements.
           S("<conditionalFormatting><cfRule><dataBar/><extLst><ext/></extLst>"
             "</cfRule></conditionalFormatting><pageMargins/>@</worksheet>"),
           S("<dataValidations><dataValidation><mc:AlternateContent><mc:Choice/></mc:AlternateContent>"
             "</dataValidation></dataValidations><pageMargins/>@<extLst/></worksheet>"),
           S("<customSheetViews><customSheetView><pageMargins/><drawing/><extLst/></customSheetView>"
             "</customSheetViews>@</worksheet>"),
           // Text that isn't markup has no elements.
           S("<x a='>' b=\"<extLst>\"><![CDATA[<extLst>]]></x><!-- <extLst/> --><?p <extLst> "
             "?>@</worksheet>"),
           S("@</worksheet><!-- </worksheet> -->"),
       }) {
    const S head = "<worksheet><!-- <sheetData/> --><sheetData><row><c><v>1</v></c></row></sheetData>";
    const auto at = tail.find('@');
    S part = head + tail.substr(0, at) + tail.substr(at + 1);
    SetDrawingLink(part, "R", "rId1");
    EXPECT_EQ(part, head + tail.substr(0, at) + drawing + tail.substr(at + 1));
  }
  for (const char* behind : {"legacyDrawing", "legacyDrawingHF", "drawingHF", "picture", "oleObjects",
                             "controls", "webPublishItems", "tableParts", "extLst", "AlternateContent"}) {
    const S start = "<worksheet><sheetData/><pageMargins/>", end = "<" + S(behind) + "/></worksheet>";
    S part = start + end;
    SetDrawingLink(part, "R", "rId1");
    EXPECT_EQ(part, start + drawing + end);
  }
  // The elements of other drawings are removed.
  for (const S& old : {S("<drawing r:id='a'/>"), S("<x:drawing><!-- </x:drawing> --></x:drawing>"),
                       S("<drawing/><drawing><a></a><b/></drawing>")}) {
    const S start = "<worksheet><sheetData/><pageMargins/>", end = "<extLst><drawing/></extLst></worksheet>";
    S part = start + old + end;
    SetDrawingLink(part, "R", "rId1");
    EXPECT_EQ(part, start + drawing + end);
  }
  S prefixed = "<x:worksheet><x:sheetData/><x:extLst/></x:worksheet>";
  SetDrawingLink(prefixed, "R", "a&b");
  EXPECT_EQ(prefixed,
            "<x:worksheet><x:sheetData/><x:drawing xmlns:r=\"R\" r:id=\"a&amp;b\"/><x:extLst/>"
            "</x:worksheet>");
  for (S damaged : {"<worksheet/>", "<worksheet><sheetData>", "<worksheet><sheetData/><a>", ""}) {
    EXPECT_THROW(SetDrawingLink(damaged, "R", "rId1"), PackageError);
  }
}

TEST(SheetSpliceTest, CellsAreReplacedTogetherWithTheDimension) {
  const std::pair<const char*, const char*> cases[] = {
      {"<w><!-- <dimension ref='A1'/> --><dimension q='>' ref = 'A1:B2' "
       "z='1'/><sheetData><row/></sheetData></w>",
       "<w><!-- <dimension ref='A1'/> --><dimension q='>' ref=\"B2:C3\" z='1'/>[]</w>"},
      {"<w><sheetData/><x><dimension ref='A1'/></x></w>", "<w>[]<x><dimension ref='A1'/></x></w>"},
      {"<w><dimension a='1'/><sheetData><a/></sheetData\n><b/></w>", "<w><dimension a='1'/>[]<b/></w>"},
      {"<q:w><q:sheetData></q:sheetData></q:w>", "<q:w>[q:]</q:w>"}};
  for (const auto& [before, after] : cases) {
    S part = before;
    ReplaceSheetData(part, [](const S& prefix) { return "[" + prefix + "]"; }, {2, 2, 3, 3});
    EXPECT_EQ(part, after);
  }
}

TEST(SheetSpliceTest, ASettingOfTheViewIsChangedInPlace) {
  struct SettingCase {
    ViewSetting setting;
    bool value;
    S before, after;  ///< `after` is empty if the part doesn't change.
  };
  const S plain = "<w><sheetViews><sheetView workbookViewId='0'/></sheetViews><sheetData/></w>";
  const S noGrid =
      "<w><sheetViews><sheetView showGridLines=\"0\" workbookViewId='0'/></sheetViews><sheetData/></w>";
  const S pane =
      "<sheetView a='>' workbookViewId='0'><pane/><selection/></sheetView><sheetView workbookViewId='1'/>"
      "</sheetViews><sheetData/></w>";
  const SettingCase cases[] = {
      {kTabSelected, false, plain, ""},
      {kTabSelected, true, plain,
       "<w><sheetViews><sheetView tabSelected=\"1\" workbookViewId='0'/></sheetViews><sheetData/></w>"},
      {kTabSelected, true, noGrid,
       "<w><sheetViews><sheetView showGridLines=\"0\" tabSelected=\"1\" workbookViewId='0'/></sheetViews>"
       "<sheetData/></w>"},
      {kTabSelected, true, "<w><sheetViews><sheetView tabSelected='1'/></sheetViews><sheetData/></w>", ""},
      {kTabSelected, true, "<w><sheetViews><sheetView tabSelected='0'/></sheetViews><sheetData/></w>",
       "<w><sheetViews><sheetView tabSelected=\"1\"/></sheetViews><sheetData/></w>"},
      {kTabSelected, true, "<w><sheetViews><sheetView \"='\"/></sheetViews><sheetData/></w>",
       "<w><sheetViews><sheetView tabSelected=\"1\" \"='\"/></sheetViews><sheetData/></w>"},
      {kTabSelected, false, "<w><sheetData/></w>", ""},
      // A view behind the cells is none.
      {kTabSelected, true, "<w><sheetData/><sheetView tabSelected=\"1\"/></w>",
       "<w><sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>"
       "<sheetData/><sheetView tabSelected=\"1\"/></w>"},
      {kTabSelected, false,
       "<chartsheet><sheetViews><sheetView tabSelected=\"1\"/></sheetViews><drawing/></chartsheet>",
       "<chartsheet><sheetViews><sheetView/></sheetViews><drawing/></chartsheet>"},
      // A setting that is on by default is written when it is off.
      {kShowGridLines, true, plain, ""},
      {kShowGridLines, true, "<w><sheetData/></w>", ""},
      {kShowGridLines, false, plain, noGrid},
      {kShowGridLines, false, noGrid, ""},
      {kShowGridLines, true, noGrid, plain},
      {kShowGridLines, false,
       "<w><sheetViews><sheetView showGridLines = 'true' workbookViewId='0'/></sheetViews><sheetData/></w>",
       noGrid},
      {kShowHeadings, false, noGrid,
       "<w><sheetViews><sheetView showGridLines=\"0\" showRowColHeaders=\"0\" workbookViewId='0'/>"
       "</sheetViews><sheetData/></w>"},
      {kShowHeadings, true,
       "<w><sheetViews><sheetView showRowColHeaders='false' "
       "workbookViewId='0'/></sheetViews><sheetData/></w>",
       plain},
      // The first of several views belongs to the first window.
      {kShowHeadings, false, "<w><sheetViews>" + pane,
       "<w><sheetViews><sheetView a='>' showRowColHeaders=\"0\"" + pane.substr(S("<sheetView a='>'").size())},
      // A sheet without a view gets one before the elements that follow it.
      {kTabSelected, true,
       "<?xml version='1.0'?><w><sheetPr><tabColor/></sheetPr><dimension/><sheetFormatPr/><sheetData/></w>",
       "<?xml version='1.0'?><w><sheetPr><tabColor/></sheetPr><dimension/><sheetViews><sheetView "
       "tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews><sheetFormatPr/><sheetData/></w>"},
      {kShowGridLines, false, "<w><dimension ref='A1'/><cols><col/></cols><sheetData/></w>",
       "<w><dimension ref='A1'/><sheetViews><sheetView showGridLines=\"0\" workbookViewId=\"0\"/>"
       "</sheetViews><cols><col/></cols><sheetData/></w>"},
      {kShowGridLines, false, "<x:w><x:sheetData/></x:w>",
       "<x:w><x:sheetViews><x:sheetView showGridLines=\"0\" workbookViewId=\"0\"/></x:sheetViews>"
       "<x:sheetData/></x:w>"},
      {kShowHeadings, true,
       "<x:w><x:sheetViews><x:sheetView showRowColHeaders=\"0\"/></x:sheetViews><x:sheetData/></x:w>",
       "<x:w><x:sheetViews><x:sheetView/></x:sheetViews><x:sheetData/></x:w>"}};
  for (const SettingCase& c : cases) {
    S part = c.before;
    EXPECT_EQ(SetViewSetting(part, c.setting, c.value), !c.after.empty()) << c.before;
    EXPECT_EQ(part, c.after.empty() ? c.before : c.after);
  }
  for (S damaged : {"", "<worksheet/>", "<chartsheet><drawing/></chartsheet>"}) {
    EXPECT_THROW(SetViewSetting(damaged, kTabSelected, true), PackageError);
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

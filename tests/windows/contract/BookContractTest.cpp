#include "tests/windows/contract/PortContract.h"
#include "xlsx/Workbook.h"

namespace plotsmith::contract {

TEST_P(PortContract, Application) {
  SAYS(Excel().ActiveWorkbook(), "an object");
  SAYS(Excel().ActiveChart(), "Nothing");
  SAYS(Excel().ActiveWindow(), "an object");
  SAYS(Excel().Version(), R"("16.0")");
  SAYS(Excel().StandardFont(), R"("Calibri")");
  SAYS(Excel().StandardFontSize(), "11");
  SAYS(Excel().SetScreenUpdating(false), "done");
  SAYS(Excel().ScreenUpdating(), "False");
  SAYS(Excel().SetInteractive(false), "done");
  SAYS(Excel().Interactive(), "False");
  SAYS(Excel().SetCalculation(excel::xlCalculationManual), "done");
  SAYS(Excel().Calculation(), "-4135");
  SAYS(Excel().SetDisplayAlerts(false), "done");
}

TEST_P(PortContract, Macros) {
  std::vector<std::string> heard;
  Host().application->DefineMacro("Told", [&](const auto& arguments) { heard.push_back(Words(arguments)); });
  SAYS(Excel().Run("Told", {}), "done");
  SAYS(Excel().Run("Told", {"VEX_Chart1"}), "done");
  const std::vector<excel::Variant> all = {
      excel::Variant(),           runtime::kNull, true, 7, 2.5, excel::Variant::Date{45000.25}, "ä東🜚",
      excel::Variant::Error{2042}};
  SAYS(Excel().Run("Told", all), "done");
  SAYS(Excel().Run("NotThere", {}),
       "error 1004: Cannot run the macro 'NotThere'. The macro may not be available in this workbook or all "
       "macros may be disabled.");
  EXPECT_EQ(heard, (std::vector<std::string>{"", R"("VEX_Chart1")", Words(all)}));
}

TEST_P(PortContract, Workbook) {
  SAYS(Book()->ProtectStructure(), "False");
  SAYS(Book()->MultiUserEditing(), "False");
  SAYS(Book()->BuiltinDocumentProperties("application name")->Value(),
       "error 1004: Unable to get the Value property of the DocumentProperty class");
  SAYS(Book()->BuiltinDocumentProperties("Nonsense"), "error 5: Invalid procedure call or argument");
  SAYS(Book()->ActiveSheet()->Name(), R"("Sheet1")");
  SAYS(Book()->Colors(3), "255");
  SAYS(Book()->SetColors(3, 0x123456), "done");
  SAYS(Book()->Colors(3), "1193046");
  SAYS(Book()->Colors(57), "error 9: Subscript out of range");
  SAYS(Excel().ActiveWindow()->SetDisplayGridlines(false), "done");
  SAYS(Excel().ActiveWindow()->SetDisplayHeadings(false), "done");
}

TEST_P(PortContract, Sheets) {
  SAYS(Book()->Sheets()->Count(), "1");
  SAYS(Book()->Sheets()->Add(nullptr, Book()->Sheets()->Item(1))->Name(), R"("Sheet2")");
  SAYS(Book()->Sheets()->Add(Book()->Sheets()->Item(1), nullptr)->Name(), R"("Sheet3")");
  SAYS(Book()->Sheets()->Add(nullptr, nullptr)->Name(), R"("Sheet4")");
  SAYS(Book()->Sheets()->Item("sheet1")->Name(), R"("Sheet1")");
  SAYS(Book()->Sheets()->Item("Nowhere"), "error 9: Subscript out of range");
  SAYS(Book()->Sheets()->Item(9), "error 9: Subscript out of range");
  SAYS(Book()->Worksheets()->Count(), "4");
  SAYS(Book()->Worksheets()->Item("Sheet1")->Name(), R"("Sheet1")");
  SAYS(Book()->Worksheets()->Item("Nowhere"), "error 9: Subscript out of range");
  const auto sheet = Book()->Sheets()->Item("Sheet2");
  SAYS(sheet->SetName("Übersicht ä"), "done");
  SAYS(sheet->SetName("a/b"), "error 1004: You typed an invalid name for a sheet or chart.");
  SAYS(sheet->Name(), R"("Übersicht ä")");
  SAYS(sheet->SetVisible(excel::xlSheetVeryHidden), "done");
  SAYS(sheet->Visible(), "2");
  SAYS(Book()->Sheets()->Item("Sheet1")->Activate(), "done");
  SAYS(Book()->ActiveSheet()->Name(), R"("Sheet1")");
  SAYS(sheet->Delete(), "done");
  SAYS(sheet->Name(), "error 1004: Application-defined or object-defined error");
  SAYS(Book()->Worksheets()->Item("Sheet3")->Activate(), "done");
  SAYS(Book()->Worksheets()->Item("Sheet3")->SetVisible(excel::xlSheetVisible), "done");
  SAYS(Book()->Worksheets()->Item("Sheet3")->Visible(), "-1");
  SAYS(Book()->Worksheets()->Item("Sheet3")->SetName("Third"), "done");
  SAYS(Book()->Worksheets()->Item("Third")->Delete(), "done");
}

TEST_P(PortContract, CellsOfASheet) {
  std::string scratch;
  const auto sheet = Sheet();
  SAYS(sheet->CellValueAt(1, 1).ToVariant(), R"("Fruit")");
  SAYS(sheet->CellValueAt(2, 2).ToVariant(), "3");
  SAYS(sheet->CellValueAt(3, 3).ToVariant(), "8.25");
  SAYS(sheet->CellValueAt(9, 9).ToVariant(), "Empty");
  SAYS(sheet->CellValueAt(0, 1).ToVariant(), "error 1004: Application-defined or object-defined error");
  SAYS(std::string(sheet->CellTextAt(3, 3, scratch)), R"("8.25")");
  SAYS(std::string(sheet->CellTextAt(4, 1, scratch)), R"("plums")");
  SAYS(std::string(sheet->CellTextAt(5, 1, scratch)), R"("")");
  SAYS(sheet->NextRowAt(4, 1), "0");
  SAYS(sheet->NextRowAt(1, 1), "2");
  SAYS(sheet->SetCellValueAt(2, 2, true), "done");
  SAYS(sheet->CellValueAt(2, 2).ToVariant(), "True");
  SAYS(sheet->SetCellValueAt(2, 2, "12"), "done");
  SAYS(sheet->CellValueAt(2, 2).ToVariant(), "12");
  SAYS(sheet->SetCellValueAt(2, 2, "'12"), "done");
  SAYS(sheet->CellValueAt(2, 2).ToVariant(), R"("12")");
  SAYS(sheet->SetCellValueAt(2, 2, excel::Variant()), "done");
  SAYS(sheet->CellValueAt(2, 2).ToVariant(), "Empty");
  SAYS(sheet->SetCellValueAt(2, 2, "#N/A"), "done");
  SAYS(sheet->CellValueAt(2, 2).ToVariant(), "CVErr(2042)");
  SAYS(sheet->SetCellValueAt(2, 2, "=1+1"), "done");
}

TEST_P(PortContract, Ranges) {
  const auto range = Sheet()->Range("$A$1", "$C$4");
  SAYS(range->Row(), "1");
  SAYS(range->Column(), "1");
  SAYS(range->Count(), "12");
  SAYS(range->Rows()->Count(), "4");
  SAYS(range->Columns()->Count(), "3");
  SAYS(range->Address(), R"("$A$1:$C$4")");
  SAYS(range->Value(), R"("Fruit")");
  SAYS(range->Text(), R"("Fruit")");
  SAYS(range->Cells(2, 3)->Address(), R"("$C$2")");
  SAYS(range->Cells(2, 3)->Value(), "4.5");
  SAYS(range->Cells(0, 1), "error 1004: Application-defined or object-defined error");
  SAYS(Sheet()->Cells(3, 3)->SetValue(45000), "done");
  SAYS(Sheet()->Cells(3, 3)->SetNumberFormat("dd/mm/yyyy"), "done");
  SAYS(Sheet()->Cells(3, 3)->Value(), "3/15/2023");
  SAYS(Sheet()->Cells(3, 3)->Text(), R"("15/03/2023")");
  SAYS(Sheet()->Cells(3, 3)->SetNumberFormat("[abc"),
       "error 1004: Unable to set the NumberFormat property of the Range class");
  SAYS(Sheet()->UsedRange()->Address(), R"("$A$1:$C$4")");
  SAYS(Sheet()->Range("nowhere", "$C$4"), "error 1004: Method 'Range' of object '_Worksheet' failed");
  SAYS(Sheet()->Rows(2)->Insert(), "done");
  SAYS(Sheet()->Rows(2)->Address(), R"("$2:$2")");
  SAYS(Sheet()->Rows(2)->Delete(excel::xlShiftUp), "done");
  SAYS(range->Delete(excel::xlShiftUp), "error 1004: Only whole rows can be inserted or deleted.");
  SAYS(Sheet()
           ->Range("$A$1", "$C$4")
           ->Sort(Sheet()->Cells(2, 2), excel::xlDescending, excel::xlYes, 1, false, excel::xlTopToBottom),
       "done");
  SAYS(Sheet()->Cells(2, 1)->Value(), R"("pears")");
  SAYS(Sheet()
           ->Range("$A$1", "$C$4")
           ->Sort(nullptr, excel::xlDescending, excel::xlYes, 1, false, excel::xlTopToBottom),
       "error 1004: The sort reference is not valid. Make sure that it's within the data you want to sort, "
       "and the first Sort By box isn't the same or blank.");
  SAYS(range->Activate(), "done");
  SAYS(range->Clear(), "done");
  SAYS(Sheet()->UsedRange()->Address(), R"("$A$1")");
}

TEST_P(PortContract, Names) {
  Host().application->Book().DefinedNames().Define("VEX_TableRange_Fruit", "Sheet1!$A$2:$C$4");
  Host().application->Book().DefinedNames().Define("Nothing", "1+1");
  SAYS(Book()->Names()->Count(), "2");
  SAYS(Book()->Names()->Item(1)->Name(), R"("Nothing")");
  SAYS(Book()->Names()->Item(3), "error 1004: Application-defined or object-defined error");
  SAYS(Book()->Names()->Item("vex_tablerange_fruit")->RefersTo(), R"("=Sheet1!$A$2:$C$4")");
  SAYS(Book()->Names()->Item("VEX_TableRange_Fruit")->RefersToRange()->Address(), R"("$A$2:$C$4")");
  SAYS(Book()->Names()->Item("Nothing")->RefersToRange(),
       "error 1004: Method 'RefersToRange' of object 'Name' failed");
  SAYS(Book()->Names()->Item("Nowhere"), "error 1004: Application-defined or object-defined error");
}

}  // namespace plotsmith::contract

#include "tests/windows/contract/PortContract.h"

namespace plotsmith::contract {

TEST_P(PortContract, Shapes) {
  const auto shapes = Sheet()->Shapes();
  SAYS(shapes->Count(), "1");
  SAYS(shapes->Item(1)->Type(), "3");
  SAYS(shapes->Item("chart 1")->Name(), R"("Chart 1")");
  SAYS(shapes->Item(2), "error 1004: The item with the specified name wasn't found.");
  SAYS(shapes->Item("Nowhere"), "error 1004: The item with the specified name wasn't found.");
  const auto shape = shapes->AddTextbox(excel::msoTextOrientationHorizontal, 10.5, 20, 180, 120);
  SAYS(shape->Type(), "17");
  SAYS(shape->Name(), R"("TextBox 3")");
  SAYS(shape->SetName("VEX_Legend"), "done");
  SAYS(shape->SetName(""), "error 1004: The specified value is out of range.");
  SAYS(shape->Name(), R"("VEX_Legend")");
  SAYS(shape->SetAlternativeText("VEX_Chart1"), "done");
  SAYS(shape->AlternativeText(), R"("VEX_Chart1")");
  SAYS(shape->Left(), "10.5");
  SAYS(shape->SetLeft(12), "done");
  SAYS(shape->Left(), "12");
  SAYS(shape->SetTop(-5), "done");
  SAYS(shape->Top(), "0");
  SAYS(shape->SetLockAspectRatio(true), "done");
  SAYS(shape->SetWidth(90), "done");
  SAYS(shape->Width(), "90");
  SAYS(shape->Height(), "60");
  SAYS(shape->SetHeight(-1), "error 1004: The specified value is out of range.");
  SAYS(shape->SetHeight(30), "done");
  SAYS(shape->SetAutoShapeType(excel::msoShapeOval), "done");
  SAYS(shape->SetAutoShapeType(-7), "error 1004: The specified value is out of range.");
  SAYS(shape->Fill()->ForeColor()->SetRGB(255), "done");
  SAYS(shape->Fill()->BackColor()->SetRGB(65280), "done");
  SAYS(shape->Line()->SetVisible(true), "done");
  SAYS(shape->Line()->SetWeight(1.5), "done");
  SAYS(shape->Line()->SetWeight(1585), "error 1004: The specified value is out of range.");
  SAYS(shape->Line()->ForeColor()->SetRGB(16711680), "done");
  SAYS(shape->Line()->BackColor()->SetRGB(255), "done");
  SAYS(shape->Line()->SetVisible(false), "done");
  SAYS(shape->Delete(), "done");
  SAYS(shape->SetName("gone"), "error 1004: The object has been deleted.");
}

TEST_P(PortContract, TextOfShapes) {
  const auto shape = Sheet()->Shapes()->AddShape(excel::msoShapeRectangle, 0, 0, 100, 50);
  const auto frame = shape->TextFrame();
  SAYS(frame->Characters()->SetText("first\nsecond"), "done");
  SAYS(frame->Characters()->Text(), R"("first" & vbLf & "second")");
  SAYS(frame->Characters(7)->Text(), R"("second")");
  SAYS(frame->Characters(1, 3)->Text(), R"("fir")");
  SAYS(frame->Characters(1, 0)->Text(), R"("")");
  SAYS(frame->Characters(0)->Text(), "error 1004: Application-defined or object-defined error");
  SAYS(frame->Characters(99)->Insert("\nthird"), "done");
  SAYS(frame->Characters()->Text(), R"("first" & vbLf & "second" & vbLf & "third")");
  SAYS(frame->Characters(1, 5)->Font()->SetBold(true), "done");
  SAYS(frame->Characters()->Font()->FontStyle(), "Null");
  SAYS(frame->SetHorizontalAlignment(excel::xlHAlignLeft), "done");
  SAYS(frame->SetVerticalAlignment(excel::xlVAlignTop), "done");
  SAYS(frame->SetMarginTop(1.5), "done");
  SAYS(frame->SetMarginTop(-1), "error 1004: The specified value is out of range.");
  SAYS(shape->TextFrame2()->SetWordWrap(false), "done");
  SAYS(shape->TextFrame2()->SetAutoSize(excel::msoAutoSizeShapeToFitText), "done");
  SAYS(shape->TextFrame2()->SetAutoSize(9), "error 1004: The specified value is out of range.");
  SAYS(shape->TextFrame2()->SetMarginTop(0), "done");
  SAYS(Sheet()->Shapes()->Item(1)->TextFrame()->Characters()->SetText("on a chart's frame"),
       "error 1004: The specified value is out of range.");
}

TEST_P(PortContract, GroupsOfShapes) {
  const auto shapes = Chart()->Shapes();
  SAYS(shapes->Count(), "0");
  shapes->AddTextbox(excel::msoTextOrientationHorizontal, 0, 0, 50, 20)->SetName("VEX_L1");
  shapes->AddShape(excel::msoShapeRectangle, 60, 0, 10, 10)->SetName("VEX_LS_1");
  SAYS(shapes->Range({"VEX_L1", "Nowhere"}), "error 1004: The item with the specified name wasn't found.");
  SAYS(shapes->Range({}), "error 1004: The specified value is out of range.");
  const auto both = shapes->Range({"VEX_L1", "VEX_LS_1"});
  SAYS(both->Name(), "error 1004: The specified value is out of range.");
  SAYS(both->Group()->SetName("VEX_Legend"), "done");
  SAYS(shapes->Count(), "1");
  SAYS(shapes->Item(1)->Type(), "6");
  const auto legend = shapes->Range({"VEX_Legend"});
  SAYS(legend->Name(), R"("VEX_Legend")");
  SAYS(legend->Width(), "70");
  SAYS(legend->Height(), "20");
  SAYS(legend->SetLeft(30), "done");
  SAYS(legend->SetTop(40), "done");
  SAYS(shapes->Item("VEX_Legend")->Left(), "30");
}

}  // namespace plotsmith::contract

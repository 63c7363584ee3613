#include "tests/support/SmallForm.h"

namespace plotsmith::test {

SmallForm::SmallForm(std::vector<std::string>& log, const char* name) : Form(name), log_(log) {
  SetCaption("A small form");
  txtTitle.SetMaxLength(5);
  txtNote.SetMultiLine(true);
  optType1.SetValue(true);
  for (const char* text : {"Amount", "Cost", "Amount"}) cboValues.AddItem(text);
  for (const char* text : {"0", "0.0"}) cboFormat.AddItem(text);
  for (const char* text : {"East", "West"}) lstOne.AddItem(text);
  for (const char* text : {"a b", "#2", "c\r\nd"}) lstMany.AddItem(text);
  grdRows.SetRows(4);
  const char* cells[4][2] = {{"Name", "Type"}, {"Sales", "bar"}, {"Sales", "pie"}, {"\"Cost\"", "bar"}};
  for (int row = 0; row < 4; ++row) {
    for (int col = 0; col < 2; ++col) grdRows.SetTextMatrix(row, col, cells[row][col]);
  }
  imgBar.SetVisible(false);
  cmdOff.SetEnabled(false);
  cmdCancel.SetCancel(true);
  cmdOK.SetDefault(true);
  for (forms::Control* control : Controls()) {
    control->GotFocus = Logged(*control, "got-focus");
    control->Validate = Logged(*control, "validate");
  }
  LogClicks(optType0, optType1, optOther0, cboValues, cboFormat, lstOne, lstMany, chk3D, grdRows);
  grdRows.DblClick = Logged(grdRows, "double-click");
  grdRows.AfterSelChange = Logged(grdRows, "after-selection-change");
  cmdOK.Click = [this] {
    log_.push_back("cmdOK click");
    OnOK();
  };
  cmdCancel.Click = [this] { Unload(); };
}

void SmallForm::Form_Activate() {
  log_.push_back("activate");
  OnActivate();
}

forms::Event SmallForm::Logged(const forms::Control& control, const std::string& event) {
  return [this, line = control.FullName() + " " + event] { log_.push_back(line); };
}

}  // namespace plotsmith::test

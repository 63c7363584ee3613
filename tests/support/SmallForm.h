#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "forms/Lists.h"
#include "forms/ModalLoop.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "forms/VSFlexGrid.h"
#include "forms/script/ScriptPlayer.h"

namespace plotsmith::test {

/// A form with a control of each kind, which records its events.
class SmallForm : public forms::Form {
 public:
  explicit SmallForm(std::vector<std::string>& log, const char* name = "frmSmall");

  forms::Frame Frame1{*this, "Frame1", nullptr, "1. Title"};
  forms::TextBox txtTitle{*this, "txtTitle", &Frame1};
  forms::TextBox txtNote{*this, "txtNote", &Frame1};
  forms::Frame fraType{*this, "fraType", nullptr, "Type"};
  forms::OptionButton optType0{*this, "optType", 0, &fraType, "Bar"};
  forms::OptionButton optType1{*this, "optType", 1, &fraType, "Pie"};
  forms::OptionButton optOther0{*this, "optOther", 0, nullptr, "Alone"};
  forms::ComboBox cboValues{*this, "cboValues", nullptr, forms::ComboStyle::kDropDownList};
  forms::ComboBox cboFormat{*this, "cboFormat", nullptr, forms::ComboStyle::kDropDownCombo};
  forms::ListBox lstOne{*this, "lstOne", nullptr, forms::MultiSelect::kNone};
  forms::ListBox lstMany{*this, "lstMany", nullptr, forms::MultiSelect::kExtended};
  forms::CheckBox chk3D{*this, "chk3D", nullptr, "3-&D"};
  forms::VSFlexGrid grdRows{*this, "grdRows", nullptr, forms::MultiSelect::kExtended, 2, 1};
  forms::Image imgBar{*this, "imgBar", nullptr};
  forms::Image imgPie{*this, "imgPie", nullptr};
  forms::CommandButton cmdOff{*this, "cmdOff", nullptr, "Off"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", nullptr, "Cancel"};
  forms::CommandButton cmdOK{*this, "cmdOK", nullptr, "&OK"};

  /// Called after a press of cmdOK was recorded.
  std::function<void()> OnOK = [] {};
  /// Called after Form_Activate was recorded.
  std::function<void()> OnActivate = [] {};

 protected:
  void Form_Load() override { log_.push_back("load"); }
  void Form_Activate() override;
  void Form_Deactivate() override { log_.push_back("deactivate"); }
  void Form_Unload() override { log_.push_back("unload"); }

 private:
  forms::Event Logged(const forms::Control& control, const std::string& event);
  template <class... Kinds>
  void LogClicks(Kinds&... controls) {
    ((controls.Click = Logged(controls, "click")), ...);
  }

  std::vector<std::string>& log_;
};

}  // namespace plotsmith::test

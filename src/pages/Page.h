#pragma once

#include <cstdint>
#include <string>

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "pages/Navigation.h"

namespace plotsmith {

/// The five buttons at the foot of a page, in tab order.
struct WizardButtons {
  explicit WizardButtons(forms::Form& oForm);

  forms::CommandButton cmdHelp;
  forms::CommandButton cmdCancel;
  forms::CommandButton cmdBack;
  forms::CommandButton cmdNext;
  forms::CommandButton cmdFinish;
};

/// One page of the wizard: what all pages have in common. A page judges its own input, writes it into
/// `oChartDoc` and asks the controller for the next move.
class Page : public forms::Form {
 public:
  /// Judges the input. If all of it is valid, stores it in `oChartDoc` and answers True; else shows one
  /// message and answers False, with nothing written. It works on a page that was loaded but never shown.
  virtual bool ValidSelections() { return true; }

 protected:
  /// The caption is the product's title and `sTitle`; `lOrigin` is one of `origin`.
  Page(const char* sName, const char* sTitle, Navigation& oNavigation, std::int32_t lOrigin);

  /// Fills the controls, after fonts and caption are set.
  virtual void FillPage() = 0;
  /// The topic of the page in the help file.
  virtual std::int32_t HelpTopic() const = 0;
  /// Stores the input without judging it, for the way back.
  virtual void UpdateForBack() {}
  /// The control that a message is about; null for a message that is about none.
  virtual forms::Control* FocusAfter(const std::string& /*sMessage*/) { return nullptr; }

  /// Shows a message, and moves the focus to the control that it is about. An empty text shows the one that
  /// is pending. On a page that isn't shown yet the message becomes the pending one.
  void DisplayMessage(const std::string& sMessage);
  void PSJumpToStep(std::int32_t lStep, Page* oPage) { oNavigation_.PSJumpToStep(lStep, lOrigin_, oPage); }
  void ShowHelp() const;
  /// Gives the buttons what they do on every page.
  void WireButtons(WizardButtons& oButtons);

  void Form_Load() final;
  void Form_Activate() override;
  void Form_Unload() override;

 private:
  std::string sTitle_;
  Navigation& oNavigation_;
  std::int32_t lOrigin_;
};

}  // namespace plotsmith

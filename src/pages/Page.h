#pragma once

#include <cstdint>
#include <string>

#include "forms/Buttons.h"
#include "forms/Form.h"
#include "pages/Navigation.h"

namespace plotsmith {

/// The five buttons at the bottom of a page, in tab order.
struct WizardButtons {
  /// Makes the buttons on a form.
  explicit WizardButtons(forms::Form& oForm);

  /// The buttons.
  ///@{
  forms::CommandButton cmdHelp;
  forms::CommandButton cmdCancel;
  forms::CommandButton cmdBack;
  forms::CommandButton cmdNext;
  forms::CommandButton cmdFinish;
  ///@}
};

/// The base class of the wizard's pages. A page checks its input, writes it to `oChartDoc` and asks the
/// controller for the next move.
class Page : public forms::Form {
 public:
  /// Checks the input. If it is valid, stores it in `oChartDoc` and returns true. Otherwise shows one
  /// message, stores nothing and returns false. This also works on a page that was loaded but never shown.
  virtual bool ValidSelections() { return true; }

 protected:
  /// Makes a page. The caption consists of the product's title and `sTitle`. `lOrigin` is a constant of
  /// `origin`.
  Page(const char* sName, const char* sTitle, Navigation& oNavigation, std::int32_t lOrigin);

  /// Fills the controls. Fonts and caption are already set.
  virtual void FillPage() = 0;
  /// Returns the number of the page's topic in the help file.
  virtual std::int32_t HelpTopic() const = 0;
  /// Stores the input without a check, for Back.
  virtual void UpdateForBack() {}
  /// Returns the control that a message concerns, or null if there is none.
  virtual forms::Control* FocusAfter(const std::string& /*sMessage*/) { return nullptr; }

  /// Shows a message and moves the focus to the control that it concerns. An empty text shows the pending
  /// message. On a page that isn't shown yet, the message becomes the pending message.
  void DisplayMessage(const std::string& sMessage);
  /// Asks the controller for a move from this page. `lStep` is a constant of `step`. `oPage`, if given, is
  /// unloaded first.
  void PSJumpToStep(std::int32_t lStep, Page* oPage) { oNavigation_.PSJumpToStep(lStep, lOrigin_, oPage); }
  /// Opens the help at the page's topic.
  void ShowHelp() const;
  /// Connects the buttons with their actions, which are the same on every page.
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

#include "pages/Page.h"

#include "common/App.h"
#include "common/Intl.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "pages/EventProcedure.h"

namespace plotsmith {

WizardButtons::WizardButtons(forms::Form& oForm)
    : cmdHelp(oForm, "cmdHelp", nullptr, "&Help"),
      cmdCancel(oForm, "cmdCancel", nullptr, "Cancel"),
      cmdBack(oForm, "cmdBack", nullptr, "< &Back"),
      cmdNext(oForm, "cmdNext", nullptr, "&Next >"),
      cmdFinish(oForm, "cmdFinish", nullptr, "&Finish") {
  cmdCancel.SetCancel(true);
}

Page::Page(const char* sName, const char* sTitle, Navigation& oNavigation, std::int32_t lOrigin)
    : Form(sName), sTitle_(sTitle), oNavigation_(oNavigation), lOrigin_(lOrigin) {}

void Page::DisplayMessage(const std::string& sMessage) {
  const std::string sText = sMessage.empty() ? sPendingMessage : sMessage;
  if (!Visible()) {
    sPendingMessage = sMessage;
    return;
  }
  if (sText.empty()) return;
  ShowMessage(sText);
  forms::Control* const oControl = FocusAfter(sText);
  if (oControl != nullptr && oControl->Obstacle().empty()) oControl->SetFocus();
}

void Page::ShowHelp() const { App.Desktop->ShowHelp(hWnd, App.HelpFile, HelpTopic()); }

void Page::WireButtons(WizardButtons& oButtons) {
  const auto onceValid = [this](std::int32_t lStep) {
    return EventProcedure([this, lStep] {
      if (ValidSelections()) PSJumpToStep(lStep, this);
    });
  };
  oButtons.cmdNext.Click = onceValid(step::kNext);
  oButtons.cmdFinish.Click = onceValid(step::kFinish);
  oButtons.cmdBack.Click = EventProcedure([this] {
    UpdateForBack();
    PSJumpToStep(step::kPrevious, this);
  });
  oButtons.cmdCancel.Click = EventProcedure([this] { Unload(); });
  oButtons.cmdHelp.Click = EventProcedure([this] { ShowHelp(); });
}

void Page::Form_Load() {
  RunEventProcedure([this] {
    ApplyLocaleFontsToForm(*this);
    SetCaption(std::string(kProductTitle) + " - " + sTitle_);
    FillPage();
  });
}

void Page::Form_Activate() {
  RunEventProcedure([this] { DisplayMessage(""); });
}

// While the controller changes pages, kEnd has no effect.
void Page::Form_Unload() {
  RunEventProcedure([this] { PSJumpToStep(step::kEnd, nullptr); });
}

}  // namespace plotsmith

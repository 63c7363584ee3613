#include "pages/LayoutPage.h"

#include <array>

#include "common/Documents.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "runtime/Strings.h"

namespace plotsmith {
namespace {

constexpr std::size_t kLongestTitle = 255;
constexpr double kTitleSize = 14;  // points

/// Returns the first three letters of a control's name, which indicate its kind.
std::string PrefixOf(const forms::Control& oControl) { return runtime::UCase(oControl.Name().substr(0, 3)); }

bool HasMarkColor(const std::string& sPrefix) {
  static constexpr std::array<std::string_view, 4> kMarked = {"FRA", "OPT", "CHK", "LBL"};
  return ArrayContains(sPrefix, kMarked);
}

std::vector<std::string> NamesOf(const dom::IXMLDOMElement& oTable, const char* sKind) {
  std::vector<std::string> aNames;
  for (const auto& oColumn : oTable.selectNodes(sKind)) aNames.push_back(GetAttributeText(oColumn, "name"));
  return aNames;
}

bool TakesInput(const forms::Control& oControl) {
  return dynamic_cast<const forms::TextBox*>(&oControl) != nullptr ||
         dynamic_cast<const forms::EntryList*>(&oControl) != nullptr ||
         dynamic_cast<const forms::CheckBox*>(&oControl) != nullptr ||
         dynamic_cast<const forms::OptionButton*>(&oControl) != nullptr;
}

}  // namespace

LayoutPage::LayoutPage(const char* sName, Navigation& oNavigation)
    : Page(sName, "Chart Layout", oNavigation, origin::kLayout) {
  txtTitle.SetMaxLength(kLongestTitle);
  txtTitle.SetAlignment(forms::Alignment::kCenter);
  txtTitle.Font().Size = kTitleSize;
}

bool LayoutPage::ValidSelections() {
  PrepareSelections();
  const std::string sFault = FirstFault();
  if (!sFault.empty()) {
    DisplayMessage(sFault);
    return false;
  }
  UpdateChartMetadata();
  return true;
}

void LayoutPage::LoadColumnNames() {
  const auto oTable = colTables->Item(sTableID).selectSingleNode("table");
  colLabelColumns = NamesOf(oTable, "label-column");
  colNumberColumns = NamesOf(oTable, "number-column");
}

void LayoutPage::WireLayout(WizardButtons& oButtons, bool bHelpUnmarks) {
  WireButtons(oButtons);
  oButtons.cmdNext.SetDefault(true);
  for (forms::Control* oControl : Controls()) {
    if (!TakesInput(*oControl)) continue;
    oControl->GotFocus = EventProcedure([this, oControl, oOwn = oControl->GotFocus] {
      StyleFormControls(*this, oControl->Container());
      if (oOwn) oOwn();
    });
  }
  const auto unmark = EventProcedure([this] { StyleFormControls(*this, nullptr); });
  for (forms::CommandButton* oButton :
       {&oButtons.cmdCancel, &oButtons.cmdBack, &oButtons.cmdNext, &oButtons.cmdFinish}) {
    oButton->GotFocus = unmark;
  }
  if (bHelpUnmarks) oButtons.cmdHelp.GotFocus = unmark;
}

void LayoutPage::RestoreTitle() { txtTitle.SetText(GetAttributeText(ChartElement(), "title")); }

void LayoutPage::UpdateTitle() const { ChartElement().setAttribute("title", runtime::Trim(txtTitle.Text())); }

void StyleFormControls(forms::Form& oForm, const forms::Control* oCurrentContainer) {
  for (forms::Control* oControl : oForm.Controls()) {
    const bool bMarked = oCurrentContainer != nullptr &&
                         (oControl == oCurrentContainer || oControl->Container() == oCurrentContainer);
    if (auto* oFrame = dynamic_cast<forms::Frame*>(oControl)) {
      oFrame->SetFontBold(bMarked);
      oFrame->SetAppearance(bMarked ? forms::Frame::kFlat : forms::Frame::k3D);
    }
    if (HasMarkColor(PrefixOf(*oControl))) {
      oControl->SetBackColor(bMarked ? forms::kToolTipBackground : forms::kButtonFace);
    }
  }
}

}  // namespace plotsmith

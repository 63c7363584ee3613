#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "pages/ControlGroups.h"
#include "pages/Page.h"

namespace plotsmith {

/// What the layout pages have in common: the chart's title, the columns of the source table, and the frame of
/// the focus, which is marked.
class LayoutPage : public Page {
 public:
  bool ValidSelections() final;

  forms::Frame Frame1{*this, "Frame1", nullptr, "1. Chart Title"};
  forms::TextBox txtTitle{*this, "txtTitle", &Frame1};

 protected:
  LayoutPage(const char* sName, Navigation& oNavigation);

  /// Brings the controls into order before they are judged.
  virtual void PrepareSelections() {}
  /// The message of the first rule that the page breaks, or an empty text.
  virtual std::string FirstFault() const = 0;
  /// Reads the names of the source table's columns, in the order of the sheet.
  void LoadColumnNames();
  /// Wires the buttons, and the marking of the focus to all controls. `bHelpUnmarks` says whether the help
  /// button takes the mark away, as the other buttons do.
  void WireLayout(WizardButtons& oButtons, bool bHelpUnmarks);
  /// The attribute `title` of the chart.
  ///@{
  void RestoreTitle();
  void UpdateTitle() const;
  ///@}
  void UpdateForBack() final { UpdateChartMetadata(); }
  /// Writes the controls into `oChartDoc`.
  virtual void UpdateChartMetadata() = 0;

  std::vector<std::string> colLabelColumns;
  std::vector<std::string> colNumberColumns;
};

/// Marks the frame of the focus, and the captions inside of it, by colour and bold type, and takes the mark
/// from all others. A null pointer leaves none marked.
void StyleFormControls(forms::Form& oForm, const forms::Control* oCurrentContainer);

}  // namespace plotsmith

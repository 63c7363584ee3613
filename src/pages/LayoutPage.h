#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Plain.h"
#include "forms/TextBox.h"
#include "pages/ControlGroups.h"
#include "pages/Page.h"

namespace plotsmith {

/// The base class of layout pages: the chart's title, the columns of the source table, and the marking of the
/// frame that has the focus.
class LayoutPage : public Page {
 public:
  bool ValidSelections() final;

  forms::Frame Frame1{*this, "Frame1", nullptr, "1. Chart Title"};  ///< The frame of the title.
  forms::TextBox txtTitle{*this, "txtTitle", &Frame1};              ///< The title of the chart.

 protected:
  /// Makes a page. `sName` is the name of its form.
  LayoutPage(const char* sName, Navigation& oNavigation);

  /// Updates the controls before they are checked.
  virtual void PrepareSelections() {}
  /// Returns the message for the first invalid input, or an empty text.
  virtual std::string FirstFault() const = 0;
  /// Reads the names of the source table's columns in sheet order.
  void LoadColumnNames();
  /// Connects the buttons, and the marking of the focus with all controls. `bHelpUnmarks` is true if the help
  /// button removes the mark, as the other buttons do.
  void WireLayout(WizardButtons& oButtons, bool bHelpUnmarks);
  /// Read and write the attribute `title` of the chart.
  ///@{
  void RestoreTitle();
  void UpdateTitle() const;
  ///@}
  void UpdateForBack() final { UpdateChartMetadata(); }
  /// Writes the values of the controls to `oChartDoc`.
  virtual void UpdateChartMetadata() = 0;

  /// The names of the source table's label columns and number columns, in sheet order.
  ///@{
  std::vector<std::string> colLabelColumns;
  std::vector<std::string> colNumberColumns;
  ///@}
};

/// Marks the frame that has the focus, and the captions inside it, with colour and bold type, and unmarks all
/// others. A null pointer marks none.
void StyleFormControls(forms::Form& oForm, const forms::Control* oCurrentContainer);

}  // namespace plotsmith

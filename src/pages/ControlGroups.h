#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "dom/Dom.h"
#include "forms/Buttons.h"
#include "forms/Form.h"
#include "forms/Lists.h"
#include "forms/Plain.h"
#include "forms/TextBox.h"

/// @file
/// Groups of controls, with their behaviour, that several pages use.
namespace plotsmith {

/// A group of pictures of which at most one is visible.
class PictureGroup {
 public:
  /// Makes a hidden picture for each name. `oContainer` is their frame, or null for the form.
  PictureGroup(forms::Form& oForm, forms::Control* oContainer, const std::vector<std::string>& aNames);

  /// Shows the picture with that name and hides the others. An empty name hides all.
  void Show(std::string_view sName);
  /// The controls of the pictures.
  const std::vector<std::unique_ptr<forms::Image>>& Images() const { return aImages_; }

 private:
  std::vector<std::unique_ptr<forms::Image>> aImages_;
};

/// The sample legend of a colour setting: bright if colours have a meaning, and dim otherwise.
class LegendPictures {
 public:
  /// Makes both pictures. `oContainer` is their frame, or null for the form.
  LegendPictures(forms::Form& oForm, forms::Control* oContainer)
      : oPictures_(oForm, oContainer, {"imgLegend", "imgLegendDim"}) {}
  /// The two pictures.
  const PictureGroup& Pictures() const { return oPictures_; }
  /// Shows the bright or the dim legend.
  void Show(bool bBright) { oPictures_.Show(bBright ? "imgLegend" : "imgLegendDim"); }

 private:
  PictureGroup oPictures_;
};

/// The boxes for the two axis titles. A title is filled with the name of the column that the user selects,
/// until the user has typed into its box.
class AxisBoxes {
 public:
  /// Makes the labels and boxes. `oContainer` is their frame, or null for the form.
  AxisBoxes(forms::Form& oForm, forms::Control* oContainer);

  /// Whether the horizontal axis is the label axis. This is so except for bar charts.
  bool bHorizontalIsLabel = true;

  /// Fills the box of the label axis or of the value axis, unless the user has typed into it.
  ///@{
  void FillLabelAxis(const std::string& sText) { Fill(bHorizontalIsLabel, sText); }
  void FillValueAxis(const std::string& sText) { Fill(!bHorizontalIsLabel, sText); }
  ///@}

  /// Fills the boxes from the `axis` elements of the chart.
  void Restore();
  /// Appends `axes` to the chart, with an `axis` for each box that isn't empty. The horizontal axis comes
  /// first.
  void Append() const;

  /// The labels and boxes of the two axes.
  ///@{
  forms::Label lblHAxis;
  forms::TextBox txtHAxis;
  forms::Label lblVAxis;
  forms::TextBox txtVAxis;
  ///@}

 private:
  void Track(forms::TextBox& oBox, bool& bSticky);
  void Fill(bool bHorizontal, const std::string& sText);
  void AppendAxis(const dom::IXMLDOMElement& oAxes, const forms::TextBox& oBox, bool bLabel,
                  bool bSticky) const;

  std::string sPriorAxisText;  ///< The text of the box when it got the focus.
  bool bHAxisSticky = false;   ///< Whether the user has edited txtHAxis.
  bool bVAxisSticky = false;   ///< Whether the user has edited txtVAxis.
};

/// The names of the controls of a number format box. They differ between pages.
struct NumberFormatNames {
  const char* sMaskLabel;     ///< The label before the box.
  const char* sMask;          ///< The box for the number format.
  const char* sExampleLabel;  ///< The label that shows the sample number.
};

/// The number format of the values, with a sample number in this format.
class NumberFormatBox {
 public:
  /// Makes the controls. `oContainer` is their frame, or null for the form.
  NumberFormatBox(forms::Form& oForm, forms::Control* oContainer, const NumberFormatNames& aNames);

  /// Fills the list of number formats.
  void FillNumberFormats();
  /// Shows the sample number in the current format.
  void ShowNumberExample();
  /// Returns true if the host has refused the format.
  bool IsInvalid() const;
  /// Read and write the attribute `number-format` of the chart.
  ///@{
  void Restore();
  void Update() const;
  ///@}

  /// The controls of the group.
  ///@{
  forms::Label lblMask;
  forms::ComboBox cboMask;
  forms::Label lblExample;
  forms::Label lblMaskExample;
  ///@}
};

/// The box for the comment of the chart. While it has the focus, Enter ends a line instead of pressing Next.
class CommentBox {
 public:
  /// Makes the frame with this caption, and the box in it.
  CommentBox(forms::Form& oForm, const char* sFrameCaption);

  /// Connects the box with the page's default button.
  void Wire(forms::CommandButton& cmdNext);
  /// Read and write the element `comment` of the chart.
  ///@{
  void Restore();
  void Append() const;
  ///@}

  /// The frame and its box.
  ///@{
  forms::Frame Frame7;
  forms::TextBox txtComment;
  ///@}
};

/// Enables or disables a text box, a list or a combo box, with the matching look.
void SetInputEnabled(forms::Control& oControl, bool bEnabled);
/// Appends entries to a list.
void AddItems(forms::EntryList& oList, const std::vector<std::string>& aTexts);
/// Fills a list with entries, after `sFirst` if given, and makes the first entry current. Raises error 380 if
/// there is no entry.
void FillList(forms::EntryList& oList, const std::vector<std::string>& aTexts, const char* sFirst = nullptr);
/// Makes each entry with one of these names current, one after the other, ignoring case.
void SelectEntries(forms::EntryList& oList, const std::vector<std::string>& aNames);
/// Returns the text of the current entry as a list of one text, or an empty list.
template <class List>
std::vector<std::string> CurrentEntry(const List& oList) {
  return oList.ListIndex() < 0 ? std::vector<std::string>() : std::vector<std::string>{oList.Text()};
}
/// Returns true if the check box is checked.
inline bool IsChecked(const forms::CheckBox& oBox) { return oBox.Value() == forms::CheckBox::kChecked; }

}  // namespace plotsmith

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
/// Groups of controls that several pages have, each with the behaviour that belongs to it.
namespace plotsmith {

/// Pictures of which at most one shows.
class PictureGroup {
 public:
  PictureGroup(forms::Form& oForm, forms::Control* oContainer, const std::vector<std::string>& aNames);

  /// Shows the picture of that name and hides the others; an empty name hides all.
  void Show(std::string_view sName);
  const std::vector<std::unique_ptr<forms::Image>>& Images() const { return aImages_; }

 private:
  std::vector<std::unique_ptr<forms::Image>> aImages_;
};

/// The sample legend of a colour choice: bright while there is one, else dim.
class LegendPictures {
 public:
  LegendPictures(forms::Form& oForm, forms::Control* oContainer)
      : oPictures_(oForm, oContainer, {"imgLegend", "imgLegendDim"}) {}
  const PictureGroup& Pictures() const { return oPictures_; }
  void Show(bool bBright) { oPictures_.Show(bBright ? "imgLegend" : "imgLegendDim"); }

 private:
  PictureGroup oPictures_;
};

/// The titles of the two axes. A title fills itself from the column that the user chooses, until the user has
/// typed into its box.
class AxisBoxes {
 public:
  AxisBoxes(forms::Form& oForm, forms::Control* oContainer);

  /// Whether the horizontal axis is the label axis, as it is on all charts but bars, which lie on their side.
  bool bHorizontalIsLabel = true;

  /// Fills the box of the label axis, or of the value axis, unless the user has typed there.
  ///@{
  void FillLabelAxis(const std::string& sText) { Fill(bHorizontalIsLabel, sText); }
  void FillValueAxis(const std::string& sText) { Fill(!bHorizontalIsLabel, sText); }
  ///@}

  /// Reads the `axis` elements of the chart.
  void Restore();
  /// Appends `axes` to the chart, with an `axis` for each box that isn't empty, the horizontal one first.
  void Append() const;

  forms::Label lblHAxis;
  forms::TextBox txtHAxis;
  forms::Label lblVAxis;
  forms::TextBox txtVAxis;

 private:
  void Track(forms::TextBox& oBox, bool& bSticky);
  void Fill(bool bHorizontal, const std::string& sText);
  void AppendAxis(const dom::IXMLDOMElement& oAxes, const forms::TextBox& oBox, bool bLabel,
                  bool bSticky) const;

  std::string sPriorAxisText;  ///< what the box held when it got the focus
  bool bHAxisSticky = false;   ///< the user has edited txtHAxis
  bool bVAxisSticky = false;   ///< the user has edited txtVAxis
};

/// The names of the controls of a number format box, which differ from page to page.
struct NumberFormatNames {
  const char* sMaskLabel;
  const char* sMask;
  const char* sExampleLabel;
};

/// The number format of the values, with an example of what it shows.
class NumberFormatBox {
 public:
  NumberFormatBox(forms::Form& oForm, forms::Control* oContainer, const NumberFormatNames& aNames);

  void FillNumberFormats();
  void ShowNumberExample();
  /// Whether the host has refused the format.
  bool IsInvalid() const;
  /// The attribute `number-format` of the chart.
  ///@{
  void Restore();
  void Update() const;
  ///@}

  forms::Label lblMask;
  forms::ComboBox cboMask;
  forms::Label lblExample;
  forms::Label lblMaskExample;
};

/// The comment of the chart. While it has the focus, Enter ends a line instead of pressing Next.
class CommentBox {
 public:
  CommentBox(forms::Form& oForm, const char* sFrameCaption);

  /// Wires the box to the page's default button.
  void Wire(forms::CommandButton& cmdNext);
  /// The element `comment` of the chart.
  ///@{
  void Restore();
  void Append() const;
  ///@}

  forms::Frame Frame7;
  forms::TextBox txtComment;
};

/// Switches a text, a list or a combo box on or off, with the look that goes with it.
void SetInputEnabled(forms::Control& oControl, bool bEnabled);
/// Puts texts at the end of a list.
void AddItems(forms::EntryList& oList, const std::vector<std::string>& aTexts);
/// Puts texts into a list, behind `sFirst` if that is given, and makes the first entry the current one. Error
/// 380 where there is none.
void FillList(forms::EntryList& oList, const std::vector<std::string>& aTexts, const char* sFirst = nullptr);
/// Makes each entry of one of these names, ignoring case, the current one in turn.
void SelectEntries(forms::EntryList& oList, const std::vector<std::string>& aNames);
/// The text of the current entry as a list: one text, or none.
template <class List>
std::vector<std::string> CurrentEntry(const List& oList) {
  return oList.ListIndex() < 0 ? std::vector<std::string>() : std::vector<std::string>{oList.Text()};
}
/// Whether the box is ticked.
inline bool IsChecked(const forms::CheckBox& oBox) { return oBox.Value() == forms::CheckBox::kChecked; }

}  // namespace plotsmith

#include "pages/ControlGroups.h"

#include "common/Documents.h"
#include "common/HostAnswers.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "pages/ChartMetadata.h"
#include "pages/EventProcedure.h"
#include "runtime/Strings.h"

namespace plotsmith {

using dom::IXMLDOMElement;

namespace {

constexpr std::size_t kLongestLine = 255;
constexpr std::size_t kLongestComment = 5000;
constexpr const char* kNumberFormats[] = {"#;(#);", "#,###;(#,###);", "$#,###;($#,###);"};

std::string Trimmed(const std::string& sText) { return std::string(runtime::Trim(sText)); }

}  // namespace

PictureGroup::PictureGroup(forms::Form& oForm, forms::Control* oContainer,
                           const std::vector<std::string>& aNames) {
  for (const std::string& sName : aNames) {
    aImages_.push_back(std::make_unique<forms::Image>(oForm, sName.c_str(), oContainer));
    aImages_.back()->SetVisible(false);
  }
}

void PictureGroup::Show(std::string_view sName) {
  for (const auto& oImage : aImages_) oImage->SetVisible(oImage->Name() == sName);
}

AxisBoxes::AxisBoxes(forms::Form& oForm, forms::Control* oContainer)
    : lblHAxis(oForm, "lblHAxis", oContainer, "Horizontal (X-axis)"),
      txtHAxis(oForm, "txtHAxis", oContainer),
      lblVAxis(oForm, "lblVAxis", oContainer, "Vertical (Y-axis)"),
      txtVAxis(oForm, "txtVAxis", oContainer) {
  txtHAxis.SetAccessibleName(lblHAxis.Caption());
  txtVAxis.SetAccessibleName(lblVAxis.Caption());
  Track(txtHAxis, bHAxisSticky);
  Track(txtVAxis, bVAxisSticky);
}

void AxisBoxes::Track(forms::TextBox& oBox, bool& bSticky) {
  oBox.SetMaxLength(kLongestLine);
  oBox.GotFocus = EventProcedure([this, &oBox] { sPriorAxisText = oBox.Text(); });
  oBox.Validate = EventProcedure([this, &oBox, &bSticky] {
    if (oBox.Text() != sPriorAxisText) bSticky = true;
  });
}

void AxisBoxes::Fill(bool bHorizontal, const std::string& sText) {
  if (bHorizontal ? bHAxisSticky : bVAxisSticky) return;
  (bHorizontal ? txtHAxis : txtVAxis).SetText(sText);
}

void AxisBoxes::Restore() {
  for (const IXMLDOMElement& oAxis : ChartElement().selectNodes("axes[1]/axis")) {
    const std::string sType = GetAttributeText(oAxis, "type");
    if (sType != "label" && sType != "value") continue;
    const bool bHorizontal = (sType == "label") == bHorizontalIsLabel;
    (bHorizontal ? txtHAxis : txtVAxis).SetText(GetAttributeText(oAxis, "label"));
    (bHorizontal ? bHAxisSticky : bVAxisSticky) = GetAttributeText(oAxis, "sticky") == "yes";
  }
}

void AxisBoxes::Append() const {
  const IXMLDOMElement oAxes = AppendElement(ChartElement(), "axes");
  AppendAxis(oAxes, txtHAxis, bHorizontalIsLabel, bHAxisSticky);
  AppendAxis(oAxes, txtVAxis, !bHorizontalIsLabel, bVAxisSticky);
}

void AxisBoxes::AppendAxis(const IXMLDOMElement& oAxes, const forms::TextBox& oBox, bool bLabel,
                           bool bSticky) const {
  const std::string sText = Trimmed(oBox.Text());
  if (sText.empty()) return;
  IXMLDOMElement oAxis = AppendElement(oAxes, "axis");
  oAxis.setAttribute("type", bLabel ? "label" : "value");
  oAxis.setAttribute("label", sText);
  oAxis.setAttribute("sticky", bSticky ? "yes" : "no");
}

NumberFormatBox::NumberFormatBox(forms::Form& oForm, forms::Control* oContainer,
                                 const NumberFormatNames& aNames)
    : lblMask(oForm, aNames.sMaskLabel, oContainer, "Number Format"),
      cboMask(oForm, aNames.sMask, oContainer, forms::ComboStyle::kDropDownCombo),
      lblExample(oForm, aNames.sExampleLabel, oContainer, "Example"),
      lblMaskExample(oForm, "lblMaskExample", oContainer, "(formatted example)") {
  cboMask.SetAccessibleName(lblMask.Caption());
  cboMask.Click = EventProcedure([this] { ShowNumberExample(); });
  cboMask.Validate = EventProcedure([this] { ShowNumberExample(); });
}

void NumberFormatBox::FillNumberFormats() {
  for (const char* sFormat : kNumberFormats) cboMask.AddItem(sFormat);
}

void NumberFormatBox::ShowNumberExample() {
  const std::string sFormat = cboMask.Text();
  lblMaskExample.SetCaption(FormatSampleNumber(sFormat.empty() ? "General" : sFormat));
}

bool NumberFormatBox::IsInvalid() const { return lblMaskExample.Caption() == kInvalidFormat; }

void NumberFormatBox::Restore() {
  cboMask.SetText(GetAttributeText(ChartElement(), "number-format"));
  ShowNumberExample();
}

void NumberFormatBox::Update() const {
  ChartElement().setAttribute("number-format", Trimmed(cboMask.Text()));
}

CommentBox::CommentBox(forms::Form& oForm, const char* sFrameCaption)
    : Frame7(oForm, "Frame7", nullptr, sFrameCaption), txtComment(oForm, "txtComment", &Frame7) {
  txtComment.SetMultiLine(true);
  txtComment.SetMaxLength(kLongestComment);
}

void CommentBox::Wire(forms::CommandButton& cmdNext) {
  txtComment.GotFocus = EventProcedure([&cmdNext] { cmdNext.SetDefault(false); });
  txtComment.Validate = EventProcedure([&cmdNext] { cmdNext.SetDefault(true); });
}

void CommentBox::Restore() {
  const IXMLDOMElement oComment = ChartElement().selectSingleNode("comment");
  if (!oComment) return;
  txtComment.SetText(forms::WithLineEnds(GetChildText(ChartElement(), "comment"), kLineBreak));
}

// A document that was stored and read has line feeds as line ends. This document must look the same.
void CommentBox::Append() const {
  IXMLDOMElement oComment = AppendElement(ChartElement(), "comment");
  oComment.appendChild(oChartDoc.createTextNode(forms::WithLineEnds(Trimmed(txtComment.Text()), "\n")));
}

void SetInputEnabled(forms::Control& oControl, bool bEnabled) {
  oControl.SetEnabled(bEnabled);
  oControl.SetBackColor(bEnabled ? forms::kWhite : forms::kButtonFace);
}

void AddItems(forms::EntryList& oList, const std::vector<std::string>& aTexts) {
  for (const std::string& sText : aTexts) oList.AddItem(sText);
}

void FillList(forms::EntryList& oList, const std::vector<std::string>& aTexts, const char* sFirst) {
  if (sFirst != nullptr) oList.AddItem(sFirst);
  AddItems(oList, aTexts);
  oList.SetListIndex(0);
}

void SelectEntries(forms::EntryList& oList, const std::vector<std::string>& aNames) {
  for (const std::string& sName : aNames) {
    for (std::int32_t i = 0; i < oList.ListCount(); ++i) {
      if (runtime::EqualsIgnoreCase(oList.List(i), sName)) oList.SetListIndex(i);
    }
  }
}

}  // namespace plotsmith

#pragma once

#include <cstdint>
#include <string>

#include "common/RunVariables.h"
#include "forms/Buttons.h"
#include "forms/Lists.h"
#include "forms/VSFlexGrid.h"
#include "pages/LayoutPage.h"
#include "runtime/Dictionary.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// The layout of strategic bucket charts. The rows of the source table are blocks, stacked in buckets. A
/// second table gives the names and the values of the buckets.
class frmPSLayoutStrBuck final : public LayoutPage {
 public:
  /// Makes the page. `oNavigation` must outlive it.
  explicit frmPSLayoutStrBuck(Navigation& oNavigation);

  /// The controls in tab order.
  ///@{
  forms::Frame Frame2{*this, "Frame2", nullptr, "2. Strategic Buckets"};
  forms::ComboBox cboBucketTables{*this, "cboBucketTables", &Frame2, forms::ComboStyle::kDropDownList};
  forms::VSFlexGrid grdBuckets{*this, "grdBuckets", &Frame2, forms::MultiSelect::kNone, 2, 1};
  forms::Frame Frame3{*this, "Frame3", nullptr, "3. A Block Represents"};
  forms::ComboBox cboCategories{*this, "cboCategories", &Frame3, forms::ComboStyle::kDropDownList};
  forms::Frame Frame4{*this, "Frame4", nullptr, "4. Block Color"};
  forms::ComboBox cboSeries{*this, "cboSeries", &Frame4, forms::ComboStyle::kDropDownList};
  LegendPictures Legend{*this, &Frame4};
  forms::Frame Frame6{*this, "Frame6", nullptr, "5. Arrange Blocks by"};
  forms::ComboBox cboBlockSequence{*this, "cboBlockSequence", &Frame6, forms::ComboStyle::kDropDownList};
  forms::OptionButton optBlockSequence0{*this, "optBlockSequence", 0, &Frame6, "Ascending"};
  forms::OptionButton optBlockSequence1{*this, "optBlockSequence", 1, &Frame6, "Descending"};
  forms::Frame Frame5{*this, "Frame5", nullptr, "6. Block and Axis Labels"};
  forms::CheckBox chkShowNames{*this, "chkShowNames", &Frame5, "Show Names on Blocks"};
  NumberFormatBox NumberFormat{*this, &Frame5, {"lblNumberMask", "cboDataLabelMask", "lblNumberExample"}};
  AxisBoxes Axes{*this, &Frame5};
  CommentBox Comment{*this, "7. Chart Comments"};
  forms::Image imgStrBuckBasic{*this, "imgStrBuckBasic", nullptr};
  WizardButtons Buttons{*this};
  ///@}

  forms::Layout Layout() const override;

 protected:
  void FillPage() override;
  std::int32_t HelpTopic() const override { return 18; }
  void PrepareSelections() override;
  std::string FirstFault() const override;
  void UpdateChartMetadata() override;
  forms::Control* FocusAfter(const std::string& sMessage) override;

 private:
  void FillBucketTables();
  void FillCategories();
  void FillColors();
  void FillBlockSequence();
  void SetBucketColumns();
  /// Shows the buckets of the selected table.
  void ShowBuckets();
  void RestoreChartSelections();
  void RestoreSortOrder();

  runtime::Ref<DocumentCollection> colBucketTables;  ///< The bucket tables in the order of cboBucketTables.
  runtime::Dictionary dicBucketIndex;                ///< The index in cboBucketTables by table id.
  std::string sBucketTableID, sBucketNameColumn,
      sBucketValueColumn;  ///< Id and columns of the selected table.
};

}  // namespace plotsmith

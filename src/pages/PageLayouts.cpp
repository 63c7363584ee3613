#include "pages/PageLayouts.h"

#include <utility>

#include "pages/frmBusyPS.h"
#include "pages/frmPSChartLocation.h"
#include "pages/frmPSLayoutABC.h"
#include "pages/frmPSLayoutBubble.h"
#include "pages/frmPSLayoutPie.h"
#include "pages/frmPSLayoutStrBuck.h"
#include "pages/frmPSSelectAction.h"
#include "pages/frmPSSelectTable.h"

namespace plotsmith {

using forms::Column;
using forms::Framed;
using forms::Grid;
using forms::Item;
using forms::Layout;
using forms::Row;
using forms::Space;
using forms::Stack;

namespace {

constexpr int kColumnNameWidth = 26;  // The width of a list of column names in characters.
constexpr int kListLines = 4;
constexpr int kCommentLines = 3;

Layout ColumnList(const forms::Control& oList) {
  return Item(oList).AtLeast(kColumnNameWidth, kListLines).Stretch(1);
}

Layout ColumnBox(const forms::Control& oCombo) { return Item(oCombo).AtLeast(kColumnNameWidth, 0); }

/// An option without a caption, followed by the control that it enables.
Layout Choice(const forms::Control& oOption, Layout oControl) {
  return Row({Item(oOption), std::move(oControl).Stretch(1)});
}

/// A control with the sample legend beside it.
Layout BesideLegend(Layout oPart, const LegendPictures& oLegend) {
  return Row({std::move(oPart).Stretch(1), StackOf(oLegend)});
}

}  // namespace

Layout WithButtons(Layout oBody, const WizardButtons& oButtons) {
  return Column({std::move(oBody).Stretch(1),
                 Row({Item(oButtons.cmdHelp), Space(), Item(oButtons.cmdCancel), Item(oButtons.cmdBack),
                      Item(oButtons.cmdNext), Item(oButtons.cmdFinish)})});
}

Layout StackOf(const PictureGroup& oPictures) {
  std::vector<Layout> aParts;
  for (const auto& oImage : oPictures.Images()) aParts.push_back(Item(*oImage));
  return Stack(std::move(aParts));
}

Layout StackOf(const LegendPictures& oLegend) { return StackOf(oLegend.Pictures()); }

Layout GridOf(const AxisBoxes& oAxes) {
  return Grid(
      2, {Item(oAxes.lblHAxis), Item(oAxes.txtHAxis).Stretch(1), Item(oAxes.lblVAxis), Item(oAxes.txtVAxis)});
}

Layout GridOf(const NumberFormatBox& oBox) {
  return Grid(2, {Item(oBox.lblMask), Item(oBox.cboMask).Stretch(1), Item(oBox.lblExample),
                  Item(oBox.lblMaskExample)});
}

Layout GridOf(const NumberFormatBox& oBox, const AxisBoxes& oAxes) {
  Layout oGrid = GridOf(oBox);
  Layout oOther = GridOf(oAxes);
  for (Layout& oPart : oOther.parts) oGrid.parts.push_back(std::move(oPart));
  return oGrid;
}

Layout Framed(const CommentBox& oComment) {
  return Framed(oComment.Frame7, Item(oComment.txtComment).AtLeast(kColumnNameWidth, kCommentLines))
      .Stretch(1);
}

Layout frmPSSelectAction::Layout() const {
  return Row({Framed(Frame2, Item(grdCharts).AtLeast(92, 14)).Stretch(1),
              Column({Item(cmdNew), Item(cmdModify), Item(cmdCopy), Item(cmdDelete), Space(),
                      Item(cmdGoToChart), Item(cmdGoToTable), Space(), Item(cmdHelp), Item(cmdCancel)})});
}

Layout frmPSSelectTable::Layout() const {
  std::vector<forms::Layout> aTypes;
  for (const auto& oOption : optType) aTypes.push_back(Item(oOption));
  aTypes.push_back(Space());
  return WithButtons(
      Row({Framed(fraTableList, Item(grdTables).AtLeast(32, 14)).Stretch(1),
           Framed(fraChartType, Row({Column(std::move(aTypes)), StackOf(Pictures).Stretch(1)}))}),
      Buttons);
}

Layout frmPSLayoutABC::Layout() const {
  const auto oData = [this] {
    return Column(
        {Framed(Frame1, Item(txtTitle)),
         Framed(Frame2, Column({Choice(optCategories1, ColumnBox(cboCategories)),
                                Choice(optCategories2, ColumnList(lstCategories))}))
             .Stretch(1),
         Framed(Frame3, BesideLegend(Column({Item(optSeries0), Choice(optSeries1, ColumnBox(cboSeries)),
                                             Choice(optSeries2, ColumnList(lstSeries))}),
                                     Legend))
             .Stretch(1),
         Framed(Frame4, ColumnBox(cboValues))});
  };
  const auto oLook = [this] {
    return Column({StackOf(Pictures).Stretch(2),
                   Framed(Frame5, Column({Item(chkShowValues), GridOf(NumberFormat, Axes)})),
                   Framed(Frame6, Row({Item(chk3D), Item(chkStacked), Item(chk100Pct), Space()})),
                   plotsmith::Framed(Comment)});
  };
  return WithButtons(Row({oData().Stretch(1), oLook().Stretch(1)}), Buttons);
}

Layout frmPSLayoutPie::Layout() const {
  const auto oData = [this] {
    return Column({Framed(Frame1, Item(txtTitle)), Framed(Frame4, ColumnBox(cboValues)),
                   Framed(Frame2, Row({ColumnList(lstCategories), Item(imgLegend)})).Stretch(1)});
  };
  const auto oLook = [this] {
    return Column(
        {StackOf(Pictures).Stretch(2),
         Framed(Frame5,
                Column({Row({Item(optDataLabels0), Item(optDataLabels1), Item(optDataLabels2), Space()}),
                        GridOf(NumberFormat)})),
         Framed(Frame6, Row({Item(chk3D), Item(chkExploded), Space()})), plotsmith::Framed(Comment)});
  };
  return WithButtons(Row({oData().Stretch(1), oLook().Stretch(1)}), Buttons);
}

Layout frmPSLayoutBubble::Layout() const {
  const auto oData = [this] {
    return Column({Framed(Frame1, Item(txtTitle)), Framed(Frame2, ColumnList(lstYValues)).Stretch(1),
                   Framed(Frame4, ColumnBox(cboXValues)), Framed(Frame3, ColumnBox(cboCategories)),
                   Framed(Frame9, Column({ColumnBox(cboSizes), Item(chkShowZeroBubbles)})),
                   Framed(Frame8, BesideLegend(ColumnBox(cboSeries), Legend))});
  };
  const auto oLook = [this] {
    return Column(
        {StackOf(Pictures).Stretch(2), Framed(Frame5, GridOf(Axes)),
         Framed(Frame6, Grid(2, {Item(chk3D), Item(chkQuadrants), Item(chkScaleXAxis), Item(chkScaleYAxis)})),
         plotsmith::Framed(Comment)});
  };
  return WithButtons(Row({oData().Stretch(1), oLook().Stretch(1)}), Buttons);
}

Layout frmPSLayoutStrBuck::Layout() const {
  const auto oData = [this] {
    return Column(
        {Framed(Frame1, Item(txtTitle)),
         Framed(Frame2, Column({ColumnBox(cboBucketTables),
                                Item(grdBuckets).AtLeast(kColumnNameWidth, kListLines).Stretch(1)}))
             .Stretch(1),
         Framed(Frame3, ColumnBox(cboCategories)), Framed(Frame4, BesideLegend(ColumnBox(cboSeries), Legend)),
         Framed(Frame6, Column({ColumnBox(cboBlockSequence),
                                Row({Item(optBlockSequence0), Item(optBlockSequence1), Space()})}))});
  };
  const auto oLook = [this] {
    return Column({Item(imgStrBuckBasic).Stretch(2),
                   Framed(Frame5, Column({Item(chkShowNames), GridOf(NumberFormat, Axes)})),
                   plotsmith::Framed(Comment)});
  };
  return WithButtons(Row({oData().Stretch(1), oLook().Stretch(1)}), Buttons);
}

Layout frmPSChartLocation::Layout() const {
  return WithButtons(
      Column({Framed(Frame1, Column({Grid(
                                 2, {Item(optTargetSheet0), Item(txtSheet).AtLeast(40, 0).Stretch(1),
                                     Item(optTargetSheet1), Item(cboSheet), Item(lblName), Item(txtName)})})),
              Space()}),
      Buttons);
}

Layout frmBusyPS::Layout() const { return Column({Item(WaitLabel), Item(ProgressBar1).AtLeast(40, 0)}); }

}  // namespace plotsmith

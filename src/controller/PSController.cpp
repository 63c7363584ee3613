#include "controller/PSController.h"

#include <array>
#include <memory>
#include <optional>
#include <string_view>

#include "builder/ChartRefreshDriver.h"
#include "common/App.h"
#include "common/ErrorBlocks.h"
#include "common/Messages.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "pages/frmPSChartLocation.h"
#include "pages/frmPSLayoutABC.h"
#include "pages/frmPSLayoutBubble.h"
#include "pages/frmPSLayoutPie.h"
#include "pages/frmPSLayoutStrBuck.h"
#include "pages/frmPSSelectAction.h"
#include "pages/frmPSSelectTable.h"
#include "runtime/Ref.h"
#include "runtime/RuntimeError.h"

namespace plotsmith {

namespace {

/// The navigation that the pages call.
class ControllerNavigation final : public Navigation {
 public:
  void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage) override {
    plotsmith::PSJumpToStep(lStep, lFromPage, oPage);
  }
};

ControllerNavigation oNavigation;

template <class Form>
std::shared_ptr<Page> MakePage() {
  return std::make_shared<Form>(oNavigation);
}

/// A form: its factory, and the instance that is loaded at present.
struct FormVariable {
  std::shared_ptr<Page> (*Make)();
  std::shared_ptr<Page> oLoaded;
};

FormVariable oSelectAction{MakePage<frmPSSelectAction>, nullptr};
FormVariable oSelectTable{MakePage<frmPSSelectTable>, nullptr};
FormVariable oLayoutABC{MakePage<frmPSLayoutABC>, nullptr};
FormVariable oLayoutBubble{MakePage<frmPSLayoutBubble>, nullptr};
FormVariable oLayoutStrBuck{MakePage<frmPSLayoutStrBuck>, nullptr};
FormVariable oLayoutPie{MakePage<frmPSLayoutPie>, nullptr};
FormVariable oChartLocation{MakePage<frmPSChartLocation>, nullptr};

/// The form of each page number. Area, bar and column share a form.
const std::array<FormVariable*, 9> kForms = {&oSelectAction,  &oSelectTable,  &oLayoutABC,
                                             &oLayoutABC,     &oLayoutBubble, &oLayoutABC,
                                             &oLayoutStrBuck, &oLayoutPie,    &oChartLocation};
constexpr std::int32_t kSelectActionPage = 0;
constexpr std::int32_t kSelectTablePage = 1;
constexpr std::int32_t kAreaLayoutPage = 2;
constexpr std::int32_t kChartLocationPage = 8;

/// Returns the number of the layout page for `sChartType`.
std::optional<std::int32_t> LayoutPageNumber() {
  constexpr std::array<std::string_view, 6> kTypes = {"area", "bar", "bubble", "column", "strategic bucket",
                                                      "pie"};
  for (std::size_t i = 0; i < kTypes.size(); ++i) {
    if (kTypes[i] == sChartType) return kAreaLayoutPage + static_cast<std::int32_t>(i);
  }
  return std::nullopt;
}

/// Returns the page with a number and loads it. An unloaded page is replaced by a new one.
std::shared_ptr<Page> LoadedPage(std::int32_t lPage) {
  FormVariable& oForm = *kForms[static_cast<std::size_t>(lPage)];
  if (!oForm.oLoaded || oForm.oLoaded->IsUnloaded()) oForm.oLoaded = oForm.Make();
  const std::shared_ptr<Page> oPage = oForm.oLoaded;
  oPage->Load();
  return oPage;
}

void ShowLayoutPage(const char* sProcedure) {
  if (const auto lPage = LayoutPageNumber()) {
    ShowPage(*lPage);
  } else {
    ShowComplaint(sProcedure, "Unknown chart type");
  }
}

void ComplainOfOrigin(const char* sProcedure) {
  ShowComplaint(sProcedure, "Don't know where you're coming from!");
}

/// Checks a page that isn't shown. If its input is valid, the page is unloaded and `next` follows; otherwise
/// the page opens and shows its message.
template <class Next>
void PassOrShow(std::int32_t lPage, Next&& next) {
  const std::shared_ptr<Page> oPage = LoadedPage(lPage);
  if (oPage->ValidSelections()) {
    UnloadPage(*oPage);
    next();
  } else {
    ShowPage(lPage);
  }
}

}  // namespace

void ExecuteRun(std::int32_t lMode) {
  bRunAborted = false;
  ResetPages();  // An error may have left a page loaded.
  if (lMode == 1) IgnoreErrors([] { oApplication->Run(kRefreshStartedMacro, {}); });
  const auto jump = [&] {
    PSJumpToStep(lMode == 0 ? step::kStart : step::kRefresh, origin::kOutside, nullptr);
  };
  if (oApplication->ActiveChart()) {
    // Deselect the chart. From here on errors are ignored, including those of the run.
    IgnoreErrors([] { SheetWithCells(oWorkbook->ActiveSheet()->Name())->Cells(1, 1)->Activate(); }, jump,
                 EndRun);
  } else {
    jump();
    EndRun();
  }
  if (lMode == 1 && !bRunAborted) IgnoreErrors([] { oApplication->Run(kRefreshCompleteMacro, {}); });
}

void PSJumpToStep(std::int32_t lStep, std::int32_t lFromPage, Page* oPage) {
  HandleErrors(
      [&] {
        oApplication->SetScreenUpdating(false);
        if (oPage != nullptr) UnloadPage(*oPage);
        switch (lStep) {
          case step::kRefresh:
            lMethodType = method::kRefresh;
            RefreshAllCharts();
            break;
          case step::kStart:
            JumpStart();
            break;
          case step::kNext:
            JumpNext(lFromPage);
            break;
          case step::kPrevious:
            JumpPrevious(lFromPage);
            break;
          case step::kFinish:
            JumpFinish(lFromPage);
            YieldToHost();
            break;
          case step::kEnd:
            EndRun();
            YieldToHost();
            break;
          default:
            ShowComplaint("PSController.PSJumpToStep", "Unsupported Navigation");
        }
      },
      [](const runtime::RuntimeError& oErr) {
        ShowErrorReport("PSController.PSJumpToStep", oErr);
        EndRun();
        bRunAborted = true;
      });
}

void JumpStart() {
  if (!colTables) RetrieveTableDefinitions();
  if (!colCharts) RetrieveChartDefinitions();
  if (colTables->Count() + colCharts->Count() == 0) {
    PSJumpToStep(step::kEnd, origin::kOutside, nullptr);
    ShowMessage("This workbook contains no tables. You must create one in order to run the Plotsmith.");
  } else if (colCharts->Count() > 0) {
    ShowPage(kSelectActionPage);
  } else {
    lMethodType = method::kNew;
    ShowPage(kSelectTablePage);
  }
}

void JumpNext(std::int32_t lFromPage) {
  switch (lFromPage) {
    case origin::kSelectAction:
      if (lMethodType == method::kNew) {
        ShowPage(kSelectTablePage);
      } else {
        PassOrShow(kSelectTablePage, [] { JumpNext(origin::kSelectTable); });
      }
      break;
    case origin::kSelectTable:
      ShowLayoutPage("PSController.JumpNext");
      break;
    case origin::kLayout:
      ShowPage(kChartLocationPage);
      break;
    case origin::kChartLocation:
      RefreshChart(sChartID);
      break;
    default:
      ComplainOfOrigin("PSController.JumpNext");
  }
}

void JumpPrevious(std::int32_t lFromPage) {
  switch (lFromPage) {
    case origin::kSelectTable:
      sChartID.clear();
      sTableID.clear();
      sChartType = "unknown";
      oChartDoc = {};
      ShowPage(kSelectActionPage);
      break;
    case origin::kLayout:
      ShowPage(kSelectTablePage);
      break;
    case origin::kChartLocation:
      ShowLayoutPage("PSController.JumpPrevious");
      break;
    default:
      ComplainOfOrigin("PSController.JumpPrevious");
  }
}

void JumpFinish(std::int32_t lFromPage) {
  switch (lFromPage) {
    case origin::kSelectAction:
      PassOrShow(kSelectTablePage, [] { JumpFinish(origin::kSelectTable); });
      break;
    case origin::kSelectTable:
      if (const auto lPage = LayoutPageNumber()) {
        // Area, bar and column share a form, which is opened with the first of their numbers.
        const bool bShared = kForms[static_cast<std::size_t>(*lPage)] == &oLayoutABC;
        PassOrShow(bShared ? kAreaLayoutPage : *lPage, [] { JumpFinish(origin::kLayout); });
      } else {
        ShowComplaint("PSController.JumpFinish", "Unknown chart type");
      }
      break;
    case origin::kLayout:
      PassOrShow(kChartLocationPage, [] { RefreshChart(sChartID); });
      break;
    case origin::kChartLocation:
      RefreshChart(sChartID);
      break;
    default:
      ComplainOfOrigin("PSController.JumpFinish");
  }
}

void ShowPage(std::int32_t lPage) {
  oApplication->SetScreenUpdating(true);
  if (lPage < 0 || lPage >= static_cast<std::int32_t>(kForms.size())) return;
  App.Forms->ShowModal(LoadedPage(lPage));
}

void UnloadPage(Page& oPage) {
  bUnloadingPage = true;
  oPage.Unload();  // An error here leaves the flag set, because no error block resets it.
  bUnloadingPage = false;
}

void ResetPages() {
  for (FormVariable* oForm : kForms) oForm->oLoaded = nullptr;
}

void EndRun() {
  if (bUnloadingPage) return;
  colCharts = nullptr;
  colChartObjects = nullptr;
  colChartShapes = nullptr;
  colTables = nullptr;
  oChartDoc = {};
  sChartType = "unknown";
  sChartID.clear();
  sTableID.clear();
  oApplication->SetScreenUpdating(true);
}

}  // namespace plotsmith
